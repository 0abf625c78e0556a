// Content tests of the Numerology knowledge base: shapes and bounds of the
// seven tables, the texts that must stand word for word, and the rules the
// written paragraphs keep (lengths per subject, tense, the shared bridge texts).
#include "numerology/NumerologyContent.h"
#include "numerology/modLearnNumerology.h"

#include "TextOpenings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace {

namespace num = quillane::modLearnNumerology;

// Declared shapes: 16 subject entries (one spare), 171 rows, 16-bit numbers.
static_assert(std::tuple_size_v<decltype(num::strSubject)> == 16);
static_assert(std::tuple_size_v<decltype(num::strSignificance)> == 16);
static_assert(std::tuple_size_v<decltype(num::strCalculation)> == 16);
static_assert(std::tuple_size_v<decltype(num::intFirstRow)> == 16);
static_assert(std::tuple_size_v<decltype(num::intLastRow)> == 16);
static_assert(std::tuple_size_v<decltype(num::intNumber)> == 171);
static_assert(std::tuple_size_v<decltype(num::strInterpretation)> == 171);
static_assert(std::is_same_v<decltype(num::intFirstRow)::value_type, std::int16_t>);
static_assert(std::is_same_v<decltype(num::intLastRow)::value_type, std::int16_t>);
static_assert(std::is_same_v<decltype(num::intNumber)::value_type, std::int16_t>);

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
    const char* name;
    int firstRow;
    int lastRow;
    std::vector<int> numbers;
    std::size_t shortest; // length of its shortest paragraph
    std::size_t longest;  // length of its longest paragraph
};

