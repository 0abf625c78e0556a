// A whole test through the driver, from the launcher to the report and back.
// With a fixed seed the draws repeat, so a first pass reads the questions and
// a second one answers them, some right and some wrong by the report's rule.
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

const std::string F = "frmLearnAstrologyMain.";
constexpr int kSeed = 20261122;
constexpr int kQuestions = 12;

// Start, open Astrology, choose a test of signs by "Lucky Number".
std::vector<std::string> TestSetUp() {
    return {"start", "click frmMDI.cmdSelectOption(0)", "click " + F + "optOption(1)",
            "set " + F + "cboTestOptionSub.ListIndex 9", "click " + F + "cmdNext"};
}

std::vector<std::string> Session(const std::vector<std::string>& commands) {
    return Drive({"--today", "2026-04-01", "--seed", std::to_string(kSeed)}, commands);
}

Json Parsed(const std::string& answer) {
    auto value = Json::Parse(answer);
    EXPECT_TRUE(value.has_value()) << answer;
    return value.value_or(Json());
}

std::vector<std::string> Strings(const std::string& answer) {
    std::vector<std::string> out;
    const Json value = Parsed(answer);
    if (value.IsArray())
        for (const Json& item : value.AsArray())
            out.push_back(item.IsString() ? item.AsString() : item.Dump());
    return out;
}

struct Question {
    std::string asked;
    std::vector<std::string> captions;
    std::vector<std::string> texts;
    std::string firstSelected;
    std::string picture;
};

} // namespace

