// The launcher through the driver: opening and switching subjects, the
// welcome panel, hover, closing, and a second instance.
#include "DriveSession.h"

#include <gtest/gtest.h>

using namespace quillane::testing;

namespace {

Script Launcher() {
    return Script("frmMDI", {"start"});
}
std::vector<std::string> Launch(const Script& s, std::vector<std::string> options = {}) {
    options.insert(options.end(), {"--today", "2026-04-01"});
    return s.Run(options);
}

TEST(Launcher, ButtonsAndLabelsOpenTheirSubjectsAndClosingOneBringsTheWelcomeBack) {
    const char* const windows[] = {"frmLearnAstrologyMain", "frmLearnNumerologyMain",
                                   "frmLearnTarotMain", "frmLearnRunesMain"};
    Script s = Launcher();
    for (int i = 0; i < 8; ++i) {
        const std::string window = windows[i % 4];
        s.Do(i < 4 ? "click .cmdSelectOption(" + std::to_string(i) + ")"
                   : "click .lblCaption(" + std::to_string(i - 1) + ")");
        s.Is("forms", R"(["frmMDI",")" + window + R"("])");
        s.Is("get .picMain.Visible", "false");
        s.Is("get " + window + ".Top", "0");
        s.Do("close " + window);
        s.Is("get .picMain.Visible", "true");
    }
    Launch(s);
}

TEST(Launcher, PressingOrSwitchingSubjectsStartsThemAfreshAndOnlyTheirLabelsAreLinks) {
    Script s = Launcher();
    s.Do({"click .cmdSelectOption(0)", "click frmLearnAstrologyMain.optOption(1)",
          "click frmLearnAstrologyMain.cmdNext"});
    s.Is("get frmLearnAstrologyMain.Frame3.InFront", "true");
    s.Do("click .cmdSelectOption(0)");
    s.Is("get frmLearnAstrologyMain.Frame1.InFront", "true", "a test half done is gone");
    s.Is("get frmLearnAstrologyMain.optOption(0).Value", "true");
    s.Do({"click .cmdSelectOption(3)", "click .cmdSelectOption(3)"});
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain"])");
    s.Is("get .picMain.Visible", "false", "the welcome panel does not come back");
    s.Is("get frmLearnAstrologyMain.Loaded", "false");
    s.Is("msgbox", "null");

    // Only the subjects' labels are links, and they underline under the mouse.
    s.Do({"close frmLearnRunesMain", "click .lblCaption(0)", "click .lblCaption(1)",
          "click .lblCaption(2)"});
    s.Is("forms", R"(["frmMDI"])");
    s.Do("hover .lblCaption(4)");
    s.Is("get .lblCaption(4).FontUnderline", "true");
    s.Do("hover .lblCaption(1)");
    s.Is("get .lblCaption(1).FontUnderline", "false");
    s.Is("get .lblCaption(4).FontUnderline", "true", "a welcome text takes no underline off");
    s.Do("hover .picMain");
    s.Is("get .lblCaption(4).FontUnderline", "false");
    s.Do("click .cmdSelectOption(1)");
    s.Is("click .lblCaption(0)", "error: hidden",
         "with a subject open the welcome is out of reach");
    Launch(s);
}

TEST(Launcher, ClosingTheLauncherClosesTheSubjectFirstAndEnds) {
    for (const std::string how : {"close frmMDI", "click frmMDI.cmdMdiExit"}) {
        Script s = Launcher();
        s.Do({"click .cmdSelectOption(0)", "close frmLearnAstrologyMain",
              "click .cmdSelectOption(3)", how});
        s.Is("ended", "true", how.c_str());
        s.Is("forms", "[]");
        s.Is("click .cmdSelectOption(0)", "error: program ended");
        Launch(s);
    }
}

TEST(Launcher, ASecondInstanceSaysSoAndEnds) {
    Script s = Launcher();
    s.Is("msgbox", R"({"text":"Application is already running","title":"Quillane",)"
                   R"("icon":"information","buttons":"ok","answer":"ok"})");
    s.Is("ended", "true");
    s.Is("forms", "[]");
    Launch(s, {"--other-instance"});
}

TEST(Driver, AnswersEveryLineAndRefusesWhatCannotBeDone) {
    auto a =
        Drive({}, {"# a comment", "", "click frmMDI.cmdSelectOption(0)", "start",
                   "get frmNothing.x.Caption", "get frmMDI.cmdSelectOption(9).Caption",
                   "get frmMDI.picMain.Nothing", "frobnicate", "set frmMDI.cmdMdiExit.Text \"a",
                   "get frmLearnRunesMain.Loaded", "today 2026-13-01"});
    EXPECT_EQ(a.size(), 9u) << "blank lines and comments get no answer";
    EXPECT_EQ(a[0], "error: hidden");
    EXPECT_EQ(a[1], "ok");
    for (int i : {2, 3, 4, 5, 6, 8})
        EXPECT_EQ(a[i].rfind("error: ", 0), 0u) << i << ": " << a[i];
    EXPECT_EQ(a[7], "false");
}

} // namespace
