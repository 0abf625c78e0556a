// A whole test through the driver, from the launcher to the report and back:
// each question as the driver shows it, answered by clicks on options and on
// the texts beside them, and the report rebuilt here from what was shown.
#include "DriveSession.h"
#include "astrology/modLearnAstrology.h"
#include "common/Json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace quillane::testing;
using quillane::Json;
namespace mla = quillane::modLearnAstrology;

namespace {

std::vector<std::string> Strings(const std::string& answer) {
    std::vector<std::string> out;
    const auto value = Json::Parse(answer);
    if (value && value->IsArray())
        for (const Json& item : value->AsArray())
            out.push_back(item.IsString() ? item.AsString() : item.Dump());
    return out;
}

std::string Str(const std::string& answer) {
    const auto value = Json::Parse(answer);
    return value && value->IsString() ? value->AsString() : "<" + answer + ">";
}

// A test of signs by Lucky Number; with picks, question q is answered with
// choice picks[q], by a click on its option or, every third, on its text.
struct TestScript {
    explicit TestScript(const std::vector<int>& picks) {
        s.Do({"click .optOption(1)", "set .cboTestOptionSub.ListIndex 9", "click .cmdNext"});
        s.Is("get .Frame3.InFront", "true");
        order = s.Ask("get .intOrder");
        correct = s.Ask("get .strCorrect");
        for (std::size_t q = 0; q < 12; ++q) {
            shown.push_back(s.Ask("get .lblTest(2).Caption"));
            s.Ask("get .picTest.Picture");
            for (int c = 0; c < 5; ++c) {
                s.Ask("get .optAnswer_Choice(" + std::to_string(c) + ").Caption");
                s.Ask("get .txtAnswer_Choice(" + std::to_string(c) + ").Text");
            }
            s.Is("get .optAnswer_Choice(0).Value", "true", "each question opens on its first");
            if (!picks.empty()) {
                const std::string pick = std::to_string(picks[q]);
                s.Do((q % 3 == 0 ? "click .txtAnswer_Choice(" : "click .optAnswer_Choice(") + pick +
                     ")");
                s.Is("get .optAnswer_Choice(" + pick + ").Value", "true", "the click picks it");
            }
            s.Do("click .cmdNextQuestion");
        }
    }
    Script s{"frmLearnAstrologyMain", {"start", "click frmMDI.cmdSelectOption(0)"}};
    std::size_t order = 0, correct = 0;
    std::vector<std::size_t> shown; // each question's first answer
};

const std::vector<std::string> kOptions = {"--today", "2026-04-01", "--seed", "20261122"};

} // namespace

// With a fixed seed the draws repeat: a first pass reads the questions, a
// second one answers them, some right and some wrong by the report's rule
// (the right answer of the row asked by the question's number).
TEST(AstrologyScenario, ATestOfLuckyNumbersFromTheLauncherToTheReportAndBack) {
    mla::LoadSignTables();
    const auto& values = mla::strSignLuckyNumber;
    const TestScript first({});
    const auto a = first.s.Run(kOptions);
    const auto rows = Strings(a[first.order]), right = Strings(a[first.correct]);
    ASSERT_EQ(rows.size(), 13u);
    ASSERT_EQ(right.size(), 13u);
    std::vector<int> asked, picks;
    std::vector<std::vector<std::string>> captions(12);
    for (std::size_t q = 0; q < 12; ++q) {
        const std::size_t at = first.shown[q];
        const auto row = std::size_t(std::stoi(rows[q]));
        asked.push_back(int(row));
        EXPECT_EQ(Str(a[at]), mla::strSign[row]) << q;
        EXPECT_EQ(Str(a[at + 1]), "imgSign " + std::to_string(row + 1)) << q;
        for (std::size_t c = 0; c < 5; ++c) {
            captions[q].push_back(Str(a[at + 2 + 2 * c]));
            EXPECT_EQ(Str(a[at + 3 + 2 * c]), captions[q].back()) << "an option and its box agree";
            const bool early = std::find(values.begin(), values.begin() + 5, captions[q].back()) !=
                               values.begin() + 5;
            EXPECT_TRUE(early || captions[q].back() == values[row]) << q << ": " << captions[q][c];
        }
        EXPECT_NE(std::find(captions[q].begin(), captions[q].end(), values[row]), captions[q].end())
            << "the right answer is among the choices";
        // Right on even questions where the rule lets one be, else wrong.
        int pick = 0;
        for (int c = 0; c < 5; ++c)
            if ((captions[q][std::size_t(c)] == right[row]) == (q % 2 == 0))
                pick = c;
        picks.push_back(pick);
    }
    std::sort(asked.begin(), asked.end());
    for (int r = 0; r < 12; ++r)
        EXPECT_EQ(asked[std::size_t(r)], r) << "every sign is asked once";

    TestScript second(picks);
    Script& s = second.s;
    const std::size_t report = s.Ask("get .RTB.Text"), bold = s.Ask("get .RTB.BoldText");
    const std::size_t kept = s.Ask("get .strUserAnswer");
    s.Is("get .Frame4.InFront", "true");
    s.Is("get .intCurrent", "11");
    s.Is("click .cmdNextQuestion", "error: hidden", "a finished test has no way back in");
    s.Do("click .cmdBackToMain(1)");
    s.Is("get .Frame1.InFront", "true");
    for (const char* erased : {"intOrder", "strCorrect", "strUserAnswer"})
        s.Is(std::string("get .") + erased, "null", erased);
    s.Is("get .optOption(1).Value", "true", "the choice stays");
    s.Is("get .cboTestOptionSub.ListIndex", "9");
    s.Do("click .cmdNext");
    const std::size_t again = s.Ask("get .intOrder");
    s.Do("close frmLearnAstrologyMain");
    s.Is("get frmMDI.picMain.Visible", "true", "closing brings the welcome back");
    s.Is("get .Loaded", "false");
    const auto b = s.Run(kOptions);
    for (std::size_t q = 0; q < 12; ++q)
        EXPECT_EQ(b[second.shown[q]], a[first.shown[q]]) << "the seed repeats the draws";
    EXPECT_NE(Strings(b[again]), rows) << "a second test asks in another order";

    // The report, built here from what the first pass read.
    std::string expected =
        "Quillane Learn Astrology Result\r\n\r\nTest By Signs - Lucky Number\r\n\r\n";
    std::vector<std::string> bolds, answers;
    std::string pending = expected;
    int score = 0;
    for (std::size_t q = 0; q < 12; ++q) {
        const auto row = std::size_t(std::stoi(rows[q]));
        answers.push_back(captions[q][std::size_t(picks[q])]);
        score += answers.back() == right[row];
        const std::string question = "Question: " + mla::strSign[row] + "\r\n";
        expected += question + "Correct Answer: " + right[row] +
                    "\r\nYour Answer: " + answers.back() + "\r\n\r\n";
        bolds.push_back(pending + question + "Correct Answer: ");
        bolds.push_back("Your Answer: ");
        pending.clear();
    }
    EXPECT_GT(score, 0) << "the seed gives some right answers";
    EXPECT_LT(score, 11) << "and some wrong ones";
    const std::string last = std::to_string(score) + " Correct out of 12 Questions";
    bolds.push_back(last);
    EXPECT_EQ(Str(b[report]), expected + last);
    EXPECT_EQ(Strings(b[bold]), bolds);
    answers.push_back("");
    EXPECT_EQ(Strings(b[kept]), answers) << "answers are kept as text";
}
