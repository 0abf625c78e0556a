// The learning flow of the Numerology window: the way through the panels,
// the captions each step sets, the study walks and their messages.
#include "NumerologyFixture.h"

using quillane::testing::NumerologyWindow;
namespace num = quillane::modLearnNumerology;

namespace {

using NumerologyFlow = NumerologyWindow;

// The study text of a subject by significance, as the panel must show it.
std::string SignificanceText(int s) {
    return "Significance\r\n" + num::strSignificance[std::size_t(s)] + "\r\n\r\nCalculation\r\n" +
           num::strCalculation[std::size_t(s)];
}

} // namespace

TEST_F(NumerologyFlow, GoingOnWithoutAChoiceGivesOneMessageAndChangesNothing) {
    num::blnSubjectSelected[3] = -1;
    ASSERT_TRUE(Click("cmdNext"));
    EXPECT_EQ(Message(), "Please select an option");
    EXPECT_EQ(FrontPanel(), 0);
    ClickAll({"optMain(0)", "cmdNext", "cmdNext2"});
    EXPECT_EQ(Message(), "Please select an option");
    EXPECT_EQ(FrontPanel(), 1);
    ClickAll({"optOption(1)", "cmdNext2", "cmdNext3"});
    EXPECT_EQ(Message(), "Please select at least one option");
    EXPECT_EQ(FrontPanel(), 3);
    EXPECT_EQ(num::blnSubjectSelected[3], -1);
    Open(&printer);
    StartSignificanceTest();
    ASSERT_TRUE(Click("cmdNextQuestion"));
    EXPECT_EQ(Message(), "Please select an option");
    EXPECT_EQ(num::intCurrent, 0);
    EXPECT_EQ(Message(), "") << "one box each time";
}

// Back from the options clears every choice; back to the start from a study
// keeps them (the interpretation study below goes back that way).
TEST_F(NumerologyFlow, BackFromOptionsClearsEveryChoice) {
    ClickAll({"optMain(0)", "cmdNext", "optOption(0)", "cmdBack2"});
    EXPECT_EQ(FrontPanel(), 0);
    for (const char* o : {"optMain(0)", "optMain(1)", "optOption(0)", "optOption(1)"})
        EXPECT_FALSE(C(o).Selected()) << o;
}

TEST_F(NumerologyFlow, StudyBySignificanceWalksAllSubjectsAndStopsAtBothEnds) {
    ClickAll({"optMain(0)", "cmdNext", "optOption(0)", "cmdNext2"});
    EXPECT_EQ(C("RTBLearn").Text(), SignificanceText(0));
    EXPECT_TRUE(C("RTBLearn").BoldText().empty()) << "the study text is plain";
    ASSERT_TRUE(Click("cmdBackLearn"));
    EXPECT_EQ(Message(), "You are at the first record");
    EXPECT_EQ(num::intCurrent, 0);
    for (int s = 1; s <= 14; ++s) {
        ASSERT_TRUE(Click("cmdNextLearn"));
        EXPECT_EQ(num::intCurrent, s);
        EXPECT_EQ(C("RTBLearn").Text(), SignificanceText(s));
    }
    EXPECT_EQ(Message(), "");
    ASSERT_TRUE(Click("cmdNextLearn"));
    EXPECT_EQ(Message(), "You are at the last record");
    EXPECT_EQ(num::intCurrent, 14);
    EXPECT_EQ(C("lblLearnSubject").Caption(), "Personal Year Number");
}

// The study by interpretation visits the ticked subjects alone; a single one
// at either end of the table shows again, silently.
TEST_F(NumerologyFlow, StudyByInterpretationVisitsOnlyTheTickedSubjects) {
    ClickAll({"optMain(0)", "cmdNext", "optOption(1)", "cmdNext2", "chkSubject(5)", "chkSubject(2)",
              "cmdNext3"});
    EXPECT_EQ(FrontPanel(), 2);
    EXPECT_EQ(num::intCurrent, 2);
    for (int i = 0; i <= 14; ++i)
        EXPECT_EQ(C("chkSubject(" + std::to_string(i) + ")").Value(), 0) << "boxes are cleared";
    ASSERT_TRUE(Click("cmdNextLearn"));
    EXPECT_EQ(num::intCurrent, 5);
    EXPECT_EQ(Message(), "");
    ASSERT_TRUE(Click("cmdNextLearn"));
    EXPECT_EQ(Message(), "You are at the last record");
    EXPECT_EQ(num::intCurrent, 5);
    ClickAll({"cmdBackLearn", "cmdBackLearn"});
    EXPECT_EQ(Message(), "You are at the first record");
    EXPECT_EQ(num::intCurrent, 2);
    EXPECT_EQ(C("lblLearnSubject").Caption(), "Soul's Urge/ Heart's Desire Number");
    // Back to the start, the choices made still count: the subjects again.
    for (const auto& [subject, button] : {std::pair{14, "cmdNextLearn"}, {0, "cmdBackLearn"}}) {
        ClickAll({"cmdBackToMain", "cmdNext", "cmdNext2",
                  "chkSubject(" + std::to_string(subject) + ")", "cmdNext3"});
        const std::string shown = C("RTBLearn").Text();
        C("RTBLearn").SetText("");
        ASSERT_TRUE(Click(button));
        EXPECT_EQ(Message(), "") << button;
        EXPECT_EQ(num::intCurrent, subject);
        EXPECT_EQ(C("RTBLearn").Text(), shown);
    }
}

TEST_F(NumerologyFlow, BirthdayStudyShowsItsThirtyOneHeadedParagraphs) {
    ClickAll({"optMain(0)", "cmdNext", "optOption(1)", "cmdNext2", "chkSubject(4)", "cmdNext3"});
    std::string expected;
    for (int row = 44; row <= 74; ++row)
        expected += "Birthday Number " + std::to_string(row - 43) + "\r\n" +
                    num::strInterpretation[std::size_t(row)] + "\r\n\r\n";
    EXPECT_EQ(C("RTBLearn").Text(), expected);
    EXPECT_EQ(C("RTBLearn").SelStart(), 0) << "the reader starts at the top";
}

// A window opens on the start panel with nothing chosen, also over the state
// that a closed one leaves in the module.
TEST_F(NumerologyFlow, ANewWindowStartsCleanAndClosingKeepsTheModuleState) {
    for (int i = 0; i <= 14; ++i)
        EXPECT_EQ(C("chkSubject(" + std::to_string(i) + ")").Caption(),
                  num::strSubject[std::size_t(i)]);
    EXPECT_FALSE(Click("RTB1")) << "the print copy is never shown";
    ClickAll({"optMain(0)", "cmdNext", "optOption(0)", "cmdNext2", "cmdNextLearn"});
    CloseWindow();
    EXPECT_EQ(num::intCurrent, 1);
    EXPECT_EQ(num::blnLearnMode, -1);
    OpenWindow();
    EXPECT_EQ(FrontPanel(), 0);
    EXPECT_FALSE(C("optMain(0)").Selected() || C("optMain(1)").Selected());
}
