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
        std::vector<std::string> script{"start"};
        if (!w.open.empty())
            script.push_back(w.open);
        const std::string f = w.form + ".";
        for (const std::string c : {"mnuHelp", "mnuOnline", "mnuVisit", "mnuUpdate", "mnuAbout"})
            script.push_back("get " + f + c + ".Caption");
        script.insert(script.end(),
                      {"get " + f + w.sep1 + ".Caption", "get " + f + w.sep2 + ".Caption",
                       "get " + f + w.money + ".Caption", "click " + f + "mnuOnline",
                       "click " + f + "mnuVisit", "click " + f + w.forum, "opened"});
        auto a = Drive({"--today", "2026-04-01"}, script);
        const std::size_t k = w.open.empty() ? 1 : 2;
        ASSERT_EQ(a.size(), k + 12) << w.form;
        EXPECT_EQ(a[k], R"("&Help")") << w.form;
        EXPECT_EQ(a[k + 1], R"("&Online Help")");
        EXPECT_EQ(a[k + 2], R"("&Visit Us Online")");
        EXPECT_EQ(a[k + 3], "\"" + w.update + "\"") << w.form;
        EXPECT_EQ(a[k + 4], R"("&About Software")");
        EXPECT_EQ(a[k + 5], R"("-")");
        EXPECT_EQ(a[k + 6], R"("-")");
        EXPECT_EQ(a[k + 7], R"("Make Money &Online")");
        EXPECT_EQ(a[k + 11], "[" + kHelp + "," + kHome + "," + kHome + "]") << w.form;
    }
}

TEST(Help, MakeMoneyAndBrandLinksOpenTheirPages) {
    auto a =
        Drive({}, {"start", "click frmMDI.mkmoney", "click frmMDI.Label7", "click frmMDI.Picture6",
                   "click frmMDI.cmdSelectOption(1)", "click frmLearnNumerologyMain.lblCobrand",
                   "click frmLearnNumerologyMain.lblFullBrand",
                   "click frmLearnNumerologyMain.mnuMakeMoney", "click frmMDI.cmdSelectOption(3)",
                   "click frmLearnRunesMain.mnuMakeMoney",
                   "get frmLearnRunesMain.mnuCalculate.Visible", "opened"});
    EXPECT_EQ(a[9], "error: hidden") << "the Runes window hides its Make Money entry";
    EXPECT_EQ(a[10], "false");
    EXPECT_EQ(a[11], "[" + kFull + "," + kFull + "," + kHome + "," + kCoBrand + "," + kFull + "," +
                         kFull + "]");
}

TEST(Help, TheAboutBoxIsModalAndItsLinksOpenTheirPages) {
    auto a = Drive({}, {"start", "click frmMDI.mnuAbout", "get frmAbout.Caption",
                        "get frmAbout.Label2.Caption", "get frmAbout.cmdOK.Caption",
                        "click frmMDI.cmdSelectOption(0)", "click frmAbout.lblCobrand",
                        "click frmAbout.lblHomePage", "click frmAbout.cmdOK", "forms", "opened",
                        "click frmMDI.cmdSelectOption(0)", "click frmLearnAstrologyMain.mnuAbout",
                        "forms"});
    EXPECT_EQ(a[2], R"("Quillane v1.20")");
    EXPECT_EQ(a[3], R"("Quillane v1.20")");
    EXPECT_EQ(a[4], R"("&OK")");
    EXPECT_EQ(a[5], "error: disabled") << "the window behind the box waits";
    EXPECT_EQ(a[9], R"(["frmMDI"])");
    EXPECT_EQ(a[10], "[" + kFull + "," + kHome + "]")
        << "lblCobrand of the About box opens the full-brand page";
    EXPECT_EQ(a[13], R"(["frmMDI","frmLearnAstrologyMain","frmAbout"])");
}
