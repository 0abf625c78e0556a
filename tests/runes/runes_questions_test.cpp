// The question builders and the report of the rune tests, in process: drawn
// over many seeds, each question must keep the properties that the tests'
// scoring relies on, odd ones included.
#include "common/Application.h"
#include "common/Random.h"
#include "runes/modLearnRunes.h"
#include "runes/modLearnRunesTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace {

using namespace quillane;
using namespace quillane::modLearnRunesTest;
using modLearnRunes::strKeyword;
using modLearnRunes::strMarkstaveMeaning;
using modLearnRunes::strNormalMeaning;
using modLearnRunes::strReverseMeaning;
using modLearnRunes::strStoneName;

// A form that only holds the controls a question is written into.
class QuestionForm : public Form {
public:
    explicit QuestionForm(Application& app)
        : Form(app, "QuestionForm"), frames(AddArray(ControlKind::Frame, "shaMeaning", 0, 7)),
          choices(AddArray(ControlKind::CheckBox, "chkMeaning", 0, 7)),
          caption(Add(ControlKind::Label, "lblCaption")),
          number(Add(ControlKind::Label, "lblIndex")),
          stone(Add(ControlKind::Label, "lblTestStone")),
          picture(Add(ControlKind::PictureBox, "picTest")) {}
    ControlArray frames, choices;
    Control &caption, &number, &stone, &picture;
    QuestionView View() { return {choices, &frames, caption, number, stone, picture}; }
};

class Questions : public ::testing::Test {
protected:
    void SetUp() override {
        modLearnRunes::LoadRuneTables();
        for (int i = 0; i <= 3; ++i)
            blnStoneType(i) = 0;
    }
    void Seed(int seed) { TheGenerator().Reset(std::uint64_t(seed) * 7919 + 17); }
    // Every box ticked beforehand, so that the builder must clear them.
    void TickAll() {
        for (int i = 0; i <= 7; ++i)
            form.choices(i).SetValue(1);
    }
    std::set<std::string> Keywords(int stone) {
        const std::size_t k = 4 * std::size_t(stone);
        return {strKeyword[k], strKeyword[k + 1], strKeyword[k + 2], strKeyword[k + 3]};
    }
    Application app{Services{}};
    QuestionForm form{app};
};

TEST_F(Questions, StoneOrdersArePermutationsOfAllStonesThatDifferFromSeedToSeed) {
    std::set<std::vector<std::int16_t>> orders;
    for (int seed = 0; seed < 300; ++seed) {
        Seed(seed);
        intStoneOrder(24) = 77; // entry 24 is not the order's
        DrawStoneOrder();
        const std::set<std::int16_t> seen(intStoneOrder.Items().begin(),
                                          intStoneOrder.Items().end() - 1);
        ASSERT_EQ(seen.size(), 24u) << "seed " << seed;
        ASSERT_TRUE(*seen.begin() == 0 && *seen.rbegin() == 23) << "seed " << seed;
        ASSERT_EQ(intStoneOrder(24), 77);
        orders.insert(intStoneOrder.Items());
    }
    EXPECT_GT(orders.size(), 290u);
}

