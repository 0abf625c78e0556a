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

const std::vector<std::string> kKeywordBeginner = {
    "click frmLearnRunesMain.cmdSubjects(2)", "click frmLearnRunesMain.optTestSubjects(1)",
    "click frmLearnRunesMain.cmdTestNext(0)", "click frmLearnRunesMain.optTestLevel(0)",
    "click frmLearnRunesMain.cmdTestNext(2)"};

std::vector<std::string> MeaningSetUp(int level, const std::string& position) {
    return {"click frmLearnRunesMain.cmdSubjects(2)",
            "click frmLearnRunesMain.optTestSubjects(0)",
            "click frmLearnRunesMain.cmdTestNext(0)",
            "click frmLearnRunesMain.chkTestType(" + position + ")",
            "click frmLearnRunesMain.cmdTestNext(1)",
            "click frmLearnRunesMain.optTestLevel(" + std::to_string(level) + ")",
            "click frmLearnRunesMain.cmdTestNext(2)"};
}

std::string Text(const std::string& answer) {
    auto json = Json::Parse(answer);
    return json && json->IsString() ? json->AsString() : "";
}

struct Report {
    std::vector<int> scores;
    int total = -1;
    std::string tail;
};

// Checks the rows' layout and reads their scores and the total.
Report ReadReport(const std::string& text, int outOf) {
    Report r;
    static const std::regex row(R"((\d\d)\. {10}([A-Za-z]+) +(\d+) Correct Out of (\d))");
    std::size_t start = 0;
    for (int i = 0; i < 24; ++i) {
        const std::size_t end = text.find("\r\n", start);
        if (end == std::string::npos)
            return r;
        const std::string line = text.substr(start, end - start);
        std::smatch m;
        EXPECT_TRUE(std::regex_match(line, m, row)) << line;
        if (!m.empty()) {
            EXPECT_EQ(std::stoi(m[1]), i + 1);
            EXPECT_EQ(m[2].length() + (line.size() - 13 - m[2].length() - 18), 30u) << line;
            EXPECT_EQ(std::stoi(m[4]), outOf);
            r.scores.push_back(std::stoi(m[3]));
        }
        start = end + 2;
    }
    EXPECT_EQ(text.substr(start, 101), std::string(99, '-') + "\r\n");
    r.tail = text.substr(start + 101);
    r.total = std::atoi(r.tail.c_str());
    return r;
}

