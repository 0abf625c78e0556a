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

// Both kinds of question at each level: the stone asked, the boxes shown and
// cleared, and one box only that bears a right text kept out of the others
// (every right keyword; of the meanings, the first alone).
TEST_F(Questions, EachQuestionShowsItsBoxesAndOneBoxOfTheRightText) {
    blnStoneType(1) = -1; // meanings: reversed only
    std::set<int> places; // of the beginner's right keyword among its stone's four
    bool repeatedRight = false, twinWrong = false, unreversible = false;
    for (const bool keywords : {true, false}) {
        for (int level = 0; level <= 1; ++level) {
            const int shown = level ? 8 : 5, rights = level ? 4 : 1, kept = keywords ? rights : 1;
            for (int seed = 0; seed < 300; ++seed) {
                Seed(seed);
                DrawStoneOrder();
                intTestLevel = std::int16_t(level);
                const auto question = std::int16_t(1 + seed % 24);
                (keywords ? intQuestionNumber : intMeaningQuestionNumber) = question;
                TickAll();
                (keywords ? LoadKeywordQuestion : LoadMeaningQuestion)(form.View());
                const int s = intStoneOrder(question - 1);
                EXPECT_EQ(form.caption.Caption(),
                          level ? "You must choose 4 options" : "You must choose only 1 option");
                EXPECT_EQ(form.number.Caption(), "Question " + std::to_string(question));
                EXPECT_EQ(form.stone.Caption(), strStoneName[std::size_t(s)]);
                EXPECT_EQ(form.picture.Picture().Describe(), "IMG " + std::to_string(s + 1));
                ASSERT_EQ(strCorrectKeyword.UBound(), rights);
                ASSERT_EQ(strKeywordOption.UBound(), shown);
                EXPECT_EQ(strCorrectKeyword(rights), "");
                const std::set<std::string> right(strCorrectKeyword.Items().begin(),
                                                  strCorrectKeyword.Items().begin() + kept);
                for (int j = 0; j < rights; ++j) {
                    const std::string& text = strCorrectKeyword(j);
                    if (keywords)
                        EXPECT_TRUE(Keywords(s).count(text));
                    else
                        EXPECT_NE(
                            std::find(strReverseMeaning.begin(), strReverseMeaning.end() - 1, text),
                            strReverseMeaning.end() - 1);
                    unreversible = unreversible || text == "This rune cannot be reversed.";
                }
                repeatedRight = repeatedRight || (keywords && right.size() < std::size_t(rights));
                int rightBoxes = 0;
                std::string placed;
                std::set<std::string> captions;
                for (int i = 0; i <= 7; ++i) {
                    const Control& box = form.choices(i);
                    EXPECT_EQ(box.Value(), 0);
                    EXPECT_EQ(box.Visible(), i < shown);
                    EXPECT_EQ(form.frames(i).Visible(), i < shown);
                    if (i >= shown)
                        continue;
                    EXPECT_EQ(box.Caption(), strKeywordOption(i));
                    if (right.count(box.Caption()) && ++rightBoxes)
                        placed = box.Caption();
                    twinWrong = twinWrong || !captions.insert(box.Caption()).second;
                }
                EXPECT_EQ(rightBoxes, 1) << "seed " << seed;
                // At Advanced the box takes the last right keyword drawn.
                EXPECT_EQ(placed, strCorrectKeyword(keywords ? rights - 1 : 0));
                for (int k = 0; k < 4 && keywords && level == 0; ++k)
                    if (strKeyword[4 * std::size_t(s) + std::size_t(k)] == strCorrectKeyword(0))
                        places.insert(k);
            }
        }
    }
    EXPECT_EQ(places.size(), 4u) << "every keyword of a stone can be the right one";
    EXPECT_TRUE(repeatedRight) << "independent draws repeat a keyword now and then";
    EXPECT_TRUE(twinWrong) << "wrong choices are not kept apart from one another";
    EXPECT_TRUE(unreversible) << "a stone that cannot be reversed still gives a right text";
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
    // A row a question, its stone's name in a column of 30; the last row is
    // never scored. A rule, and the total.
    EXPECT_EQ(std::count(beginner.begin(), beginner.end(), '\n'), 25);
    EXPECT_EQ(beginner.substr(0, 52), "01.          Othala                        0 Correct");
    EXPECT_NE(
        beginner.find("\r\n14.          Isa                           1 Correct Out of 1\r\n"),
        std::string::npos);
    EXPECT_NE(
        beginner.find("\r\n24.          Fehu                          0 Correct Out of 1\r\n"),
        std::string::npos);
    EXPECT_TRUE(beginner.ends_with("\r\n" + std::string(99, '-') +
                                   "\r\n10 Correct Out Of  24 Descriptions"));

    intTestLevel = 1;
    intTotalCorrect = 7;
    const std::string advanced = TestReport("Keywords");
    EXPECT_NE(advanced.find("24.          Fehu                          0 Correct Out of 4\r\n"),
              std::string::npos);
    EXPECT_TRUE(advanced.ends_with("\r\n7 Correct Out Of  96 Keywords"));
}

} // namespace
