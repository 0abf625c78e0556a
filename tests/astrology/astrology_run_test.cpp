// The test's rules without a window: the order of the questions, the choices
// of a question, the report and its score, over many seeded runs.
#include "astrology/AstrologyRun.h"
#include "astrology/modLearnAstrology.h"
#include "common/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

using namespace quillane;
using namespace quillane::astrology;

namespace {

struct Category {
    int main;
    int sub;
    long rows;
};
// Signs by dates, planets by keywords, houses by name: columns whose rows all
// differ, so that a text tells its row.
const Category kCategories[] = {{0, 1, 12}, {1, 2, 10}, {2, 0, 12}};

RunState NewRun(int main, int sub) {
    RunState run;
    run.intMainIndex = std::int16_t(main);
    run.intSubIndex = std::int16_t(sub);
    return run;
}

} // namespace

// Every row once, in orders that vary; and, for the score, the right answer
// of the row asked by the question's number: a true answer scores only where
// the row is its own question.
TEST(AstrologyRun, ATestAsksEveryRowOnceInManyOrdersAndScoresByTheRowAsked) {
    for (const Category& cat : kCategories) {
        std::vector<std::vector<std::int16_t>> orders;
        std::array<int, 12> firstRowCount{};
        for (std::uint64_t seed = 1; seed <= 400; ++seed) {
            TheGenerator().Reset(seed);
            RunState run = NewRun(cat.main, cat.sub);
            SetUpTest(run);
            for (long upper : {run.intOrder.UBound(), run.strCorrect.UBound(),
                               run.strUserAnswer.UBound(), run.strValues.UBound()})
                ASSERT_EQ(upper, cat.rows);
            std::vector<std::int16_t> asked(run.intOrder.Items().begin(),
                                            run.intOrder.Items().end() - 1);
            std::vector<std::int16_t> sorted = asked;
            std::sort(sorted.begin(), sorted.end());
            for (long r = 0; r < cat.rows; ++r)
                ASSERT_EQ(sorted[std::size_t(r)], r) << "seed " << seed << ": not every row";
            // The spare entry is never drawn into; strCorrect goes by question.
            EXPECT_EQ(run.intOrder(cat.rows), 0);
            EXPECT_EQ(run.strCorrect(cat.rows), "");
            int fixedPoints = 0;
            for (long q = 0; q < cat.rows; ++q) {
                EXPECT_EQ(run.strCorrect(q), run.strValues(run.intOrder(q)));
                EXPECT_EQ(run.strUserAnswer(q), "");
                run.strUserAnswer(q) = run.strValues(run.intOrder(q));
                fixedPoints += run.intOrder(q) == q;
            }
            ASSERT_EQ(ResultScore(run), fixedPoints) << "seed " << seed;
            ASSERT_EQ(ResultPieces(run).back().text, std::to_string(fixedPoints) +
                                                         " Correct out of " +
                                                         std::to_string(cat.rows) + " Questions");
            ++firstRowCount[std::size_t(asked[0])];
            orders.push_back(asked);
        }
        std::sort(orders.begin(), orders.end());
        EXPECT_GT(std::unique(orders.begin(), orders.end()) - orders.begin(), 390)
            << "orders barely vary";
        // With redraws every row can be the first question.
        for (long r = 0; r < cat.rows; ++r)
            EXPECT_GT(firstRowCount[std::size_t(r)], 0) << "row " << r << " never asked first";
    }
}

// Rows 0 to 4 in some order, one place overwritten with the right row: the
// wrong rows differ, and a right row among 0 to 4 stands twice, or once where
// the overwrite hit its own place.
TEST(AstrologyRun, WrongChoicesComeFromTheFirstFiveRows) {
    int sawOwnPositionHit = 0, sawDouble = 0;
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        TheGenerator().Reset(seed);
        const auto right = std::int16_t(seed % 12);
        const auto choice = DrawChoices(right);
        ASSERT_EQ(choice[5], -1) << "entry 5 is never used";
        std::vector<std::int16_t> wrong;
        for (int c = 0; c < 5; ++c)
            if (choice[std::size_t(c)] != right)
                wrong.push_back(choice[std::size_t(c)]);
        const std::size_t rights = 5 - wrong.size();
        ASSERT_TRUE(rights == 1 || (right <= 4 && rights == 2)) << "seed " << seed;
        std::sort(wrong.begin(), wrong.end());
        ASSERT_EQ(std::unique(wrong.begin(), wrong.end()), wrong.end()) << "seed " << seed;
        ASSERT_TRUE(wrong.front() >= 0 && wrong.back() <= 4) << "seed " << seed;
        sawOwnPositionHit += right <= 4 && rights == 1;
        sawDouble += rights == 2;
    }
    EXPECT_GT(sawOwnPositionHit, 0);
    EXPECT_GT(sawDouble, sawOwnPositionHit) << "a hit on its own place is the rarer case";
}

TEST(AstrologyRun, DrawsRoundToTheNearestSoTheEndsComeUpHalfAsOften) {
    // Where the right answer lands is one draw over 0 to 4: positions 0 and 4
    // have odds 1/8, positions 1 to 3 odds 1/4. Truncating would never give 4.
    std::array<int, 5> landed{};
    const int runs = 16000;
    for (int seed = 1; seed <= runs; ++seed) {
        TheGenerator().Reset(std::uint64_t(seed) * 7919);
        const auto choice = DrawChoices(9);
        for (int c = 0; c < 5; ++c)
            if (choice[std::size_t(c)] == 9)
                ++landed[std::size_t(c)];
    }
    const double expected[5] = {0.125, 0.25, 0.25, 0.25, 0.125};
    for (int c = 0; c < 5; ++c)
        EXPECT_NEAR(double(landed[std::size_t(c)]) / runs, expected[c], 0.015) << "position " << c;

    // This seed's first number is exactly 1/8: a product of one half goes to
    // the even neighbour, 0.
    TheGenerator().Reset(14522585);
    EXPECT_EQ(DrawOver(4), 0);
}
