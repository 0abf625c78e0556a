// Both rune tests through the driver, from the launcher to their reports: the
// wizard's steps, the checks of the ticks, the meaning dialog over the hidden
// window, and the total that an abandoned test leaves to the next one.
#include "RunesDrive.h"
#include "common/Json.h"

#include <gtest/gtest.h>

#include <regex>

namespace {

using namespace quillane::testing;
using quillane::Json;

Script KeywordTest(int level) {
    return Runes().Do(
        {"click .cmdSubjects(2)", "click .optTestSubjects(1)", "click .cmdTestNext(0)",
         "click .optTestLevel(" + std::to_string(level) + ")", "click .cmdTestNext(2)"});
}

Script& MeaningTest(Script& s, int level, const std::string& position) {
    return s.Do({"click .cmdSubjects(2)", "click .optTestSubjects(0)", "click .cmdTestNext(0)",
                 "click .chkTestType(" + position + ")", "click .cmdTestNext(1)",
                 "click .optTestLevel(" + std::to_string(level) + ")", "click .cmdTestNext(2)"});
}

// The report's total must be its rows' scores (question 24's never counts:
// TestReport's own layout is checked in process) and what was carried over.
void CheckTotal(const std::string& answer, int carried, const std::string& kind) {
    const auto json = Json::Parse(answer);
    ASSERT_TRUE(json && json->IsString()) << answer;
    const std::string text = json->AsString();
    static const std::regex score(R"((\d+) Correct Out of 1\r\n)");
    int total = carried, rows = 0;
    for (std::sregex_iterator m(text.begin(), text.end(), score), end; m != end; ++m, ++rows)
        total += std::stoi((*m)[1]);
    EXPECT_EQ(rows, 24);
    EXPECT_TRUE(text.ends_with("\r\n" + std::to_string(total) + " Correct Out Of  24 " + kind))
        << text;
}

// At Advanced, Next takes exactly four ticks. Each failed Next starts the
// count of ticks anew, and the fourth tick since moves the focus to Next: the
// keyword panel and the meaning dialog keep the rule each.
void ExactlyFourTicks(Script& s, const std::string& form, const std::string& box,
                      const std::string& next) {
    const auto tick = [&](int i) {
        s.Do("click " + form + "." + box + "(" + std::to_string(i) + ")");
    };
    const auto refused = [&] {
        s.Do("click " + form + "." + next);
        s.Has("msgbox", "You can select 4 options");
    };
    refused();
    for (int i = 0; i <= 4; ++i) {
        tick(i);
        if (i >= 3)
            s.Is("focus " + form, JsonQuote(box + "(" + std::to_string(i) + ")"),
                 "ticks before a failed Next do not count");
        if (i == 2 || i == 4)
            refused();
    }
    tick(4);
    s.Do("click " + form + "." + next);
    s.Is("msgbox", "null", "four ticks are taken");
    for (int i = 0; i <= 3; ++i)
        tick(i);
    s.Is("focus " + form, JsonQuote(next), "four ticks on the next question");
}

TEST(RuneKeywordTest, BeginnerFromTheWizardToTheReport) {
    Script s = Runes();
    s.Do({"click .cmdSubjects(2)", "click .cmdTestNext(0)"});
    s.Has("msgbox", "Please Select A Test Subject");
    s.Do({"click .optTestSubjects(1)", "click .cmdTestNext(0)"});
    s.Is("get .fraTestLevel.InFront", "true", "keywords skip the position step");
    s.Do("click .cmdTestBack(1)");
    s.Is("get .fraTestSubjects.InFront", "true", "and skip it going back");
    s.Do({"click .cmdTestNext(0)", "click .cmdTestNext(2)"});
    s.Has("msgbox", "Please Select A Test Level");
    s.Do({"click .optTestLevel(0)", "click .cmdTestNext(2)"});
    s.Is("get .picTestKeywords.InFront", "true");
    s.Do("click .cmdNextQuestion");
    s.Has("msgbox", "You must select 1 option");
    s.Do("click .chkKeywords(0)");
    s.Is("focus frmLearnRunesMain", "\"cmdNextQuestion\"", "the first tick moves the focus");
    s.Do("click .chkKeywords(1)");
    s.Is("focus frmLearnRunesMain", "\"chkKeywords(1)\"", "the second does not");
    s.Do("click .cmdNextQuestion");
    s.Has("msgbox", "You can select 1 option");
    s.Is("get modLearnRunesTest.intQuestionNumber", "1");
    s.Do("click .chkKeywords(1)");
    for (int q = 1; q <= 23; ++q) {
        if (q > 1)
            s.Do("click .chkKeywords(" + std::to_string(q % 5) + ")");
        s.Do("click .cmdNextQuestion");
    }
    s.Is("get .lblIndex.Caption", "\"Question 24\"");
    s.Do({"click .chkKeywords(0)", "click .chkKeywords(1)", "click .cmdNextQuestion"});
    s.Is("msgbox", "null", "question 24 is not checked");
    s.Is("get .picTestResult.InFront", "true");
    const std::size_t report = s.Ask("get .txtResult.Text");
    s.Is("get modLearnRunesTest.intTotalCorrect", "0", "the report clears the total");
    s.Is("get modLearnRunesTest.intQuestionNumber", "24");
    CheckTotal(RunesSession().Run(s, {"--seed", "4"})[report], 0, "Keywords");
}

TEST(RuneKeywordTest, AdvancedWantsExactlyFourTicks) {
    Script s = KeywordTest(1);
    ExactlyFourTicks(s, "frmLearnRunesMain", "chkKeywords", "cmdNextQuestion");
    RunesSession().Run(s, {"--seed", "9"});
}

TEST(RuneMeaningTest, AnAbandonedKeywordTestCarriesItsPointsOver) {
    // With this seed the first box of the first question is right.
    Script s = KeywordTest(0);
    s.Do({"click .chkKeywords(0)", "click .cmdNextQuestion"});
    s.Is("get modLearnRunesTest.intTotalCorrect", "1");
    MeaningTest(s, 0, "1");
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain","frmLearnRunesMeaningTest"])");
    s.Is("get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption", "\"Question 1\"");
    s.Is("click .cmdSubjects(0)", "error: hidden", "the Runes window is hidden");
    for (int q = 1; q <= 23; ++q)
        s.Do({"click frmLearnRunesMeaningTest.chkMeaning(" + std::to_string(q % 5) + ")",
              "click frmLearnRunesMeaningTest.cmdNextQuestion1"});
    s.Do("click frmLearnRunesMeaningTest.cmdNextQuestion1");
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain"])");
    s.Is("get .Visible", "true");
    s.Is("get .picTestResult.InFront", "true");
    const std::size_t report = s.Ask("get .txtResult.Text");
    s.Is("get frmMDI.picMain.Visible", "false", "a subject is open: the welcome panel stays away");
    // The abandoned test's point counts in the next one.
    CheckTotal(RunesSession().Run(s, {"--seed", "1"})[report], 1, "Descriptions");
}

TEST(RuneMeaningTest, AdvancedWantsExactlyFourTicksAndFlagsStaySet) {
    Script s = Runes();
    MeaningTest(s, 1, "0");
    const std::string d = "frmLearnRunesMeaningTest";
    ExactlyFourTicks(s, d, "chkMeaning", "cmdNextQuestion1");
    const std::size_t results = s.Ask("get modLearnRunesTest.strTestResult");
    // Closing the dialog in mid-test brings the window back, at the set-up.
    s.Do("close " + d);
    s.Is("get .fraTestLevel.InFront", "true");
    // A second test ticks only Merkstave: Upright stays set from the first.
    MeaningTest(s, 0, "2");
    s.Is("get modLearnRunesTest.blnStoneType", "[true,false,true,false]");
    const auto a = RunesSession().Run(s, {"--seed", "5"});
    const auto list = Json::Parse(a[results]);
    ASSERT_TRUE(list && list->IsArray());
    EXPECT_TRUE(
        std::regex_match(list->AsArray()[0].AsString(), std::regex(R"([0-4] Correct Out of 4)")));
}

} // namespace
