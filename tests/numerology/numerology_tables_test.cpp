// Content tests of the Numerology knowledge base: shapes and bounds of the
// seven tables, the texts that must stand word for word, and the rules the
// written paragraphs keep (lengths per subject, tense, the shared bridge texts).
#include "numerology/NumerologyContent.h"
#include "numerology/modLearnNumerology.h"

#include "TableDigest.h"
#include "TextOpenings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace {

namespace num = quillane::modLearnNumerology;

std::vector<int> Range(int from, int to) {
    std::vector<int> values;
    for (int v = from; v <= to; ++v) {
        values.push_back(v);
    }
    return values;
}

const std::vector<int> kMasterShape = {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 22};
const std::vector<int> kDifferenceShape = Range(0, 8);
const std::vector<int> kPlainShape = Range(1, 9);

struct SubjectExpectation {
    int firstRow;
    int lastRow;
    std::vector<int> numbers;
    std::size_t shortest; // length of its shortest paragraph
    std::size_t longest;  // length of its longest paragraph
};

const std::vector<SubjectExpectation>& Subjects() {
    static const std::vector<SubjectExpectation> subjects = {
        {0, 10, kMasterShape, 191, 483},        {11, 21, kMasterShape, 261, 524},
        {22, 32, kMasterShape, 298, 418},       {33, 43, kMasterShape, 296, 396},
        {44, 74, Range(1, 31), 235, 588},       {75, 83, kDifferenceShape, 146, 343},
        {84, 92, kDifferenceShape, 198, 343},   {93, 101, kPlainShape, 224, 335},
        {102, 112, kMasterShape, 186, 442},     {113, 123, kMasterShape, 287, 583},
        {124, 132, kDifferenceShape, 314, 501}, {133, 143, kMasterShape, 210, 500},
        {144, 152, kPlainShape, 140, 342},      {153, 161, kPlainShape, 170, 275},
        {162, 170, kPlainShape, 226, 414},
    };
    return subjects;
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool Contains(const std::string& text, const std::string& word) {
    return Lower(text).find(word) != std::string::npos;
}

class NumerologyTables : public ::testing::Test {
protected:
    void SetUp() override { num::LoadNumerologyTables(); }
};

TEST_F(NumerologyTables, SubjectsStandInIndexOrderWithTheirRowsAndNumbers) {
    const auto& subjects = Subjects();
    ASSERT_EQ(subjects.size(), 15u);
    for (int s = 0; s < 15; ++s) {
        SCOPED_TRACE(s);
        const SubjectExpectation& expected = subjects[s];
        EXPECT_EQ(num::intFirstRow[s], expected.firstRow);
        EXPECT_EQ(num::intLastRow[s], expected.lastRow);
        std::vector<int> numbers;
        for (int row = num::intFirstRow[s]; row <= num::intLastRow[s]; ++row) {
            numbers.push_back(num::intNumber[row]);
        }
        EXPECT_EQ(numbers, expected.numbers);
    }
}

TEST_F(NumerologyTables, RowRangesAreContiguousAndCoverEveryRow) {
    EXPECT_EQ(num::intFirstRow[0], 0);
    for (int s = 1; s < 15; ++s) {
        EXPECT_EQ(num::intFirstRow[s], num::intLastRow[s - 1] + 1) << "subject " << s;
    }
    EXPECT_EQ(num::intLastRow[14], 170);
    // Every row belongs to exactly one subject, as the question heading needs.
    for (int row = 0; row <= 170; ++row) {
        int owners = 0;
        for (int s = 0; s < 15; ++s) {
            owners += (num::intFirstRow[s] <= row && row <= num::intLastRow[s]) ? 1 : 0;
        }
        EXPECT_EQ(owners, 1) << "row " << row;
    }
    // Rows that a heading shows as the subject and then 0, and plain day 11.
    EXPECT_EQ(num::intNumber[75], 0);
    EXPECT_EQ(num::intNumber[84], 0);
    EXPECT_EQ(num::intNumber[124], 0);
    EXPECT_EQ(num::intNumber[54], 11);
}

TEST_F(NumerologyTables, SpareSubjectEntryStaysEmptyAndReloadRestoresEverything) {
    auto expectSpareEmpty = [] {
        EXPECT_TRUE(num::strSubject[15].empty());
        EXPECT_TRUE(num::strSignificance[15].empty());
        EXPECT_TRUE(num::strCalculation[15].empty());
        EXPECT_EQ(num::intFirstRow[15], 0);
        EXPECT_EQ(num::intLastRow[15], 0);
    };
    expectSpareEmpty();

    const auto subjects = num::strSubject;
    const auto calculations = num::strCalculation;
    const auto interpretations = num::strInterpretation;
    const auto numbers = num::intNumber;
    num::strSubject[15] = "stray";
    num::intFirstRow[15] = 99;
    num::strSubject[3] = "changed";
    num::strCalculation[0].clear();
    num::strInterpretation[170] = "changed";
    num::intNumber[0] = 42;

    num::LoadNumerologyTables();
    expectSpareEmpty();
    EXPECT_EQ(num::strSubject, subjects);
    EXPECT_EQ(num::strCalculation, calculations);
    EXPECT_EQ(num::strInterpretation, interpretations);
    EXPECT_EQ(num::intNumber, numbers);
}

// One digest per table stands for its texts; a deliberate change of the
// texts updates the constant here in the same commit.
TEST_F(NumerologyTables, EachTableMatchesItsDigest) {
    const auto numbers = [](const auto& column) {
        std::vector<std::string> texts;
        for (int value : column) {
            texts.push_back(std::to_string(value));
        }
        return texts;
    };
    quillane::testing::TableDigest subjects;
    subjects.AddAll(num::strSubject).AddAll(num::strSignificance).AddAll(num::strCalculation);
    subjects.AddAll(numbers(num::intFirstRow)).AddAll(numbers(num::intLastRow));
    EXPECT_EQ(subjects.Value(), 0x22f211a879f18cb8u) << "new digest " << subjects.Hex();
    quillane::testing::TableDigest rows;
    rows.AddAll(numbers(num::intNumber)).AddAll(num::strInterpretation);
    EXPECT_EQ(rows.Value(), 0x370a2c99fd8ab09fu) << "new digest " << rows.Hex();
}

// Rows where a slip would show: the ends, the charts' spacing, the quotes.
TEST_F(NumerologyTables, SampleTextsStandAsWritten) {
    EXPECT_EQ(num::strSubject[0], "Life Path Number");
    EXPECT_EQ(num::strSubject[2], "Soul's Urge/ Heart's Desire Number");
    EXPECT_EQ(num::strSubject[14], "Personal Year Number");
    EXPECT_TRUE(
        num::strSignificance[5].starts_with("This number answers the 'whom' in you.  This"));
    EXPECT_NE(num::strCalculation[1].find("\r\n1  2   3   4   5    6    7    8    9 \r\nA  B "),
              std::string::npos);
    EXPECT_NE(num::strCalculation[2].find("\r\nA \"Y\" is also a vowel"), std::string::npos);
    EXPECT_NE(num::strCalculation[3].find("\r\nS   T    --    V    W*  X     Y*   Z   --\r\n"),
              std::string::npos);
    EXPECT_TRUE(num::strCalculation[12].ends_with("\r\nSo, in this case the Personal Day is 4."));
    EXPECT_TRUE(num::strInterpretation[0].starts_with("Your main purpose should be attaining "));
    EXPECT_TRUE(num::strInterpretation[162].starts_with(
        "It's a perfect time to start any new venture. Listen to your heart and fulfill it.   "));
    EXPECT_TRUE(num::strInterpretation[170].ends_with("."));
    // The test by significance tells subjects apart by these texts alone.
    std::set<std::string> distinct(num::strSignificance.begin(), num::strSignificance.begin() + 15);
    EXPECT_EQ(distinct.size(), 15u);
}

TEST_F(NumerologyTables, CalculationTextsJoinLinesWithCrLf) {
    const int lineCounts[15] = {3, 7, 7, 7, 1, 3, 3, 11, 6, 6, 5, 8, 9, 3, 3};
    for (int s = 0; s < 15; ++s) {
        SCOPED_TRACE(s);
        const std::string& text = num::strCalculation[s];
        ASSERT_FALSE(text.empty());
        int crlf = 0;
        for (std::size_t at = text.find("\r\n"); at != std::string::npos;
             at = text.find("\r\n", at + 2)) {
            ++crlf;
        }
        EXPECT_EQ(crlf + 1, lineCounts[s]);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), crlf);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), crlf);
        EXPECT_NE(text.back(), '\n');
    }
}