TEST(RuneKeywordTest, BeginnerFromTheWizardToTheReport) {
    std::vector<std::string> c{"click frmLearnRunesMain.cmdSubjects(2)",
                               "click frmLearnRunesMain.cmdTestNext(0)",
                               "msgbox",
                               "click frmLearnRunesMain.optTestSubjects(1)",
                               "click frmLearnRunesMain.cmdTestNext(0)",
                               "get frmLearnRunesMain.fraTestLevel.InFront",
                               "click frmLearnRunesMain.cmdTestBack(1)",
                               "get frmLearnRunesMain.fraTestSubjects.InFront",
                               "click frmLearnRunesMain.cmdTestNext(0)",
                               "click frmLearnRunesMain.cmdTestNext(2)",
                               "msgbox",
                               "click frmLearnRunesMain.optTestLevel(0)",
                               "click frmLearnRunesMain.cmdTestNext(2)",
                               "get frmLearnRunesMain.picTestKeywords.InFront",
                               "get frmLearnRunesMain.lblIndex.Caption",
                               "get frmLearnRunesMain.chkKeywords(5).Visible",
                               "click frmLearnRunesMain.cmdNextQuestion",
                               "msgbox",
                               "click frmLearnRunesMain.chkKeywords(0)",
                               "focus frmLearnRunesMain",
                               "click frmLearnRunesMain.chkKeywords(1)",
                               "focus frmLearnRunesMain",
                               "click frmLearnRunesMain.cmdNextQuestion",
                               "msgbox",
                               "get modLearnRunesTest.intQuestionNumber",
                               "click frmLearnRunesMain.chkKeywords(1)"};
    const std::size_t loop = c.size();
    for (int q = 1; q <= 23; ++q) {
        if (q > 1)
            c.push_back("click frmLearnRunesMain.chkKeywords(" + std::to_string(q % 5) + ")");
        c.push_back("click frmLearnRunesMain.cmdNextQuestion");
    }
    c.insert(c.end(),
             {"get frmLearnRunesMain.lblIndex.Caption", "click frmLearnRunesMain.chkKeywords(0)",
              "click frmLearnRunesMain.chkKeywords(1)", "click frmLearnRunesMain.cmdNextQuestion",
              "msgbox", "get frmLearnRunesMain.picTestResult.InFront",
              "get frmLearnRunesMain.txtResult.Text", "get modLearnRunesTest.intTotalCorrect",
              "get modLearnRunesTest.intQuestionNumber"});
    const auto a = RunesSession().Run(c, {"--seed", "4"});
    EXPECT_NE(a[2].find("Please Select A Test Subject"), std::string::npos);
    EXPECT_EQ(a[5], "true") << "keywords skip the position step";
    EXPECT_EQ(a[7], "true") << "and skip it going back";
    EXPECT_NE(a[10].find("Please Select A Test Level"), std::string::npos);
    EXPECT_EQ(a[13], "true");
    EXPECT_EQ(a[14], "\"Question 1\"");
    EXPECT_EQ(a[15], "false");
    EXPECT_NE(a[17].find("You must select 1 option"), std::string::npos);
    EXPECT_EQ(a[19], "\"cmdNextQuestion\"") << "the first tick moves the focus";
    EXPECT_EQ(a[21], "\"chkKeywords(1)\"") << "the second does not";
    EXPECT_NE(a[23].find("You can select 1 option"), std::string::npos);
    EXPECT_EQ(a[24], "1");
    const std::size_t end = loop + 1 + 22 * 2;
    EXPECT_EQ(a[end], "\"Question 24\"");
    EXPECT_EQ(a[end + 4], "null") << "question 24 is not checked";
    EXPECT_EQ(a[end + 5], "true");
    const Report r = ReadReport(Text(a[end + 6]), 1);
    ASSERT_EQ(r.scores.size(), 24u);
    EXPECT_EQ(r.scores[23], 0);
    EXPECT_EQ(r.total, std::accumulate(r.scores.begin(), r.scores.end(), 0));
    EXPECT_EQ(r.tail, std::to_string(r.total) + " Correct Out Of  24 Keywords");
    EXPECT_EQ(a[end + 7], "0") << "the report clears the total";
    EXPECT_EQ(a[end + 8], "24");
}

TEST(RuneKeywordTest, AdvancedWantsExactlyFourTicks) {
    std::vector<std::string> c = kKeywordBeginner;
    c[3] = "click frmLearnRunesMain.optTestLevel(1)";
    const std::size_t base = c.size();
    c.insert(c.end(), {"get frmLearnRunesMain.lblCaption.Caption",
                       "click frmLearnRunesMain.cmdNextQuestion", "msgbox"});
    for (int i = 0; i < 5; ++i) {
        c.push_back("click frmLearnRunesMain.chkKeywords(" + std::to_string(i) + ")");
        c.push_back("focus frmLearnRunesMain");
        c.push_back("click frmLearnRunesMain.cmdNextQuestion");
        c.push_back("msgbox");
    }
    c.push_back("get frmLearnRunesMain.lblIndex.Caption");
    // Four ticks in a row after the last press move the focus at the fourth.
    c.push_back("click frmLearnRunesMain.chkKeywords(4)");
    for (int i = 0; i < 4; ++i) {
        c.push_back("click frmLearnRunesMain.chkKeywords(" + std::to_string(i) + ")");
        c.push_back("focus frmLearnRunesMain");
    }
    const auto a = RunesSession().Run(c, {"--seed", "9"});
    EXPECT_EQ(a[base], "\"You must choose 4 options\"");
    EXPECT_NE(a[base + 2].find("You can select 4 options"), std::string::npos);
    for (int i = 0; i < 5; ++i) {
        const std::size_t k = base + 3 + std::size_t(i) * 4;
        if (i == 3) {
            // Each failed Next starts the count anew: one tick since, no move.
            EXPECT_EQ(a[k + 1], "\"chkKeywords(3)\"");
            EXPECT_EQ(a[k + 3], "null") << "four ticks are taken";
        } else {
            EXPECT_NE(a[k + 3].find("You can select 4 options"), std::string::npos) << i;
        }
    }
    EXPECT_EQ(a[a.size() - 10], "\"Question 2\"");
    EXPECT_EQ(a[a.size() - 3], "\"chkKeywords(2)\"");
    EXPECT_EQ(a.back(), "\"cmdNextQuestion\"");
}