const std::vector<SubjectExpectation>& Subjects() {
    static const std::vector<SubjectExpectation> subjects = {
        {"Life Path Number", 0, 10, kMasterShape, 191, 483},
        {"Destiny / Expression Number", 11, 21, kMasterShape, 261, 524},
        {"Soul's Urge/ Heart's Desire Number", 22, 32, kMasterShape, 298, 418},
        {"Inner Dreams / Personality Number", 33, 43, kMasterShape, 296, 396},
        {"Birthday Number", 44, 74, Range(1, 31), 235, 588},
        {"Life Path / Expression Bridge Number", 75, 83, kDifferenceShape, 146, 343},
        {"Heart Desire / Personality Bridge Number", 84, 92, kDifferenceShape, 198, 343},
        {"Balance Number", 93, 101, kPlainShape, 224, 335},
        {"Maturity / Realization Number", 102, 112, kMasterShape, 186, 442},
        {"Pinnacle Number", 113, 123, kMasterShape, 287, 583},
        {"Challenge Number", 124, 132, kDifferenceShape, 314, 501},
        {"Life Path Period Number", 133, 143, kMasterShape, 210, 500},
        {"Personal Day Number", 144, 152, kPlainShape, 140, 342},
        {"Personal Month Number", 153, 161, kPlainShape, 170, 275},
        {"Personal Year Number", 162, 170, kPlainShape, 226, 414},
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
        EXPECT_EQ(num::strSubject[s], expected.name);
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

TEST_F(NumerologyTables, SignificanceTextsAreWordForWordAndDistinct) {
    const std::vector<std::pair<int, std::string>> expected = {
        {0, "This represents who you are at birth. It gives a broad outline of the various good "
            "and bad opportunities, struggles that you may have to face throughout your life."},
        {5, "This number answers the 'whom' in you.  This number helps you understand yourself and "
            "close the gap with the path you are taking in your life. It helps you change the "
            "factors that are stopping you from leading a happy and prosperous life."},
        {14, "This number describes the pattern of the particular year. Each year you work through "
             "one of the nine years that define your experiences in life. It is concurrent with "
             "the calendar year."},
    };
    for (const auto& [index, text] : expected) {
        EXPECT_EQ(num::strSignificance[index], text) << "subject " << index;
    }
    // The test by significance tells subjects apart by these texts alone.
    std::set<std::string> distinct(num::strSignificance.begin(), num::strSignificance.begin() + 15);
    EXPECT_EQ(distinct.size(), 15u);
}

TEST_F(NumerologyTables, CalculationTextsKeepChartsAndJoinLinesWithCrLf) {
    const std::vector<std::pair<int, std::string>> expected = {
        {1, "The Destiny Number is calculated by making use of your full name as given at birth, "
            "and then assigning a value for each letter based on a manual calculation table as "
            "shown below. You then simply need to add up these numbers to a single digit and "
            "display that number."
            "\r\n"
            "For instance, RAM= 9+1+4=14=1+4=5"
            "\r\n"
            "The manual calculation table is shown as below:"
            "\r\n"
            "1  2   3   4   5    6    7    8    9 "
            "\r\n"
            "A  B   C   D   E    F    G    H    I "
            "\r\n"
            "J  K   L   M   N    O    P    Q    R "
            "\r\n"
            "S  T   U   V   W    X    Y    Z"},
        {2,
         "For calculating the Heart Desire Number, we consider the full name given at birth. Then "
         "the vowels within the name are taken up, and a value is assigned to each different "
         "vowel. We then add up the numbers to a single digit and display the Heart Desire number."
         "\r\n"
         "1---2---3---4---5---6---7---8---9 "
         "\r\n"
         "A----------------E-----------------I "
         "\r\n"
         "--------------------O------------ "
         "\r\n"
         "---------U-------W*----Y*------- "
         "\r\n"
         "A \"Y\" is also a vowel when there is no other vowel in a syllable (Lynn or Carolyn) and "
         "when it is preceded by a vowel and sounded as one sound (Hayden). A \"W\" is treated as "
         "a vowel when it is preceded by a vowel and produces a single sound, as in such names and "
         "Bradshaw."
         "\r\n"
         "For instance, SWETA = E=5, A=1 = 5+1= 6"},
        {3, "Your Inner Dreams Number is calculated from the sum of the consonants in your name. "
            "Here 's a chart showing the value of the consonants:"
            "\r\n"
            "1    2    3    4     5     6    7    8    9"
            "\r\n"
            "--   B    C    D    --    F    G    H    --"
            "\r\n"
            "J    K    L    M     N    --    P    Q    R"
            "\r\n"
            "S   T    --    V    W*  X     Y*   Z   --"
            "\r\n"
            "For Example for the name John Smith"
            "\r\n"
            "Personality Number = 1+8+5 + 1+4+2+8 = 5+6 = 11"},
        {4, "The Birthday Number is simply calculated by taking the number of the day when you "
            "were born. For instance, if John Smith was born on 14th June, 1971, his Birthday "
            "Number would be 14."},
        {7, "Your Balance Number is calculated by adding the numeric value of the initials of your "
            "full name given at birth. For instance, if your birth name is John Smith, then this "
            "number is obtained by analyzing the letters J & S."
            "\r\n"
            "The below mentioned number chart helps you to make manual calculations:"
            "\r\n"
            "1 2 3 4 5 6 7 8 9"
            "\r\n"
            "A B C D E F G H I"
            "\r\n"
            "J K L M N O P Q R"
            "\r\n"
            "S T U V W X Y Z"
            "\r\n"
            "Therefore,"
            "\r\n"
            "J = 1"
            "\r\n"
            "S = 1"
            "\r\n"
            "So 1 + 1 = 2"
            "\r\n"
            "Result = John has a Balance number of 2."},
        {12, "Follow the example to determine your Personal Day."
             "\r\n"
             "Birth Day: 10"
             "\r\n"
             "Birth Month: 1"
             "\r\n"
             "Current Day: 1"
             "\r\n"
             "Current Month: 2"
             "\r\n"
             "Current Year: 2006"
             "\r\n"
             "Result: 1+0+1+1+2+2+0+0+ 6 = 13"
             "\r\n"
             "1+3 = 4"
             "\r\n"
             "So, in this case the Personal Day is 4."},
    };
    for (const auto& [index, text] : expected) {
        EXPECT_EQ(num::strCalculation[index], text) << "subject " << index;
    }
    // Line counts of all fifteen, and no stray line ends of any other kind.
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

TEST_F(NumerologyTables, FirstRowOfEachSubjectIsWordForWord) {
    const std::vector<std::pair<int, std::string>> expected = {
        {0, "Your main purpose should be attaining independency. You are born with leadership "
            "qualities. The individual with this number has to overcome an environment in which it "
            "is very easy to be dependent, and difficult to be independent."},
        {11,
         "This tells you are a leader. You are talented, skilled and posses cool administrative "
         "capabilities. Problem solving, originality and creativity are your traits. You know how "
         "to get things going and make things happen. The negative trait of this number includes "
         "one becoming egotistic and developing a self-centered approach to life. This number has "
         "an aggressive nature and the mantra is to maintain calm."},
        {22,
         "You achieve a sense of gratification when you succeed in any type of competition. You "
         "need to have the sense that you are a winner at doing what you do. You are intelligent "
         "and witty. Winning makes you feel accepted and appreciated. You have a good insight "
         "about others abilities. You are responsible and a pioneer in your field."},
        {33, "Great feeling of importance is what you love. You want to be known for your courage, "
             "daring, and original ideas. You are a pioneer in your field. People may get a first "
             "impression that you are very aggressive and sure of yourself. You are confident and "
             "won't be pushed around. You are dynamic and in control. You feel comfortable with "
             "your personality."},
        {44, "People associated with this prefer their uniqueness. You are aggressive in nature. "
             "You are enormously honest and do your best to learn negotiation skills. So be open, "
             "you have a good future ahead. You have the qualities of a good boss."},
        {75, "You will probably experience a great deal of peace in your life. This is a very "
             "lucky combination and generally indicates progress in these areas."},
        {84, "This is very lucky number and you will make people feel comfortable around you. "
             "Sometimes your life may go haywire if your Life Path number or your Expression "
             "numbers are also identical to your Heart's Desire number and your Personality "
             "number. Don't worry it is not constant."},
        {93, "You should make use of your keen sense of awareness. Do not hesitate to ask others "
             "for help in need. React confidently and capably. You need our strength to win the "
             "war but others' advice may also be helpful. Do not be aggressive or stubborn. You "
             "need to have the right balance of courage and creativity."},
        {102, "As you grow older, will love being independent. You will fight for success. The "
              "feeling of being shown importance will rise in you. You wish to be complimented and "
              "rewarded for your success. This will automatically increase your confidence level."},
        {113, "This signifies the period when you will be aiming for independence. You want your "
              "individuality to be accepted and your ideas and achievements to be recognized. You "
              "have to rely on only your strength, as you may not receive any support from family. "
              "Responsibilities will be fulfilled if you're allowed to lead. You need to put in "
              "effort to achieve success and rewards."},
        {124, "Steady growth is seen. There will be no serious problems. You may discover your "
              "inner self. You are expected to focus on your life goals. This is known as the "
              "challenge of choice. You need to have faith in yourself to face the problems and "
              "solve them. You are being given an opportunity to do something for others."},
        {133,
         "It's a time of progress. You must intensify the process of achieving your goals and "
         "apply your strengths and abilities to your job. The period will also test you skills, so "
         "you are expected to be an independent individual. Don't rely much on others. Don't get "
         "diverted form your life's vision. You must struggle hard to overcome the obstacles."},
        {144, "This is an excellent occasion to think about self and about our tactics, dreams, "
              "wants and desires. Watch out for your independency. Explore creative ideas and stay "
              "away from negative opinions. Implement your plans and actions today."},
        {153, "This is a time for new beginnings. Explore creative ideas. Maintain your "
              "individuality. The projects and assignments started during this time are the seeds "
              "being planted for later growth. You need to be aware of what you are planting."},
        {162, "It's a perfect time to start any new venture. Listen to your heart and fulfill it.  "
              " Follow your dreams and start implementing. It is not a time to wait around as you "
              "could miss out on what this year has to offer. You really are setting the pace for "
              "the next nine years. Hard work is the key to making this year successful."},
    };
    ASSERT_EQ(expected.size(), 15u);
    for (std::size_t s = 0; s < expected.size(); ++s) {
        const auto& [row, text] = expected[s];
        EXPECT_EQ(row, num::intFirstRow[s]);
        EXPECT_EQ(num::strInterpretation[row], text) << "row " << row;
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