TEST_F(NumerologyTables, ParagraphLengthsSpanEachSubjectsRangeExactly) {
    for (int s = 0; s < 15; ++s) {
        SCOPED_TRACE(num::strSubject[s]);
        const SubjectExpectation& expected = Subjects()[s];
        std::size_t shortest = SIZE_MAX;
        std::size_t longest = 0;
        for (int row = num::intFirstRow[s]; row <= num::intLastRow[s]; ++row) {
            const std::size_t length = num::strInterpretation[row].size();
            EXPECT_GE(length, expected.shortest) << "row " << row;
            EXPECT_LE(length, expected.longest) << "row " << row;
            shortest = std::min(shortest, length);
            longest = std::max(longest, length);
        }
        EXPECT_EQ(shortest, expected.shortest);
        EXPECT_EQ(longest, expected.longest);
    }
}

TEST_F(NumerologyTables, BridgeRowsSixToEightShareTheirTextAndAllOthersDiffer) {
    for (int row = 81; row <= 83; ++row) {
        EXPECT_EQ(num::strInterpretation[row], num::strInterpretation[row + 9]) << "row " << row;
        EXPECT_EQ(num::intNumber[row], num::intNumber[row + 9]);
        // Held once in the content, not as two copies that could drift apart.
        namespace content = quillane::modLearnNumerology::content;
        EXPECT_EQ(content::kInterpretationRows[row].text.data(),
                  content::kInterpretationRows[row + 9].text.data());
    }
    std::set<std::string> distinct(num::strInterpretation.begin(), num::strInterpretation.end());
    EXPECT_EQ(distinct.size(), 168u);
}

