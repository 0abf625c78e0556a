// The launcher through the driver: opening and switching subjects, the
// welcome panel, hover, closing.
#include "DriveSession.h"

#include <gtest/gtest.h>

using namespace quillane::testing;

namespace {
std::vector<std::string> Launch(std::vector<std::string> commands,
                                std::vector<std::string> options = {}) {
    commands.insert(commands.begin(), "start");
    options.insert(options.end(), {"--today", "2026-04-01"});
    auto answers = Drive(options, commands);
    answers.erase(answers.begin());
    return answers;
}
} // namespace

TEST(Launcher, ShowsItsWelcomeAndButtons) {
    auto a = Launch({"get frmMDI.Caption", "get frmMDI.picMain.Visible",
                     "get frmMDI.lblCaption(0).Caption", "get frmMDI.lblCaption(5).Caption",
                     "get frmMDI.cmdSelectOption(3).Caption", "get frmMDI.cmdMdiExit.Caption",
                     "get frmMDI.mnuFile.Caption", "get frmMDI.mnuExit.Caption",
                     "get frmMDI.lblCaption(2).Caption"});
    EXPECT_EQ(a, (std::vector<std::string>{
                     R"("Quillane v1.20")", "true", R"("Welcome to Quillane")", R"("Learn Tarot")",
                     R"("Learn Runes")", R"("&Exit")", R"("&File")", R"("E&xit")",
                     R"("Quillane includes the following programs")"}));
}

TEST(Launcher, ButtonsAndLabelsOpenTheirSubjects) {
    const std::pair<std::string, std::string> cases[] = {
        {"cmdSelectOption(0)", "frmLearnAstrologyMain"},
        {"cmdSelectOption(1)", "frmLearnNumerologyMain"},
        {"cmdSelectOption(2)", "frmLearnTarotMain"},
        {"cmdSelectOption(3)", "frmLearnRunesMain"},
        {"lblCaption(3)", "frmLearnAstrologyMain"},
        {"lblCaption(4)", "frmLearnNumerologyMain"},
        {"lblCaption(5)", "frmLearnTarotMain"},
        {"lblCaption(6)", "frmLearnRunesMain"},
    };
    for (const auto& [control, window] : cases) {
        auto a = Launch({"click frmMDI." + control, "forms", "get frmMDI.picMain.Visible",
                         "get " + window + ".Top"});
        EXPECT_EQ(a[1], R"(["frmMDI",")" + window + R"("])") << control;
        EXPECT_EQ(a[2], "false") << control;
        EXPECT_EQ(a[3], "0") << control;
    }
}

TEST(Launcher, SwitchingSubjectsKeepsOneOpen) {
    auto a = Launch({"click frmMDI.cmdSelectOption(0)", "click frmMDI.cmdSelectOption(3)", "forms",
                     "get frmMDI.picMain.Visible", "click frmMDI.cmdSelectOption(3)", "forms",
                     "get frmLearnAstrologyMain.Loaded"});
    EXPECT_EQ(a[2], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_EQ(a[3], "false") << "the welcome panel does not come back";
    EXPECT_EQ(a[5], R"(["frmMDI","frmLearnRunesMain"])")
        << "pressing the open subject opens it afresh";
    EXPECT_EQ(a[6], "false");
}

TEST(Launcher, PressingTheOpenSubjectStartsItAfresh) {
    // A test half done is gone, with no question asked.
    auto a = Launch({"click frmMDI.cmdSelectOption(0)", "click frmLearnAstrologyMain.optOption(1)",
                     "click frmLearnAstrologyMain.cmdNext", "get frmLearnAstrologyMain.Frame3.InFront",
                     "click frmMDI.cmdSelectOption(0)", "get frmLearnAstrologyMain.Frame1.InFront",
                     "get frmLearnAstrologyMain.optOption(0).Value", "msgbox"});
    EXPECT_EQ(a[3], "true");
    EXPECT_EQ(a[5], "true");
    EXPECT_EQ(a[6], "true");
    EXPECT_EQ(a[7], "null");
}

TEST(Launcher, TheWelcomeTextsAreNotLinks) {
    auto a = Launch({"click frmMDI.lblCaption(0)", "click frmMDI.lblCaption(1)",
                     "click frmMDI.lblCaption(2)", "forms", "get frmMDI.picMain.Visible",
                     "click frmMDI.cmdSelectOption(1)", "click frmMDI.lblCaption(0)"});
    EXPECT_EQ(a[3], R"(["frmMDI"])");
    EXPECT_EQ(a[4], "true");
    EXPECT_EQ(a[6], "error: hidden") << "with a subject open the welcome panel is out of reach";
}

TEST(Launcher, HoverUnderlinesOnlyTheSubjectLabels) {
    auto a = Launch({"hover frmMDI.lblCaption(4)", "get frmMDI.lblCaption(4).FontUnderline",
                     "hover frmMDI.lblCaption(1)", "get frmMDI.lblCaption(1).FontUnderline",
                     "get frmMDI.lblCaption(4).FontUnderline", "hover frmMDI.picMain",
                     "get frmMDI.lblCaption(4).FontUnderline"});
    EXPECT_EQ(a[1], "true");
    EXPECT_EQ(a[3], "false");
    EXPECT_EQ(a[4], "true") << "passing over a welcome text takes no underline off";
    EXPECT_EQ(a[6], "false");
}

TEST(Launcher, ExitInASubjectReturnsToTheWelcome) {
    auto a = Launch({"click frmMDI.cmdSelectOption(1)", "click frmMDI.mnuExit",
                     "click frmLearnNumerologyMain.mnuExit", "forms", "get frmMDI.picMain.Visible",
                     "ended", "click frmMDI.cmdSelectOption(2)",
                     "click frmLearnTarotMain.cmdNav(1)", "forms", "get frmMDI.picMain.Visible"});
    EXPECT_EQ(a[1], "error: hidden")
        << "the launcher's menus are out of sight while a subject is active";
    EXPECT_EQ(a[3], R"(["frmMDI"])");
    EXPECT_EQ(a[4], "true");
    EXPECT_EQ(a[5], "false");
    EXPECT_EQ(a[8], R"(["frmMDI"])");
    EXPECT_EQ(a[9], "true");
}

TEST(Launcher, ClosingTheLauncherClosesTheSubjectFirstAndEnds) {
    for (const std::string how : {"close frmMDI", "click frmMDI.cmdMdiExit"}) {
        auto a = Launch({"click frmMDI.cmdSelectOption(0)", "close frmLearnAstrologyMain",
                         "click frmMDI.cmdSelectOption(3)", how, "ended", "forms",
                         "click frmMDI.cmdSelectOption(0)"});
        EXPECT_EQ(a[4], "true") << how;
        EXPECT_EQ(a[5], "[]") << how;
        EXPECT_EQ(a[6], "error: program ended") << how;
    }
}

TEST(Launcher, ASecondInstanceSaysSoAndEnds) {
    auto a = Launch({"msgbox", "ended", "forms"}, {"--other-instance"});
    EXPECT_EQ(a[0],
              R"({"text":"Application is already running","title":"Quillane","icon":"information",)"
              R"("buttons":"ok","answer":"ok"})");
    EXPECT_EQ(a[1], "true");
    EXPECT_EQ(a[2], "[]");
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
