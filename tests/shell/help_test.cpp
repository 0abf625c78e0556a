// The Help menu, the link labels and the About box in every window.
#include "DriveSession.h"

#include <gtest/gtest.h>

using namespace quillane::testing;

namespace {
const std::string kHelp = R"("https://quillane.zenthora.net/quillane-help.html")";
const std::string kHome = R"("https://www.zenthora.net/")";
const std::string kFull = R"("https://www.zenthora.net/fully-branded.html")";
const std::string kCoBrand = R"("https://www.zenthora.net/co-brand.html")";

// Each window: the command that opens it, and its label that links to the forum.
const struct {
    const char *form, *open, *forum;
} kWindows[] = {
    {"frmMDI", "", "lblZenthoraBanner"},
    {"frmLearnAstrologyMain", "click frmMDI.cmdSelectOption(0)", "Label61"},
    {"frmLearnNumerologyMain", "click frmMDI.cmdSelectOption(1)", "Label14"},
    {"frmLearnTarotMain", "click frmMDI.cmdSelectOption(2)", "Label6"},
    {"frmLearnRunesMain", "click frmMDI.cmdSelectOption(3)", "Label14"},
};
} // namespace

TEST(Help, EveryWindowCarriesTheSameHelpMenu) {
    for (const auto& w : kWindows) {
        Script s(w.form, {"start"});
        if (*w.open)
            s.Do(w.open);
        for (const auto& [item, caption] : {std::pair{"mnuHelp", "&Help"},
                                            {"mnuOnline", "&Online Help"},
                                            {"mnuVisit", "&Visit Us Online"},
                                            {"mnuAbout", "&About Software"}})
            s.Is(std::string("get .") + item + ".Caption", '"' + std::string(caption) + '"',
                 w.form);
        s.Do({"click .mnuOnline", "click .mnuVisit", std::string("click .") + w.forum});
        s.Is("opened", "[" + kHelp + "," + kHome + "," + kHome + "]", w.form);
        s.Run({"--today", "2026-04-01"});
    }
}

TEST(Help, BrandLinksOpenTheirPagesAndTheAboutBoxIsModal) {
    Script s("frmAbout", {"start"});
    s.Do({"click frmMDI.mkmoney", "click frmMDI.Label7", "click frmMDI.Picture6",
          "click frmMDI.mnuAbout"});
    s.Is("get .Caption", R"("Quillane v1.20")");
    s.Is("get .Label2.Caption", R"("Quillane v1.20")");
    s.Is("click frmMDI.cmdSelectOption(0)", "error: disabled", "the window behind the box waits");
    s.Do({"click .lblCobrand", "click .lblHomePage", "click .cmdOK"});
    s.Is("forms", R"(["frmMDI"])");
    s.Do({"click frmMDI.cmdSelectOption(1)", "click frmLearnNumerologyMain.lblCobrand",
          "click frmLearnNumerologyMain.lblFullBrand", "click frmLearnNumerologyMain.mnuMakeMoney",
          "click frmMDI.cmdSelectOption(3)"});
    s.Is("click frmLearnRunesMain.mnuMakeMoney", "error: hidden", "the Runes hide Make Money");
    s.Is("get frmLearnRunesMain.mnuCalculate.Visible", "false");
    // The About box's co-brand link leads to the full brand.
    s.Is("opened", "[" + kFull + "," + kFull + "," + kHome + "," + kFull + "," + kHome + "," +
                       kCoBrand + "," + kFull + "," + kFull + "]");
    s.Do({"click frmMDI.cmdSelectOption(0)", "click frmLearnAstrologyMain.mnuAbout"});
    s.Is("forms", R"(["frmMDI","frmLearnAstrologyMain","frmAbout"])");
    s.Run({});
}