TEST_F(NumerologyTables, ParagraphsArePlainSingleLineSecondPersonText) {
    for (int row = 0; row <= 170; ++row) {
        SCOPED_TRACE(row);
        const std::string& text = num::strInterpretation[row];
        EXPECT_TRUE(std::all_of(text.begin(), text.end(),
                                [](unsigned char c) { return c >= 0x20 && c < 0x7f; }));
        EXPECT_NE(text.front(), ' ');
        EXPECT_EQ(text.back(), '.');
        EXPECT_TRUE(Contains(text, "you"));
    }
}

TEST_F(NumerologyTables, NoOpeningOfThreeWordsStartsMoreThanHalfASubject) {
    for (int s = 0; s < 15; ++s) {
        const std::span rows(num::strInterpretation.begin() + num::intFirstRow[s],
                             num::strInterpretation.begin() + num::intLastRow[s] + 1);
        const auto [opening, count] = quillane::testing::MostCommonOpening(rows);
        EXPECT_LE(2 * count, rows.size()) << num::strSubject[s] << ": \"" << opening << "\"";
    }
}

TEST_F(NumerologyTables, PersonalDayMonthAndYearRowsSpeakOfTheirOwnPeriod) {
    // Rows written for one period never speak of another. The month's first
    // row speaks of "this time" and is left out of the month check.
    struct Period {
        int firstRow;
        int lastRow;
        const char* word;
    };
    const Period periods[] = {
        {144, 152, "today"}, {154, 161, "this month"}, {162, 170, "this year"}};
    for (const Period& period : periods) {
        for (int row = period.firstRow; row <= period.lastRow; ++row) {
            const std::string& text = num::strInterpretation[row];
            for (const Period& other : periods) {
                EXPECT_EQ(Contains(text, other.word), &other == &period)
                    << "row " << row << ", \"" << other.word << "\"";
            }
        }
    }
}

TEST_F(NumerologyTables, SeveralDestinyRowsCloseOnTheNegativeTrait) {
    int closing = 0;
    for (int row = 0; row <= 170; ++row) {
        const std::string& text = num::strInterpretation[row];
        const std::size_t at = text.find("The negative trait of this number");
        if (at == std::string::npos) {
            continue;
        }
        EXPECT_TRUE(row >= 11 && row <= 21) << "row " << row << " is no Destiny row";
        // The word stands at the end: it opens one of the last two sentences.
        const std::string tail = text.substr(at);
        EXPECT_LE(std::count(tail.begin(), tail.end(), '.'), 2) << "row " << row;
        ++closing;
    }
    EXPECT_GE(closing, 3);
    EXPECT_LT(closing, 11);
}

} // namespace