// A keyword question at each level: its stone, its right keywords, the boxes
// shown and cleared, and one box only that bears a right keyword.
TEST_F(Questions, KeywordQuestionsShowOneRightBoxAtEachLevel) {
    std::set<int> places; // of the beginner's right keyword among its stone's four
    bool repeatedRight = false, twinWrong = false;
    for (int level = 0; level <= 1; ++level) {
        const int shown = level ? 8 : 5, rights = level ? 4 : 1;
        for (int seed = 0; seed < 400; ++seed) {
            Seed(seed);
            DrawStoneOrder();
            intTestLevel = std::int16_t(level);
            intQuestionNumber = std::int16_t(1 + seed % 24);
            TickAll();
            LoadKeywordQuestion(
                {form.choices, nullptr, form.caption, form.number, form.stone, form.picture});
            const int s = intStoneOrder(intQuestionNumber - 1);
            EXPECT_EQ(form.caption.Caption(),
                      level ? "You must choose 4 options" : "You must choose only 1 option");
            EXPECT_EQ(form.number.Caption(), "Question " + std::to_string(intQuestionNumber));
            EXPECT_EQ(form.stone.Caption(), strStoneName[std::size_t(s)]);
            EXPECT_EQ(form.picture.Picture().Describe(), "IMG " + std::to_string(s + 1));
            ASSERT_EQ(strCorrectKeyword.UBound(), rights);
            ASSERT_EQ(strKeywordOption.UBound(), shown);
            std::set<std::string> right;
            for (int j = 0; j < rights; ++j) {
                EXPECT_TRUE(Keywords(s).count(strCorrectKeyword(j)));
                right.insert(strCorrectKeyword(j));
            }
            EXPECT_EQ(strCorrectKeyword(rights), "");
            repeatedRight = repeatedRight || right.size() < std::size_t(rights);
            int rightBoxes = 0;
            std::string placed;
            std::set<std::string> captions;
            for (int i = 0; i <= 7; ++i) {
                const Control& box = form.choices(i);
                EXPECT_EQ(box.Value(), 0);
                EXPECT_EQ(box.Visible(), i < shown);
                if (i >= shown)
                    continue;
                EXPECT_EQ(box.Caption(), strKeywordOption(i));
                if (right.count(box.Caption()) && ++rightBoxes)
                    placed = box.Caption();
                twinWrong = twinWrong || !captions.insert(box.Caption()).second;
            }
            // Wrong choices are kept out by text: one box, the last right keyword drawn.
            EXPECT_EQ(rightBoxes, 1) << "seed " << seed;
            EXPECT_EQ(placed, strCorrectKeyword(rights - 1));
            for (int k = 0; k < 4 && level == 0; ++k)
                if (strKeyword[4 * std::size_t(s) + std::size_t(k)] == strCorrectKeyword(0))
                    places.insert(k);
        }
    }
    EXPECT_EQ(places.size(), 4u) << "every keyword of a stone can be the right one";
    EXPECT_TRUE(repeatedRight) << "independent draws repeat a keyword now and then";
    EXPECT_TRUE(twinWrong) << "wrong choices are not kept apart from one another";
}

TEST_F(Questions, BeginnerTickOnAWrongBoxScoresNothing) {
    Seed(5);
    DrawStoneOrder();
    intTestLevel = 0;
    intQuestionNumber = 3;
    LoadKeywordQuestion(form.View());
    int wrong = 0;
    while (form.choices(wrong).Caption() == strCorrectKeyword(0))
        ++wrong;
    form.choices(wrong).SetValue(1);
    intTotalCorrect = 2;
    std::int16_t ticked = 0;
    ASSERT_TRUE(ScoreTicks(app, form.choices, ticked, intQuestionNumber));
    EXPECT_EQ(ticked, 1);
    EXPECT_EQ(intCorrect, 0);
    EXPECT_EQ(intTotalCorrect, 2);
    EXPECT_EQ(strTestResult(2), "0 Correct Out of 1");
}

