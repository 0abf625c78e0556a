// The draws of the two Numerology tests as properties over many seeded runs:
// what each list may and may not hold, and the odds the index rules give.
#include "common/Random.h"
#include "numerology/NumerologyDraws.h"
#include "numerology/modLearnNumerology.h"
#include "numerology/modLearnNumerologyState.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace num = quillane::modLearnNumerology;
using quillane::TheGenerator;

namespace {

constexpr int kRuns = 400;

struct Draws : ::testing::Test {
    void SetUp() override {
        num::LoadNumerologyTables();
        num::ClearTestState();
        // A clock that never moves: re-seeding must still move the draws on.
        TheGenerator().SetClock([] { return 43200.0; });
    }
    void TearDown() override {
        num::ClearTestState();
        TheGenerator().SetClock(nullptr);
    }
    static void Seed(int run) { TheGenerator().Reset(0x5eed0000ULL + std::uint64_t(run) * 7919); }
    // A subset of the subjects drawn from the run number, never empty.
    static std::vector<int> Ticks(int run) {
        std::vector<int> ticked;
        for (int s = 0; s <= 14; ++s)
            if (((unsigned(run) * 2654435761u) >> (7 + s)) & 1u)
                ticked.push_back(s);
        return ticked.empty() ? std::vector<int>{run % 15} : ticked;
    }
    static void Tick(const std::vector<int>& subjects) {
        num::blnSubjectSelected.fill(0);
        for (int s : subjects)
            num::blnSubjectSelected[std::size_t(s)] = -1;
    }
};

} // namespace

TEST_F(Draws, DistractorsAreFiveDifferentEntriesAndLeaveTheSpareZero) {
    struct Case {
        const char* name;
        num::DistractorTable (*draw)();
        int low, high;
    };
    const Case cases[] = {{"significance", num::DrawSignificanceDistractors, 1, 14},
                          {"interpretation", num::DrawInterpretationDistractors, 1, 169}};
    for (const auto& c : cases) {
        std::set<int> seen;
        for (int run = 0; run < kRuns; ++run) {
            Seed(run);
            const auto local = c.draw();
            std::set<int> distinct(local.begin(), local.begin() + 5);
            EXPECT_EQ(distinct.size(), 5u) << c.name << " run " << run;
            EXPECT_GE(*distinct.begin(), c.low) << c.name;
            EXPECT_LE(*distinct.rbegin(), c.high) << c.name;
            EXPECT_EQ(local[5], 0) << c.name;
            seen.insert(distinct.begin(), distinct.end());
        }
        EXPECT_TRUE(seen.count(c.low) && seen.count(c.high)) << c.name << ": both ends are reached";
    }
}

TEST_F(Draws, InterpretationListHasFiveRowsOfEachTickedSubjectInOrder) {
    bool laterRepeat = false;
    for (int run = 0; run < kRuns; ++run) {
        Seed(run);
        const auto ticked = Ticks(run);
        Tick(ticked);
        num::BuildInterpretationQuestions();
        const long n = num::intInterpretationQuestion.UBound();
        ASSERT_EQ(n, long(5 * ticked.size())) << "run " << run;
        EXPECT_EQ(num::intInterpretationQuestion(n), 0) << "the last entry is never asked";
        EXPECT_EQ(num::strInterpretationAnswer.UBound(), n);
        for (std::size_t t = 0; t < ticked.size(); ++t) {
            const int s = ticked[t];
            std::set<int> own;
            for (long k = long(5 * t); k < long(5 * t + 5); ++k) {
                const int row = num::intInterpretationQuestion(k);
                EXPECT_GE(row, num::intFirstRow[std::size_t(s)]) << "run " << run;
                EXPECT_LE(row, num::intLastRow[std::size_t(s)]) << "run " << run;
                EXPECT_NE(row, 0) << "row 0 is never asked";
                own.insert(row);
            }
            if (t == 0)
                EXPECT_EQ(own.size(), 5u) << "the first ticked subject asks five rows";
            else
                laterRepeat = laterRepeat || own.size() < 5;
        }
    }
    EXPECT_TRUE(laterRepeat) << "a later subject's rows are not kept apart from each other";
}

TEST_F(Draws, RoundingGivesTheEndRowsOfASubjectHalfTheChance) {
    // Balance Number, rows 93 to 101, behind Life Path so that its rows repeat
    // freely and show the plain odds of the rounding.
    std::map<int, int> counts;
    for (int run = 0; run < 3000; ++run) {
        Seed(run);
        Tick({0, 7});
        num::BuildInterpretationQuestions();
        for (long k = 5; k < 10; ++k)
            ++counts[num::intInterpretationQuestion(k)];
    }
    ASSERT_EQ(counts.size(), 9u);
    double inner = 0;
    for (int row = 94; row <= 100; ++row)
        inner += counts[row];
    inner /= 7;
    for (int end : {93, 101}) {
        EXPECT_GT(counts[end], 0.38 * inner) << end;
        EXPECT_LT(counts[end], 0.62 * inner) << end;
    }
}

TEST_F(Draws, EachRowBelongsToTheSubjectWhoseRangeHoldsIt) {
    for (int row = 0; row <= 170; ++row) {
        const int s = num::SubjectOfRow(row);
        ASSERT_GE(s, 0) << row;
        EXPECT_GE(row, num::intFirstRow[std::size_t(s)]);
        EXPECT_LE(row, num::intLastRow[std::size_t(s)]);
    }
    EXPECT_EQ(num::SubjectOfRow(171), -1);
}
