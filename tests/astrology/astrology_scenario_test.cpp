// A whole test through the driver, from the launcher to the report and back:
// each question as the driver shows it, answered by a click on an option, and
// the report rebuilt here from what was shown.
#include "DriveSession.h"
#include "astrology/modLearnAstrology.h"
#include "common/Json.h"

#include <gtest/gtest.h>

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

} // namespace

// A test of signs by Lucky Number: question q is answered with choice q % 5.
TEST(AstrologyScenario, ATestOfLuckyNumbersFromTheLauncherToTheReportAndBack) {
    mla::LoadSignTables();
    Script s("frmLearnAstrologyMain", {"start", "click frmMDI.cmdSelectOption(0)"});
    s.Do({"click .optOption(1)", "set .cboTestOptionSub.ListIndex 9", "click .cmdNext"});
    const std::size_t order = s.Ask("get .intOrder"), correct = s.Ask("get .strCorrect");
    std::vector<std::size_t> shown; // each question's first answer
    for (int q = 0; q < 12; ++q) {
        const std::string pick = std::to_string(q % 5);
        shown.push_back(s.Ask("get .lblTest(2).Caption"));
        s.Ask("get .picTest.Picture");
        s.Ask("get .optAnswer_Choice(" + pick + ").Caption");
        s.Is("get .optAnswer_Choice(0).Value", "true", "each question opens on its first");
        s.Do("click .optAnswer_Choice(" + pick + ")");
        s.Do("click .cmdNextQuestion");
    }
    const std::size_t report = s.Ask("get .RTB.Text");
    const std::size_t kept = s.Ask("get .strUserAnswer");
    s.Is("get .Frame4.InFront", "true");
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
    const auto a = s.Run({"--today", "2026-04-01", "--seed", "1"});
    const auto rows = Strings(a[order]), right = Strings(a[correct]);
    ASSERT_EQ(rows.size(), 13u);
    ASSERT_EQ(right.size(), 13u);
    EXPECT_NE(Strings(a[again]), rows) << "a second test asks in another order";

    // The report, built here from what was shown: the right answer it gives
    // is that of the row asked by the question's number.
    std::string expected =
        "Quillane Learn Astrology Result\r\n\r\nTest By Signs - Lucky Number\r\n\r\n";
    std::vector<std::string> answers;
    int score = 0;
    for (std::size_t q = 0; q < 12; ++q) {
        const std::size_t at = shown[q];
        const auto row = std::size_t(std::stoi(rows[q]));
        EXPECT_EQ(Str(a[at]), mla::strSign[row]) << q;
        EXPECT_EQ(Str(a[at + 1]), "imgSign " + std::to_string(row + 1)) << q;
        answers.push_back(Str(a[at + 2]));
        score += answers.back() == right[row];
        expected += "Question: " + mla::strSign[row] + "\r\nCorrect Answer: " + right[row] +
                    "\r\nYour Answer: " + answers.back() + "\r\n\r\n";
    }
    EXPECT_GT(score, 0) << "the seed gives some right answers";
    EXPECT_EQ(Str(a[report]), expected + std::to_string(score) + " Correct out of 12 Questions");
    answers.push_back("");
    EXPECT_EQ(Strings(a[kept]), answers) << "answers are kept as text";
}
