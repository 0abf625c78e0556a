// The Help menu, the link labels and the About box in every window.
#include "DriveSession.h"

#include <gtest/gtest.h>

using namespace quillane::testing;

namespace {
const std::string kHelp = R"("https://quillane.zenthora.net/quillane-help.html")";
const std::string kHome = R"("https://www.zenthora.net/")";
const std::string kFull = R"("https://www.zenthora.net/fully-branded.html")";
const std::string kCoBrand = R"("https://www.zenthora.net/co-brand.html")";

struct Window {
    std::string form, open, sep1, sep2, money, update, forum;
};
const Window kWindows[] = {
    {"frmMDI", "", "mnuSep1", "mnuSep2", "mkmoney", "Check for Software &Update",
     "lblZenthoraBanner"},
    {"frmLearnAstrologyMain", "click frmMDI.cmdSelectOption(0)", "mnuFileSep1", "mnuFileSep2",
     "mnuMakeMoney", "&Check for Software Update", "Label61"},
    {"frmLearnNumerologyMain", "click frmMDI.cmdSelectOption(1)", "mnuSep1", "mnuSep2",
     "mnuMakeMoney", "Check for Software &Update", "Label14"},
    {"frmLearnTarotMain", "click frmMDI.cmdSelectOption(2)", "mnuHelpSep1", "mnuHelpSep2",
     "mnuMakeMoney", "Check for Software &Update", "Label6"},
    {"frmLearnRunesMain", "click frmMDI.cmdSelectOption(3)", "mnuSep1", "mnuSep2", "mnuMakeMoney",
     "Check for Software &Update", "Label14"},
};
} // namespace

TEST(Help, EveryWindowCarriesTheSameHelpMenu) {
    for (const auto& w : kWindows) {
        Script s(w.form, {"start"});
        if (!w.open.empty())
            s.Do(w.open);
        s.Is("get .mnuHelp.Caption", R"("&Help")", w.form.c_str());
        s.Is("get .mnuOnline.Caption", R"("&Online Help")");
        s.Is("get .mnuVisit.Caption", R"("&Visit Us Online")");
        s.Is("get .mnuUpdate.Caption", "\"" + w.update + "\"", w.form.c_str());
        s.Is("get .mnuAbout.Caption", R"("&About Software")");
        s.Is("get ." + w.sep1 + ".Caption", R"("-")");
        s.Is("get ." + w.sep2 + ".Caption", R"("-")");
        s.Is("get ." + w.money + ".Caption", R"("Make Money &Online")");
        s.Do({"click .mnuOnline", "click .mnuVisit", "click ." + w.forum});
        s.Is("opened", "[" + kHelp + "," + kHome + "," + kHome + "]", w.form.c_str());
        s.Run({"--today", "2026-04-01"});
    }
}

TEST(Help, MakeMoneyAndBrandLinksOpenTheirPages) {
    Script s("frmMDI", {"start"});
    s.Do({"click .mkmoney", "click .Label7", "click .Picture6", "click .cmdSelectOption(1)",
          "click frmLearnNumerologyMain.lblCobrand", "click frmLearnNumerologyMain.lblFullBrand",
          "click frmLearnNumerologyMain.mnuMakeMoney", "click .cmdSelectOption(3)"});
    s.Is("click frmLearnRunesMain.mnuMakeMoney", "error: hidden", "the Runes hide Make Money");
    s.Is("get frmLearnRunesMain.mnuCalculate.Visible", "false");
    s.Is("opened", "[" + kFull + "," + kFull + "," + kHome + "," + kCoBrand + "," + kFull + "," +
                       kFull + "]");
    s.Run({});
}

TEST(Help, TheAboutBoxIsModalAndItsLinksOpenTheirPages) {
    Script s("frmAbout", {"start", "click frmMDI.mnuAbout"});
    s.Is("get .Caption", R"("Quillane v1.20")");
    s.Is("get .Label2.Caption", R"("Quillane v1.20")");
    s.Is("click frmMDI.cmdSelectOption(0)", "error: disabled", "the window behind the box waits");
    s.Do({"click .lblCobrand", "click .lblHomePage", "click .cmdOK"});
    s.Is("forms", R"(["frmMDI"])");
    s.Is("opened", "[" + kFull + "," + kHome + "]", "the About box's co-brand link: full brand");
    s.Do({"click frmMDI.cmdSelectOption(0)", "click frmLearnAstrologyMain.mnuAbout"});
    s.Is("forms", R"(["frmMDI","frmLearnAstrologyMain","frmAbout"])");
    s.Run({});
}
