#include "numerology/NumerologyContent.h"

namespace quillane::modLearnNumerology::content {

// How each kind of number is worked out, one entry per shown line. The charts
// are laid out for a fixed-pitch font: every blank and hyphen is part of them,
// trailing blanks included. The worked examples stand as they are, slips and all.
namespace {

// 0: Life Path Number
constexpr std::string_view kLifePath[] = {
    "The Life Path is the sum of the digits of your date if birth. Add all the numbers together to "
    "reduce it to a single number.",
    "e.g.: 06/08/1979= 6+8+1+9+7+9 =40=4.",
    "Life path Number = 4",
};

// 1: Destiny / Expression Number
constexpr std::string_view kDestiny[] = {
    "The Destiny Number is calculated by making use of your full name as given at birth, and then "
    "assigning a value for each letter based on a manual calculation table as shown below. You "
    "then simply need to add up these numbers to a single digit and display that number.",
    "For instance, RAM= 9+1+4=14=1+4=5",
    "The manual calculation table is shown as below:",
    "1  2   3   4   5    6    7    8    9 ",
    "A  B   C   D   E    F    G    H    I ",
    "J  K   L   M   N    O    P    Q    R ",
    "S  T   U   V   W    X    Y    Z",
};

// 2: Soul's Urge/ Heart's Desire Number
constexpr std::string_view kSoulsUrge[] = {
    "For calculating the Heart Desire Number, we consider the full name given at birth. Then the "
    "vowels within the name are taken up, and a value is assigned to each different vowel. We then "
    "add up the numbers to a single digit and display the Heart Desire number.",
    "1---2---3---4---5---6---7---8---9 ",
    "A----------------E-----------------I ",
    "--------------------O------------ ",
    "---------U-------W*----Y*------- ",
    "A \"Y\" is also a vowel when there is no other vowel in a syllable (Lynn or Carolyn) and when "
    "it is preceded by a vowel and sounded as one sound (Hayden). A \"W\" is treated as a vowel "
    "when it is preceded by a vowel and produces a single sound, as in such names and Bradshaw.",
    "For instance, SWETA = E=5, A=1 = 5+1= 6",
};

// 3: Inner Dreams / Personality Number
constexpr std::string_view kInnerDreams[] = {
    "Your Inner Dreams Number is calculated from the sum of the consonants in your name. Here 's a "
    "chart showing the value of the consonants:",
    "1    2    3    4     5     6    7    8    9",
    "--   B    C    D    --    F    G    H    --",
    "J    K    L    M     N    --    P    Q    R",
    "S   T    --    V    W*  X     Y*   Z   --",
    "For Example for the name John Smith",
    "Personality Number = 1+8+5 + 1+4+2+8 = 5+6 = 11",
};

// 4: Birthday Number
constexpr std::string_view kBirthday[] = {
    "The Birthday Number is simply calculated by taking the number of the day when you were born. "
    "For instance, if John Smith was born on 14th June, 1971, his Birthday Number would be 14.",
};

// 5: Life Path / Expression Bridge Number
constexpr std::string_view kLifePathExpressionBridge[] = {
    "This is calculated for a person by subtracting the life path number from the expression "
    "number or vice versa.",
    "Example: John Smith with Life path Number = 4 and Expression Number =3",
    "Life Path / Expression Bridge Number = 4 - 3 = 1",
};

// 6: Heart Desire / Personality Bridge Number
constexpr std::string_view kHeartDesirePersonalityBridge[] = {
    "This is calculated for a person by subtracting the personality number from the heart desire "
    "number or vice versa.",
    "Example: John Smith with Personality Number = 5 and Heart Desire Number =3",
    "Heart Desire / Personality Bridge Number = 5 - 3 = 2",
};

// 7: Balance Number
constexpr std::string_view kBalance[] = {
    "Your Balance Number is calculated by adding the numeric value of the initials of your full "
    "name given at birth. For instance, if your birth name is John Smith, then this number is "
    "obtained by analyzing the letters J & S.",
    "The below mentioned number chart helps you to make manual calculations:",
    "1 2 3 4 5 6 7 8 9",
    "A B C D E F G H I",
    "J K L M N O P Q R",
    "S T U V W X Y Z",
    "Therefore,",
    "J = 1",
    "S = 1",
    "So 1 + 1 = 2",
    "Result = John has a Balance number of 2.",
};

// 8: Maturity / Realization Number
constexpr std::string_view kMaturity[] = {
    "The Maturity Number can be calculated by adding your Life path and Destiny numbers.",
    "Your life path determines your natural tendencies, abilities, and attitude toward the world.",
    "For example: John Smith - date of birth 1/2/1960",
    "Life path Number = 1+2+1960 = 10= 1",
    "Destiny Number = 2+6 =8 ",
    "Maturity Number = Life path Number + Destiny Number = 1 +8 = 9",
};

// 9: Pinnacle Number
constexpr std::string_view kPinnacle[] = {
    "To calculate the Pinnacle Number, you need to take into account the day of birth, along with "
    "the month and the year. First of all, you have to reduce each of these components into single "
    "digits, which will be the master numbers. For instance, 14th December, 1968 will become month "
    "3 (1+2), day 5 (1+4), and year 6 (1+9+6+8=24; 2+4=6).",
    "The first pinnacle is then calculated by adding up the month and day of birth. In this "
    "example, this would be 3+5=8 first pinnacle.",
    "The second pinnacle is obtained by adding up the day of birth with the year of birth. The "
    "example would be 5+6=11; the master number 11 for a second pinnacle.",
    "The third pinnacle is calculated by adding up the first and the second pinnacle. Our example "
    "would have an",
    "8+11=19 or 1 third pinnacle.",
    "Adding up the month and the year of birth indicates the fourth pinnacle. Our example would "
    "produce a 3+6=9 fourth pinnacle.",
};

// 10: Challenge Number
constexpr std::string_view kChallenge[] = {
    "If John Smith was born on 1st May, 1970, we reduce each of these units (the month, the day, "
    "and the year) to single digits. The result is 1, 5 and 8.",
    "To find the First Challenge we differentiate between the month and day of birth. In our "
    "example, we subtract 1 from 5 = 4.",
    "The Second Challenge is actually the difference between the day and year of birth. In our "
    "example, we deduct 1 from 8 = 7.",
    "The Third and main Challenge equals the difference between the 1st and 2nd Challenge. "
    "Similarly, in our example, we deduct 4 from 7 which is equal to 3.",
    "The Fourth Challenge is the difference between the month and year of birth. In our example, "
    "we deduct 5 from 8 = 3.",
};

// 11: Life Path Period Number
constexpr std::string_view kLifePathPeriod[] = {
    "The First Life Path Period is calculated from the Month of Birth.",
    "The Second Life Path Period is calculated from the Day of Birth.",
    "The Third Life Path Period is calculated from the Year of Birth.",
    "For Example:",
    "For date of birth 6/10/2000",
    "First Life Path Period = 1",
    "Second Life Path Period = 6",
    "Third Life Path Period = 2",
};

// 12: Personal Day Number
constexpr std::string_view kPersonalDay[] = {
    "Follow the example to determine your Personal Day.",
    "Birth Day: 10",
    "Birth Month: 1",
    "Current Day: 1",
    "Current Month: 2",
    "Current Year: 2006",
    "Result: 1+0+1+1+2+2+0+0+ 6 = 13",
    "1+3 = 4",
    "So, in this case the Personal Day is 4.",
};

// 13: Personal Month Number
constexpr std::string_view kPersonalMonth[] = {
    "To calculate your Personal Month Number, simply add up your date of birth, along with your "
    "birth month, the current month and the current year.",
    "For instance, if your day of birth is 15, birth month is 7, current month is 5 and the "
    "current year is 2007:",
    "Your Personal Month Number will be 1+5+7+5+2+0+0+7=27",
};

// 14: Personal Year Number
constexpr std::string_view kPersonalYear[] = {
    "It is calculated by reducing the day of your birth and the month of your birth to single "
    "digits. Then reduce the year of your birth to a single digit. Now add the digits representing "
    "the three components of your birth date to single digit. This digit added to the single digit "
    "representing the year in question gives the personal year of a person.",
    "For example: Suppose the date of birth of a person is 22.04.87. Adding the day of the birth "
    "we get the digit 4. Adding the month of the birth we get the digit 4. Adding the year of the "
    "birth we get the digit 6. Thus adding the three components of the date of birth we get the "
    "digit 5. Suppose the year in question is 2006. Adding the digits of this year we get the "
    "digit 8.",
    "So 5 added to 8 is 13 which is again reduced to the digit 4. So, ultimately 4 is the personal "
    "year number of the person.",
};

} // namespace

constexpr std::array<std::span<const std::string_view>, kSubjectCount> kCalculationLines = {
    kLifePath,
    kDestiny,
    kSoulsUrge,
    kInnerDreams,
    kBirthday,
    kLifePathExpressionBridge,
    kHeartDesirePersonalityBridge,
    kBalance,
    kMaturity,
    kPinnacle,
    kChallenge,
    kLifePathPeriod,
    kPersonalDay,
    kPersonalMonth,
    kPersonalYear,
};

} // namespace quillane::modLearnNumerology::content