// The right box of the first keyword question, found by a first run of the
// same seed.
int RightBox(const std::vector<std::string>& setUp, const std::string& seed) {
    auto c = setUp;
    c.push_back("get modLearnRunesTest.strCorrectKeyword");
    for (int i = 0; i < 5; ++i)
        c.push_back("get frmLearnRunesMain.chkKeywords(" + std::to_string(i) + ").Caption");
    const auto a = RunesSession().Run(c, {"--seed", seed});
    auto right = Json::Parse(a[setUp.size()]);
    if (!right || !right->IsArray())
        return -1;
    for (int i = 0; i < 5; ++i)
        if (Text(a[setUp.size() + 1 + std::size_t(i)]) == right->AsArray()[0].AsString())
            return i;
    return -1;
}

TEST(RuneMeaningTest, AnAbandonedKeywordTestCarriesItsPointsOver) {
    const int box = RightBox(kKeywordBeginner, "21");
    ASSERT_GE(box, 0);
    std::vector<std::string> c = kKeywordBeginner;
    c.insert(c.end(),
             {"click frmLearnRunesMain.chkKeywords(" + std::to_string(box) + ")",
              "click frmLearnRunesMain.cmdNextQuestion", "get modLearnRunesTest.intTotalCorrect"});
    const std::size_t setUp = c.size();
    for (const auto& s : MeaningSetUp(0, "1"))
        c.push_back(s);
    c.insert(c.end(),
             {"forms", "get frmLearnRunesMain.Visible", "get frmMDI.picMain.Visible",
              "get frmLearnRunesMeaningTest.Caption",
              "get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption",
              "click frmLearnRunesMain.cmdSubjects(0)", "get modLearnRunesTest.blnStoneType"});
    const std::size_t loop = c.size();
    for (int q = 1; q <= 23; ++q) {
        c.push_back("click frmLearnRunesMeaningTest.chkMeaning(" + std::to_string(q % 5) + ")");
        c.push_back("click frmLearnRunesMeaningTest.cmdNextQuestion1");
    }
    c.insert(c.end(),
             {"get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption",
              "click frmLearnRunesMeaningTest.cmdNextQuestion1", "forms",
              "get frmLearnRunesMain.Visible", "get frmLearnRunesMain.picTestResult.InFront",
              "get frmLearnRunesMain.txtResult.Text", "get modLearnRunesTest.intTotalCorrect",
              "get frmMDI.picMain.Visible"});
    const auto a = RunesSession().Run(c, {"--seed", "21"});
    const int carried = std::atoi(a[setUp - 1].c_str());
    EXPECT_GE(carried, 1);
    const std::size_t k = setUp + MeaningSetUp(0, "1").size();
    EXPECT_EQ(a[k], R"(["frmMDI","frmLearnRunesMain","frmLearnRunesMeaningTest"])");
    EXPECT_EQ(a[k + 1], "false") << "the Runes window is hidden";
    EXPECT_EQ(a[k + 2], "false");
    EXPECT_EQ(a[k + 3], "\"Quillane Learn Runes\"");
    EXPECT_EQ(a[k + 4], "\"Question 1\"");
    EXPECT_EQ(a[k + 5], "error: hidden");
    EXPECT_EQ(a[k + 6], "[false,true,false,false]");
    const std::size_t end = loop + 46;
    EXPECT_EQ(a[end], "\"Question 24\"");
    EXPECT_EQ(a[end + 2], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_EQ(a[end + 3], "true");
    EXPECT_EQ(a[end + 4], "true");
    const Report r = ReadReport(Text(a[end + 5]), 1);
    ASSERT_EQ(r.scores.size(), 24u);
    EXPECT_EQ(r.scores[23], 0);
    EXPECT_EQ(r.total, carried + std::accumulate(r.scores.begin(), r.scores.end(), 0))
        << "the abandoned test's points count in the next one";
    EXPECT_EQ(r.tail, std::to_string(r.total) + " Correct Out Of  24 Descriptions");
    EXPECT_EQ(a[end + 6], "0");
    EXPECT_EQ(a[end + 7], "false") << "a subject is open: the welcome panel stays away";
}

TEST(RuneMeaningTest, AdvancedChecksAndFlagsThatStaySet) {
    std::vector<std::string> c = MeaningSetUp(1, "0");
    c.insert(c.end(),
             {"get frmLearnRunesMeaningTest.lblMeaningTestCaption.Caption",
              "get frmLearnRunesMeaningTest.chkMeaning(7).Visible",
              "get frmLearnRunesMeaningTest.shaMeaning(7).Visible",
              "click frmLearnRunesMeaningTest.chkMeaning(0)",
              "click frmLearnRunesMeaningTest.chkMeaning(1)",
              "click frmLearnRunesMeaningTest.chkMeaning(2)",
              "click frmLearnRunesMeaningTest.cmdNextQuestion1", "msgbox",
              "click frmLearnRunesMeaningTest.chkMeaning(3)", "focus frmLearnRunesMeaningTest",
              "click frmLearnRunesMeaningTest.chkMeaning(4)", "focus frmLearnRunesMeaningTest",
              "get frmLearnRunesMeaningTest.intMeaningTicks",
              "click frmLearnRunesMeaningTest.chkMeaning(4)",
              "click frmLearnRunesMeaningTest.cmdNextQuestion1", "msgbox",
              "get modLearnRunesTest.strTestResult",
              "get frmLearnRunesMeaningTest.lblMeaningTestQuestion.Caption",
              // Closing the dialog in mid-test brings the window back.
              "close frmLearnRunesMeaningTest", "forms", "get frmLearnRunesMain.Visible",
              "get frmLearnRunesMain.fraTestLevel.InFront", "get frmMDI.picMain.Visible"});
    // A second test ticks only Merkstave: Upright stays set from the first.
    for (const auto& s : MeaningSetUp(0, "2"))
        c.push_back(s);
    c.push_back("get modLearnRunesTest.blnStoneType");
    const auto a = RunesSession().Run(c, {"--seed", "5"});
    const std::size_t k = MeaningSetUp(1, "0").size();
    EXPECT_EQ(a[k], "\"You must choose 4 options\"");
    EXPECT_EQ(a[k + 1], "true");
    EXPECT_EQ(a[k + 2], "true");
    EXPECT_NE(a[k + 7].find("You can select 4 options"), std::string::npos);
    EXPECT_EQ(a[k + 9], "\"chkMeaning(3)\"") << "ticks before a failed Next do not count";
    EXPECT_EQ(a[k + 11], "\"chkMeaning(4)\"");
    EXPECT_EQ(a[k + 12], "2");
    EXPECT_EQ(a[k + 15], "null");
    const auto results = Json::Parse(a[k + 16]);
    ASSERT_TRUE(results && results->IsArray());
    EXPECT_TRUE(std::regex_match(results->AsArray()[0].AsString(),
                                 std::regex(R"([0-4] Correct Out of 4)")));
    EXPECT_EQ(a[k + 17], "\"Question 2\"");
    EXPECT_EQ(a[k + 19], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_EQ(a[k + 20], "true");
    EXPECT_EQ(a[k + 21], "true");
    EXPECT_EQ(a[k + 22], "false");
    EXPECT_EQ(a.back(), "[true,false,true,false]");
}

} // namespace