// The right text comes from the tables of the ticked positions (upright,
// reversed, merkstave), and from each of them now and then.
TEST_F(Questions, CorrectMeaningFollowsTheTickedPositions) {
    const std::array<const std::array<std::string, 25>*, 3> tables = {
        &strNormalMeaning, &strReverseMeaning, &strMarkstaveMeaning};
    for (const std::array<int, 3> flags :
         {std::array{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {1, 1, 1}}) {
        std::set<std::string> allowed, drawn;
        for (int t = 0; t <= 2; ++t) {
            blnStoneType(t) = std::int16_t(flags[std::size_t(t)] ? -1 : 0);
            if (flags[std::size_t(t)])
                allowed.insert(tables[std::size_t(t)]->begin(), tables[std::size_t(t)]->end() - 1);
        }
        for (int seed = 0; seed < 300; ++seed) {
            Seed(seed);
            drawn.insert(DrawCorrectMeaning());
        }
        EXPECT_TRUE(std::includes(allowed.begin(), allowed.end(), drawn.begin(), drawn.end()));
        for (int t = 0; t <= 1; ++t) { // merkstave's own texts are too few to be sure of
            const auto* table = tables[std::size_t(t)];
            EXPECT_TRUE(!flags[std::size_t(t)] ||
                        std::find_first_of(drawn.begin(), drawn.end(), table->begin(),
                                           table->end() - 1) != drawn.end())
                << "table " << t << " never drawn";
        }
    }
    for (int i = 0; i <= 2; ++i)
        blnStoneType(i) = 0;
    EXPECT_EQ(DrawCorrectMeaning(), "") << "no position ticked leaves the text empty";
}

TEST_F(Questions, MeaningQuestionsPlaceTheFirstRightText) {
    blnStoneType(1) = -1; // reversed only
    bool unreversible = false;
    for (int level = 0; level <= 1; ++level) {
        for (int seed = 0; seed < 300; ++seed) {
            Seed(seed);
            DrawStoneOrder();
            intTestLevel = std::int16_t(level);
            intMeaningQuestionNumber = std::int16_t(1 + seed % 24);
            TickAll();
            LoadMeaningQuestion(form.View());
            const int shown = level ? 8 : 5;
            const int s = intStoneOrder(intMeaningQuestionNumber - 1);
            EXPECT_EQ(form.stone.Caption(), strStoneName[s]);
            EXPECT_EQ(form.caption.Caption(),
                      level ? "You must choose 4 options" : "You must choose only 1 option");
            int first = 0;
            for (int i = 0; i <= 7; ++i) {
                EXPECT_EQ(form.choices(i).Visible(), i < shown);
                EXPECT_EQ(form.frames(i).Visible(), i < shown);
                EXPECT_EQ(form.choices(i).Value(), 0);
                if (i >= shown)
                    continue;
                const std::string& caption = form.choices(i).Caption();
                first += caption == strCorrectKeyword(0);
            }
            EXPECT_EQ(first, 1) << "the first right text stands exactly once";
            for (int j = 0; j <= (level ? 3 : 0); ++j) {
                const auto& table = strReverseMeaning;
                EXPECT_NE(std::find(table.begin(), table.begin() + 24, strCorrectKeyword(j)),
                          table.begin() + 24);
                unreversible =
                    unreversible || strCorrectKeyword(j) == "This rune cannot be reversed.";
            }
        }
    }
    EXPECT_TRUE(unreversible) << "a stone that cannot be reversed still gives a right text";
}

TEST(RuneReport, RowsRuleAndTotalByLevel) {
    modLearnRunes::LoadRuneTables();
    for (int i = 0; i <= 23; ++i) {
        intStoneOrder(i) = std::int16_t(23 - i);
        strTestResult(i) = std::to_string(i % 2) + " Correct Out of 1";
    }
    strTestResult(23) = "1 Correct Out of 1"; // never printed
    intTotalCorrect = 10;
    intTestLevel = 0;
    const std::string beginner = TestReport("Descriptions");
    std::string expected;
    for (int i = 0; i <= 23; ++i) {
        const std::string name = strStoneName[23 - i];
        expected += (i < 9 ? "0" : "") + std::to_string(i + 1) + "." + std::string(10, ' ') + name +
                    std::string(30 - name.size(), ' ') +
                    (i < 23 ? strTestResult(i) : "0 Correct Out of 1") + "\r\n";
    }
    expected += std::string(99, '-') + "\r\n" + "10 Correct Out Of  24 Descriptions";
    EXPECT_EQ(beginner, expected);
    EXPECT_EQ(beginner.substr(0, 52), "01.          Othala                        0 Correct");

    intTestLevel = 1;
    intTotalCorrect = 7;
    const std::string advanced = TestReport("Keywords");
    EXPECT_NE(advanced.find("24.          Fehu                          0 Correct Out of 4\r\n"),
              std::string::npos);
    EXPECT_TRUE(advanced.ends_with("\r\n7 Correct Out Of  96 Keywords"));
}

} // namespace
