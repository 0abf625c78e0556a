// The Numerology knowledge base: one digest per table, the row ranges the
// tests rely on, and the rules the written paragraphs keep (plain prose, the
// shared bridge texts, each period speaking of its own).
#include "numerology/modLearnNumerology.h"

#include "Prose.h"
#include "TableDigest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace {

namespace num = quillane::modLearnNumerology;

bool Contains(std::string text, const std::string& word) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text.find(word) != std::string::npos;
}

template <typename Column> std::vector<std::string> Numbers(const Column& column) {
    std::vector<std::string> texts;
    texts.reserve(std::size(column));
    for (int value : column)
        texts.push_back(std::to_string(value));
    return texts;
}

class NumerologyTables : public ::testing::Test {
protected:
    void SetUp() override { num::LoadNumerologyTables(); }
};

// One digest per table stands for its texts and numbers, the spare entries
// included; a deliberate change updates the constant here in the same
// commit. Loading again restores them.
TEST_F(NumerologyTables, EachTableMatchesItsDigestAgainAfterAReload) {
    num::strSubject[15] = "stray";
    num::intFirstRow[15] = 99;
    num::strCalculation[0].clear();
    num::strInterpretation[170] = "changed";
    num::intNumber[0] = 42;
    num::LoadNumerologyTables();
    quillane::testing::TableDigest subjects;
    subjects.AddAll(num::strSubject).AddAll(num::strSignificance).AddAll(num::strCalculation);
    subjects.AddAll(Numbers(num::intFirstRow)).AddAll(Numbers(num::intLastRow));
    EXPECT_EQ(subjects.Value(), 0x22f211a879f18cb8u) << "new digest " << subjects.Hex();
    quillane::testing::TableDigest rows;
    rows.AddAll(Numbers(num::intNumber)).AddAll(num::strInterpretation);
    EXPECT_EQ(rows.Value(), 0x370a2c99fd8ab09fu) << "new digest " << rows.Hex();
}

// The tests tell subjects apart by their significance texts, and head a
// question by the one subject whose rows hold it.
TEST_F(NumerologyTables, SubjectsCoverEveryRowOnceAndTellThemselvesApart) {
    EXPECT_EQ(num::intFirstRow[0], 0);
    for (int s = 1; s < 15; ++s)
        EXPECT_EQ(num::intFirstRow[s], num::intLastRow[s - 1] + 1) << "subject " << s;
    EXPECT_EQ(num::intLastRow[14], 170);
    const std::set<std::string> distinct(num::strSignificance.begin(),
                                         num::strSignificance.begin() + 15);
    EXPECT_EQ(distinct.size(), 15u);
    for (int s = 0; s < 15; ++s) {
        std::string text = num::strCalculation[s];
        EXPECT_FALSE(text.empty() || text.back() == '\n');
        for (std::size_t at; (at = text.find("\r\n")) != std::string::npos;)
            text.replace(at, 2, " ");
        EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos) << "lines are joined by CR LF";
    }
}

TEST_F(NumerologyTables, ParagraphsArePlainSecondPersonProseOfVariedOpenings) {
    for (int row = 0; row <= 170; ++row) {
        const std::string& text = num::strInterpretation[row];
        EXPECT_EQ(quillane::testing::ProseFault(text), "") << "row " << row;
        EXPECT_EQ(text.find('\n'), std::string::npos) << "row " << row;
        EXPECT_TRUE(text.size() >= 140 && text.size() <= 600) << "row " << row;
        EXPECT_TRUE(Contains(text, "you")) << "row " << row;
    }
    for (int s = 0; s < 15; ++s) {
        const std::span rows(num::strInterpretation.begin() + num::intFirstRow[s],
                             num::strInterpretation.begin() + num::intLastRow[s] + 1);
        const auto [opening, count] = quillane::testing::MostCommonOpening(rows);
        EXPECT_LE(2 * count, rows.size()) << num::strSubject[s] << ": \"" << opening << "\"";
    }
}

TEST_F(NumerologyTables, BridgeRowsSixToEightShareTheirTextAndAllOthersDiffer) {
    for (int row = 81; row <= 83; ++row) {
        EXPECT_EQ(num::strInterpretation[row], num::strInterpretation[row + 9]) << "row " << row;
        EXPECT_EQ(num::intNumber[row], num::intNumber[row + 9]);
    }
    std::set<std::string> distinct(num::strInterpretation.begin(), num::strInterpretation.end());
    EXPECT_EQ(distinct.size(), 168u);
}

// Rows written for one period never speak of another. The month's first row
// speaks of "this time" and is left out.
TEST_F(NumerologyTables, PersonalDayMonthAndYearRowsSpeakOfTheirOwnPeriod) {
    const struct {
        int firstRow, lastRow;
        const char* word;
    } periods[] = {{144, 152, "today"}, {154, 161, "this month"}, {162, 170, "this year"}};
    for (const auto& period : periods)
        for (int row = period.firstRow; row <= period.lastRow; ++row)
            for (const auto& other : periods)
                EXPECT_EQ(Contains(num::strInterpretation[row], other.word), &other == &period)
                    << "row " << row << ", \"" << other.word << "\"";
}

} // namespace