TEST(AstrologyScenario, ATestFromTheLauncherToTheReportAndBack) {
    mla::LoadSignTables();
    const auto& values = mla::strSignLuckyNumber;

    // First pass: read every question, answering each with "Next Question".
    std::vector<std::string> first = TestSetUp();
    first.insert(first.end(), {"get " + F + "Frame3.InFront", "get " + F + "intOrder",
                               "get " + F + "strCorrect"});
    const std::size_t perQuestion = 1 + 5 + 5 + 1 + 1 + 1;
    for (int q = 0; q < kQuestions; ++q) {
        first.push_back("get " + F + "lblTest(2).Caption");
        for (int c = 0; c < 5; ++c)
            first.push_back("get " + F + "optAnswer_Choice(" + std::to_string(c) + ").Caption");
        for (int c = 0; c < 5; ++c)
            first.push_back("get " + F + "txtAnswer_Choice(" + std::to_string(c) + ").Text");
        first.push_back("get " + F + "optAnswer_Choice(0).Value");
        first.push_back("get " + F + "picTest.Picture");
        first.push_back("click " + F + "cmdNextQuestion");
    }
    auto a = Session(first);
    ASSERT_EQ(a[5], "true") << "the test panel is in front";
    const auto order = Strings(a[6]);
    const auto correct = Strings(a[7]);
    ASSERT_EQ(order.size(), std::size_t(kQuestions + 1));
    ASSERT_EQ(correct.size(), std::size_t(kQuestions + 1));
    std::vector<int> rows;
    for (int q = 0; q < kQuestions; ++q)
        rows.push_back(std::stoi(order[std::size_t(q)]));
    std::vector<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    for (int r = 0; r < kQuestions; ++r)
        ASSERT_EQ(sorted[std::size_t(r)], r) << "every sign is asked once";

    std::vector<Question> questions;
    for (int q = 0; q < kQuestions; ++q) {
        const std::size_t at = 8 + perQuestion * std::size_t(q);
        Question question;
        question.asked = Parsed(a[at]).AsString();
        for (int c = 0; c < 5; ++c) {
            question.captions.push_back(Parsed(a[at + 1 + std::size_t(c)]).AsString());
            question.texts.push_back(Parsed(a[at + 6 + std::size_t(c)]).AsString());
        }
        question.firstSelected = a[at + 11];
        question.picture = Parsed(a[at + 12]).AsString();
        questions.push_back(question);

        const int row = rows[std::size_t(q)];
        EXPECT_EQ(question.asked, mla::strSign[std::size_t(row)]) << q;
        EXPECT_EQ(question.picture, "imgSign " + std::to_string(row + 1)) << q;
        EXPECT_EQ(question.firstSelected, "true") << "each question opens on its first choice";
        EXPECT_EQ(question.texts, question.captions) << "the option and its box hold one text";
        EXPECT_NE(
            std::find(question.captions.begin(), question.captions.end(), values[std::size_t(row)]),
            question.captions.end())
            << "the right answer is among the choices";
        for (const std::string& caption : question.captions) {
            const auto at5 = values.begin() + 5;
            const bool early = std::find(values.begin(), at5, caption) != at5;
            EXPECT_TRUE(early || caption == values[std::size_t(row)]) << q << ": " << caption;
        }
    }

    // Second pass: the same draws; answer by clicks on options and on the
    // texts beside them, the last question with "Next Question" alone.
    std::vector<std::string> second = TestSetUp();
    std::vector<std::string> answers;
    std::vector<std::size_t> checks;
    int score = 0;
    for (int q = 0; q < kQuestions; ++q) {
        const Question& question = questions[std::size_t(q)];
        const std::string& reportCorrect = correct[std::size_t(rows[std::size_t(q)])];
        int pick = 0;
        const bool tryRight = q % 2 == 0;
        for (int c = 0; c < 5; ++c) {
            const bool right = question.captions[std::size_t(c)] == reportCorrect;
            if (right == tryRight)
                pick = c;
        }
        if (q == kQuestions - 1)
            pick = 0;
        else if (q % 3 == 0)
            second.push_back("click " + F + "txtAnswer_Choice(" + std::to_string(pick) + ")");
        else
            second.push_back("click " + F + "optAnswer_Choice(" + std::to_string(pick) + ")");
        checks.push_back(second.size());
        second.push_back("get " + F + "optAnswer_Choice(" + std::to_string(pick) + ").Value");
        second.push_back("get " + F + "lblTest(2).Caption");
        second.push_back("click " + F + "cmdNextQuestion");
        answers.push_back(question.captions[std::size_t(pick)]);
        score += answers.back() == reportCorrect;
    }
    ASSERT_GT(score, 0) << "the seed gives some right answers";
    ASSERT_LT(score, kQuestions - 1) << "the seed gives some wrong answers";
    const std::size_t after = second.size();
    second.insert(
        second.end(),
        {"get " + F + "Frame4.InFront", "get " + F + "RTB.Text", "get " + F + "RTB.BoldText",
         "get " + F + "strUserAnswer", "get " + F + "intCurrent", "click " + F + "cmdNextQuestion",
         "click " + F + "cmdBackToMain(1)", "get " + F + "Frame1.InFront", "get " + F + "intOrder",
         "get " + F + "strCorrect", "get " + F + "strUserAnswer", "get " + F + "optOption(1).Value",
         "get " + F + "cboTestOptionSub.ListIndex", "click " + F + "cmdNext",
         "get " + F + "intOrder", "get " + F + "optAnswer_Choice(0).Value",
         "close frmLearnAstrologyMain", "get frmMDI.picMain.Visible", "get " + F + "Loaded"});
    auto b = Session(second);
    for (int q = 0; q < kQuestions; ++q) {
        EXPECT_EQ(b[checks[std::size_t(q)]], "true") << "question " << q << " took its click";
        EXPECT_EQ(Parsed(b[checks[std::size_t(q)] + 1]).AsString(), questions[std::size_t(q)].asked)
            << "the seed repeats the draws";
    }

    // The report, built here from what the first pass read.
    std::string expected =
        "Quillane Learn Astrology Result\r\n\r\nTest By Signs - Lucky Number\r\n\r\n";
    std::vector<std::string> bold;
    std::string pending = expected;
    for (int q = 0; q < kQuestions; ++q) {
        const auto row = std::size_t(rows[std::size_t(q)]);
        const std::string question = "Question: " + mla::strSign[row] + "\r\n";
        expected += question + "Correct Answer: " + correct[row] +
                    "\r\nYour Answer: " + answers[std::size_t(q)] + "\r\n\r\n";
        bold.push_back(pending + question + "Correct Answer: ");
        bold.push_back("Your Answer: ");
        pending.clear();
    }
    const std::string last = std::to_string(score) + " Correct out of 12 Questions";
    expected += last;
    bold.push_back(last);

    EXPECT_EQ(b[after], "true") << "the report is in front";
    EXPECT_EQ(Parsed(b[after + 1]).AsString(), expected);
    EXPECT_EQ(Strings(b[after + 2]), bold);
    std::vector<std::string> recorded = answers;
    recorded.push_back("");
    EXPECT_EQ(Strings(b[after + 3]), recorded) << "answers are kept as text";
    EXPECT_EQ(b[after + 4], "11");
    EXPECT_EQ(b[after + 5], "error: hidden") << "a finished test has no way back in";

    EXPECT_EQ(b[after + 7], "true");
    EXPECT_EQ(b[after + 8], "null");
    EXPECT_EQ(b[after + 9], "null");
    EXPECT_EQ(b[after + 10], "null");
    EXPECT_EQ(b[after + 11], "true") << "the choice stays";
    EXPECT_EQ(b[after + 12], "9");
    EXPECT_NE(Strings(b[after + 14]), order) << "a second test asks in another order";
    EXPECT_EQ(b[after + 15], "true");
    EXPECT_EQ(b[after + 17], "true") << "closing brings the welcome back";
    EXPECT_EQ(b[after + 18], "false");
}
