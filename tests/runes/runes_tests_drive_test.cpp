// Both rune tests through the driver, from the launcher to their reports: the
// wizard's steps, the checks of the ticks, the meaning dialog over the hidden
// window, and the total that an abandoned test leaves to the next one.
#include "RunesDrive.h"
#include "common/Json.h"

#include <gtest/gtest.h>

#include <numeric>
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

// Checks the report's rows and rule and answers its total, which must be the
// rows' scores (question 24's never counts) and what was carried over.
void CheckReport(const std::string& answer, int outOf, int carried, const std::string& kind) {
    const auto json = Json::Parse(answer);
    ASSERT_TRUE(json && json->IsString()) << answer;
    const std::string text = json->AsString();
    static const std::regex row(R"((\d\d)\. {10}([A-Za-z]+) +(\d+) Correct Out of (\d)\r\n)");
    int total = carried;
    std::size_t start = 0;
    for (int i = 1; i <= 24; ++i) {
        std::smatch m;
        const std::string line = text.substr(start, text.find("\r\n", start) + 2 - start);
        ASSERT_TRUE(std::regex_match(line, m, row)) << line;
        EXPECT_EQ(std::stoi(m[1]), i);
        EXPECT_EQ(m[2].length() + (line.size() - 15 - m[2].length() - 18), 30u) << line;
        EXPECT_EQ(std::stoi(m[4]), outOf);
        EXPECT_TRUE(i < 24 || m[3] == "0") << "question 24 is not checked";
        total += std::stoi(m[3]);
        start += line.size();
    }
    EXPECT_EQ(text.substr(start), std::string(99, '-') + "\r\n" + std::to_string(total) +
                                      " Correct Out Of  24 " + kind);
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
    s.Is("get .lblIndex.Caption", "\"Question 1\"");
    s.Is("get .chkKeywords(5).Visible", "false");
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
    CheckReport(RunesSession().Run(s, {"--seed", "4"})[report], 1, 0, "Keywords");
}

TEST(RuneKeywordTest, AdvancedWantsExactlyFourTicks) {
    Script s = KeywordTest(1);
    s.Is("get .lblCaption.Caption", "\"You must choose 4 options\"");
    s.Do("click .cmdNextQuestion");
    s.Has("msgbox", "You can select 4 options");
    for (int i = 0; i < 5; ++i) {
        s.Do("click .chkKeywords(" + std::to_string(i) + ")");
        // Each failed Next starts the count anew: one tick since, no move.
        if (i == 3)
            s.Is("focus frmLearnRunesMain", "\"chkKeywords(3)\"");
        s.Do("click .cmdNextQuestion");
        if (i == 3)
            s.Is("msgbox", "null", "four ticks are taken");
        else
            s.Has("msgbox", "You can select 4 options");
    }
    s.Is("get .lblIndex.Caption", "\"Question 2\"");
    // Four ticks in a row after the last press move the focus at the fourth.
    s.Do("click .chkKeywords(4)");
    s.Do({"click .chkKeywords(0)", "click .chkKeywords(1)", "click .chkKeywords(2)"});
    s.Is("focus frmLearnRunesMain", "\"chkKeywords(2)\"");
    s.Do("click .chkKeywords(3)");
    s.Is("focus frmLearnRunesMain", "\"cmdNextQuestion\"");
    RunesSession().Run(s, {"--seed", "9"});
}

TEST(RuneMeaningTest, AnAbandonedKeywordTestCarriesItsPointsOver) {
    // The right box of the first question, from a first run of the same seed.
    Script peek = KeywordTest(0);
    const std::size_t right = peek.Ask("get modLearnRunesTest.strCorrectKeyword");
    for (int i = 0; i < 5; ++i)
        peek.Ask("get .chkKeywords(" + std::to_string(i) + ").Caption");
    const auto p = RunesSession().Run(peek, {"--seed", "21"});
    const auto keyword = Json::Parse(p[right]);
    ASSERT_TRUE(keyword && keyword->IsArray());
    int box = 0;
    while (box < 5 && p[right + 1 + std::size_t(box)] != keyword->AsArray()[0].Dump())
        ++box;
    ASSERT_LT(box, 5);

    Script s = KeywordTest(0);
    s.Do({"click .chkKeywords(" + std::to_string(box) + ")", "click .cmdNextQuestion"});
    s.Is("get modLearnRunesTest.intTotalCorrect", "1");
    MeaningTest(s, 0, "1");
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain","frmLearnRunesMeaningTest"])");
    s.Is("get .Visible", "false", "the Runes window is hidden");
    s.Is("get frmMDI.picMain.Visible", "false");
    s.Is("get frmLearnRunesMeaningTest.Caption", "\"Quillane Learn Runes\"");
    s.Is("get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption", "\"Question 1\"");
    s.Is("click .cmdSubjects(0)", "error: hidden");
    s.Is("get modLearnRunesTest.blnStoneType", "[false,true,false,false]");
    for (int q = 1; q <= 23; ++q)
        s.Do({"click frmLearnRunesMeaningTest.chkMeaning(" + std::to_string(q % 5) + ")",
              "click frmLearnRunesMeaningTest.cmdNextQuestion1"});
    s.Is("get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption", "\"Question 24\"");
    s.Do("click frmLearnRunesMeaningTest.cmdNextQuestion1");
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain"])");
    s.Is("get .Visible", "true");
    s.Is("get .picTestResult.InFront", "true");
    const std::size_t report = s.Ask("get .txtResult.Text");
    s.Is("get modLearnRunesTest.intTotalCorrect", "0");
    s.Is("get frmMDI.picMain.Visible", "false", "a subject is open: the welcome panel stays away");
    // The abandoned test's point counts in the next one.
    CheckReport(RunesSession().Run(s, {"--seed", "21"})[report], 1, 1, "Descriptions");
}

TEST(RuneMeaningTest, AdvancedChecksAndFlagsThatStaySet) {
    Script s = Runes();
    MeaningTest(s, 1, "0");
    const std::string d = "frmLearnRunesMeaningTest";
    s.Is("get " + d + ".lblMeaningTestCaption.Caption", "\"You must choose 4 options\"");
    s.Is("get " + d + ".chkMeaning(7).Visible", "true");
    s.Is("get " + d + ".shaMeaning(7).Visible", "true");
    s.Do({"click " + d + ".chkMeaning(0)", "click " + d + ".chkMeaning(1)",
          "click " + d + ".chkMeaning(2)", "click " + d + ".cmdNextQuestion1"});
    s.Has("msgbox", "You can select 4 options");
    s.Do("click " + d + ".chkMeaning(3)");
    s.Is("focus " + d, "\"chkMeaning(3)\"", "ticks before a failed Next do not count");
    s.Do("click " + d + ".chkMeaning(4)");
    s.Is("focus " + d, "\"chkMeaning(4)\"");
    s.Is("get " + d + ".intMeaningTicks", "2");
    s.Do({"click " + d + ".chkMeaning(4)", "click " + d + ".cmdNextQuestion1"});
    s.Is("msgbox", "null");
    const std::size_t results = s.Ask("get modLearnRunesTest.strTestResult");
    s.Is("get " + d + ".lblMeaningTestQuestion.Caption", "\"Question 2\"");
    // Closing the dialog in mid-test brings the window back.
    s.Do("close " + d);
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain"])");
    s.Is("get .Visible", "true");
    s.Is("get .fraTestLevel.InFront", "true");
    s.Is("get frmMDI.picMain.Visible", "false");
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
