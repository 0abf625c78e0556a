// Tests of the Astrology knowledge base: the tables' texts, their shape, the
// written paragraphs, the category table and the glyph pictures.

#include "astrology/modLearnAstrology.h"

#include "TextOpenings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace mla = quillane::modLearnAstrology;

namespace {

using Rows = std::vector<std::string>;

// Every short column, row by row, as the window must show it.
const Rows kSign = {"Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
                    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
const Rows kSignDates = {
    "March 21 - April 19",       "April 20 - May 20",        "May 22 - June 21",
    "June 22 - July 22",         "July 23 - August 22",      "August 23 - September 22",
    "September 23 - October 22", "October 23 - November 22", "November 23 - December 22",
    "December 23 - January 20",  "January 20 - February 19", "February 19 - March 20"};
const Rows kSignNumber = {"First",   "Second", "Third", "Fourth", "Fifth",    "Sixth",
                          "Seventh", "Eighth", "Ninth", "Tenth",  "Eleventh", "Twelfth"};
const Rows kSignOpposite = {"Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces",
                            "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo"};
const Rows kSignKeywords = {"Pioneer, Assertive, Energetic",
                            "Determined, Stable, Sensual",
                            "Curious, Intelligent, Congenial",
                            "Protective, Cautious, Intuitive",
                            "Generous, Enthusiastic, Social",
                            "Modest, Critical, Methodical",
                            "Pleasant, Sociable, Diplomatic",
                            "Secretive, Possessive, Investigative",
                            "Adventurous, Extrovert, Philosophical",
                            "Serious, Ambitious, Disciplined",
                            "Intelligent, Innovative, Individualistic",
                            "Sensitive, Compassionate, Introspective"};
const Rows kSignElement = {"Fire", "Earth", "Air",  "Water", "Fire", "Earth",
                           "Air",  "Water", "Fire", "Earth", "Air",  "Water"};
const Rows kSignRulingPlanet = {
    "Mars",  "Venus",          "Mercury", "The Moon", "The Sun",           "Mercury",
    "Venus", "Pluto and Mars", "Jupiter", "Saturn",   "Uranus and Saturn", "Neptune and Jupiter"};
const Rows kSignLuckyNumber = {"9",      "6",      "5",      "2",      "8 && 9", "3 && 5",
                               "6 && 9", "2 && 4", "5 && 7", "8 && 2", "1 && 7", "2 && 6"};
const Rows kSignLuckyColor = {"Red",    "Green", "Yellow", "Silver",
                              "Gold",   "Blue",  "Blue",   "Burgundy and Black",
                              "Purple", "Brown", "Violet", "Sea green"};
const Rows kSignLuckyDay = {"Tuesday", "Friday",  "Wednesday", "Monday",   "Sunday",    "Wednesday",
                            "Friday",  "Tuesday", "Thursday",  "Saturday", "Wednesday", "Friday"};
const Rows kSignBirthstone = {"Diamond",   "Emerald",  "Agate",    "Pearl",
                              "Ruby",      "Sapphire", "Opal",     "Topaz",
                              "Turquoise", "Garnet",   "Amethyst", "Aquamarine"};
const Rows kSignQuality = {"Cardinal", "Fixed", "Mutable", "Cardinal", "Fixed", "Mutable",
                           "Cardinal", "Fixed", "Mutable", "Cardinal", "Fixed", "Mutable"};
const Rows kSignAnatomy = {"Head And Face", "Throat", "Arms And Shoulders", "Stomach", "Heart",
                           "Intestines",    "Skin",   "Sexual Organs",      "Thighs",  "Knees",
                           "Calves",        "Feet"};
const Rows kSignFlowerEssence = {
    "Tiger Lily",           "Oak And Sundew", "Jojoba",     "Honeysuckle",
    "Sunflower, Buttercup", "Chrysanthemum",  "Goldenseal", "Holly",
    "Blackberry",           "Trillium",       "Goldenrod",  "Rhubarb"};
const Rows kPlanet = {"Sun",  "Moon",   "Jupiter", "Mercury", "Venus",
                      "Mars", "Saturn", "Uranus",  "Neptune", "Pluto"};
const Rows kPlanetRulerForSign = {"Leo",           "Cancer", "Sagittarius", "Gemini, Virgo",
                                  "Taurus, Libra", "Aries",  "Capricorn",   "Aquarius",
                                  "Pisces",        "Scorpio"};
const Rows kPlanetKeywords = {"Identity, Vitality, Goals",
                              "Emotions, Intuition, Home",
                              "Expansion, Good Luck, Ideals",
                              "Communication, Intelligence, Reasoning",
                              "Love, Harmony, Pleasure",
                              "Physical Energy, Competition, Will-Power",
                              "Restriction, Obstacles, Stability",
                              "Shock, Change, Independence",
                              "Imagination, Spirituality, Confusion",
                              "Elimination, Transformation, Change"};
const Rows kPlanetCycle = {"None",     "27 days", "12 years", "88 days", "225 days",
                           "687 days", "29 yrs",  "84 yrs",   "165 yrs", "248 years"};
const Rows kPlanetAnatomy = {
    "Heart, Back, Arteries, Eyes",
    "Brain, Stomach, Bowels, Bladder, Left Eye",
    "Liver, Lungs, Veins, Blood Circulation",
    "Memory, Speech, Nostrils, Hands, Feet, Nervous System",
    "Skin, Thyroid Gland, Ovaries, Kidneys, Veins, Throat",
    "Head, Face, Stomach, Kidneys, Knees, Gall Bladder, Reproductive Organs, Groin, Throat",
    "Constipation, Hearing, Teeth, Spleen, Bones",
    "Gall Bladder, Mind, Sexual Organs, Ankles",
    "Memory, Parathyroid Glands, Feet",
    "Skin, Prostrate, Nails, Hormones"};
const Rows kPlanetRulerForHouse = {
    "5th House - The House of Pleasures",
    "4th House - The House of Family",
    "9th House - The House of Travel\r\n12th House - The House of Shortcomings",
    "3rd House - The House of Communication\r\n6th House - The House of Health",
    "2nd House - The House of Finances\r\n7th House - The House of Partnerships",
    "1st House - The House of Identity\r\n8th House - The House of Spirituality",
    "10th House - The House of Career\r\n11th House - The House of Hopes",
    "11th House - The House of Hopes",
    "12th House - The House of Shortcomings",
    "8th House - The House of Spirituality"};
const Rows kHouseKey = {"Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
                        "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
const Rows kHouseNumber = {"1st House", "2nd House",  "3rd House",  "4th House",
                           "5th House", "6th House",  "7th House",  "8th House",
                           "9th House", "10th House", "11th House", "12th House"};
const Rows kHouseName = {
    "The House of Identity",     "The House of Finances",     "The House of Communication",
    "The House of Family",       "The House of Pleasures",    "The House of Health",
    "The House of Partnerships", "The House of Spirituality", "The House of Travel",
    "The House of Career",       "The House of Hopes",        "The House of Shortcomings"};
const Rows kHousePlanetRuler = {"Mars",    "Venus",   "Mercury",        "Moon",
                                "Sun",     "Mercury", "Venus",          "Mars, Pluto",
                                "Jupiter", "Saturn",  "Uranus, Saturn", "Neptune, Jupiter"};
const Rows kHouseSignRuler = {"Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
                              "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
const Rows kHouseKeywords = {"Outer-Self, Superficial Traits, Physical Appearance",
                             "Money, Self - Worth, Vitality",
                             "Education, Communication, Relationships",
                             "Home, Family, Caring",
                             "Creativity, Romance, Hobbies",
                             "Health, Service, Work",
                             "Agreements, Partnerships, Marriage",
                             "Sex, Possessions, Death",
                             "Travel, Philosophy, Higher Mind",
                             "Ambition, Career, Public Image",
                             "Friends, Hopes, Goals",
                             "Compassion, Intuition, Mental Health"};
const Rows kHouseMantra = {"To Be",      "To Have",    "To Communicate", "To Belong",
                           "To Create",  "To Serve",   "To Relate",      "To Transform",
                           "To Explore", "To Achieve", "To Innovate",    "To Reintegrate"};
const Rows kHouseType = {
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)"};

struct ShortColumn {
    const char* name;
    std::span<const std::string> column;
    const Rows& expected;
};

std::vector<ShortColumn> ShortColumns() {
    return {
        {"strSign", mla::strSign, kSign},
        {"strSignDates", mla::strSignDates, kSignDates},
        {"strSignNumber", mla::strSignNumber, kSignNumber},
        {"strSignOpposite", mla::strSignOpposite, kSignOpposite},
        {"strSignKeywords", mla::strSignKeywords, kSignKeywords},
        {"strSignElement", mla::strSignElement, kSignElement},
        {"strSignRulingPlanet", mla::strSignRulingPlanet, kSignRulingPlanet},
        {"strSignLuckyNumber", mla::strSignLuckyNumber, kSignLuckyNumber},
        {"strSignLuckyColor", mla::strSignLuckyColor, kSignLuckyColor},
        {"strSignLuckyDay", mla::strSignLuckyDay, kSignLuckyDay},
        {"strSignBirthstone", mla::strSignBirthstone, kSignBirthstone},
        {"strSignQuality", mla::strSignQuality, kSignQuality},
        {"strSignAnatomy", mla::strSignAnatomy, kSignAnatomy},
        {"strSignFlowerEssence", mla::strSignFlowerEssence, kSignFlowerEssence},
        {"strPlanet", mla::strPlanet, kPlanet},
        {"strPlanetRulerForSign", mla::strPlanetRulerForSign, kPlanetRulerForSign},
        {"strPlanetKeywords", mla::strPlanetKeywords, kPlanetKeywords},
        {"strPlanetCycle", mla::strPlanetCycle, kPlanetCycle},
        {"strPlanetAnatomy", mla::strPlanetAnatomy, kPlanetAnatomy},
        {"strPlanetRulerForHouse", mla::strPlanetRulerForHouse, kPlanetRulerForHouse},
        {"strHouseKey", mla::strHouseKey, kHouseKey},
        {"strHouseNumber", mla::strHouseNumber, kHouseNumber},
        {"strHouseName", mla::strHouseName, kHouseName},
        {"strHousePlanetRuler", mla::strHousePlanetRuler, kHousePlanetRuler},
        {"strHouseSignRuler", mla::strHouseSignRuler, kHouseSignRuler},
        {"strHouseKeywords", mla::strHouseKeywords, kHouseKeywords},
        {"strHouseMantra", mla::strHouseMantra, kHouseMantra},
        {"strHouseType", mla::strHouseType, kHouseType},
    };
}

struct ParagraphColumn {
    const char* name;
    std::span<const std::string> column;
    std::size_t shortest;
    std::size_t longest;
};

std::vector<ParagraphColumn> ParagraphColumns() {
    return {
        {"strSignPositive", mla::strSignPositive, 513, 1000},
        {"strSignNegative", mla::strSignNegative, 331, 655},
        {"strPlanetPositive", mla::strPlanetPositive, 194, 569},
        {"strPlanetNegative", mla::strPlanetNegative, 157, 517},
        {"strHouseAttributes", mla::strHouseAttributes, 588, 730},
    };
}

class AstrologyTables : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        mla::LoadSignTables();
        mla::LoadPlanetTables();
        mla::LoadHouseTables();
    }
};

std::size_t Records(std::span<const std::string> column) {
    return column.size() - 1;
}

TEST_F(AstrologyTables, ShortColumnsHoldTheirTextsAndOneEmptySpare) {
    for (const ShortColumn& c : ShortColumns()) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(c.column.size(), c.expected.size() + 1);
        for (std::size_t row = 0; row < c.expected.size(); ++row) {
            EXPECT_EQ(c.column[row], c.expected[row]) << "row " << row;
        }
        EXPECT_TRUE(c.column.back().empty());
    }
}

TEST_F(AstrologyTables, HighestIndexIsTheNumberOfRecords) {
    EXPECT_EQ(Records(mla::strSign), 12u);
    EXPECT_EQ(Records(mla::strHouseKey), 12u);
    EXPECT_EQ(Records(mla::strPlanet), 10u);
    EXPECT_EQ(mla::strPlanet[0], "Sun");
    EXPECT_EQ(mla::strPlanet[2], "Jupiter");
    EXPECT_EQ(mla::strPlanet[9], "Pluto");
}

// Identities between columns catch a row typed into the wrong place.
TEST_F(AstrologyTables, ColumnsAgreeWithOneAnother) {
    for (std::size_t row = 0; row < 12; ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(mla::strSignOpposite[row], mla::strSign[(row + 6) % 12]);
        EXPECT_EQ(mla::strHouseKey[row], mla::strSign[row]);
        EXPECT_EQ(mla::strHouseSignRuler[row], mla::strHouseKey[row]);
        EXPECT_EQ(mla::strSignQuality[row], mla::strSignQuality[row % 3]);
        EXPECT_EQ(mla::strSignElement[row], mla::strSignElement[row % 4]);
    }
    for (std::size_t row = 0; row < 10; ++row) {
        const std::string& signs = mla::strPlanetRulerForSign[row];
        const auto at = std::find(mla::strSign.begin(), mla::strSign.end() - 1,
                                  signs.substr(0, signs.find(',')));
        ASSERT_NE(at, mla::strSign.end() - 1) << signs;
        const std::string& ruler = mla::strSignRulingPlanet[at - mla::strSign.begin()];
        EXPECT_NE(ruler.find(mla::strPlanet[row]), std::string::npos)
            << mla::strPlanet[row] << " rules " << signs << " but the sign says " << ruler;
    }
}

TEST_F(AstrologyTables, LuckyNumbersKeepDoubledAmpersands) {
    for (std::size_t row = 0; row < 12; ++row) {
        const std::string& text = mla::strSignLuckyNumber[row];
        if (row < 4) {
            EXPECT_EQ(text.find('&'), std::string::npos);
        } else {
            EXPECT_EQ(text.size(), 6u) << text;
            EXPECT_EQ(text.substr(1, 4), " && ") << text;
        }
    }
}

// Each part of a ruled-house text names a house of the house table.
TEST_F(AstrologyTables, RuledHousesAreJoinedByCrLf) {
    const std::vector<std::size_t> partsPerRow = {1, 1, 2, 2, 2, 2, 2, 1, 1, 1};
    std::set<std::string> houseTitles;
    for (std::size_t h = 0; h < 12; ++h) {
        houseTitles.insert(mla::strHouseNumber[h] + " - " + mla::strHouseName[h]);
    }
    for (std::size_t row = 0; row < 10; ++row) {
        SCOPED_TRACE(mla::strPlanet[row]);
        std::vector<std::string> parts;
        std::string rest = mla::strPlanetRulerForHouse[row];
        for (std::size_t at; (at = rest.find("\r\n")) != std::string::npos;) {
            parts.push_back(rest.substr(0, at));
            rest.erase(0, at + 2);
        }
        parts.push_back(rest);
        EXPECT_EQ(parts.size(), partsPerRow[row]);
        for (const std::string& part : parts) {
            EXPECT_TRUE(houseTitles.contains(part)) << part;
            EXPECT_EQ(part.find_first_of("\r\n"), std::string::npos);
        }
    }
}

TEST_F(AstrologyTables, ParagraphLengthsFillTheirRangesExactly) {
    for (const ParagraphColumn& c : ParagraphColumns()) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(c.column.back().empty());
        std::size_t shortest = SIZE_MAX;
        std::size_t longest = 0;
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            const std::size_t length = c.column[row].size();
            EXPECT_GE(length, c.shortest) << "row " << row;
            EXPECT_LE(length, c.longest) << "row " << row;
            shortest = std::min(shortest, length);
            longest = std::max(longest, length);
        }
        EXPECT_EQ(shortest, c.shortest);
        EXPECT_EQ(longest, c.longest);
    }
}

TEST_F(AstrologyTables, ParagraphsArePlainTextAndAllDifferent) {
    std::map<std::string, std::string> seen;
    for (const ParagraphColumn& c : ParagraphColumns()) {
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            const std::string& text = c.column[row];
            const std::string where = std::string(c.name) + " row " + std::to_string(row);
            SCOPED_TRACE(where);
            EXPECT_TRUE(std::all_of(text.begin(), text.end(),
                                    [](unsigned char ch) { return ch >= 0x20 && ch < 0x7F; }));
            EXPECT_EQ(text.find("  "), std::string::npos);
            EXPECT_NE(text.front(), ' ');
            EXPECT_EQ(text.back(), '.');
            const auto [it, fresh] = seen.emplace(text, where);
            EXPECT_TRUE(fresh) << "same text as " << it->second;
        }
    }
    EXPECT_EQ(seen.size(), 56u);
}

TEST_F(AstrologyTables, NoOpeningOfThreeWordsStartsMoreThanHalfAColumn) {
    for (const ParagraphColumn& c : ParagraphColumns()) {
        const auto rows = c.column.first(Records(c.column));
        const auto [opening, count] = quillane::testing::MostCommonOpening(rows);
        EXPECT_LE(2 * count, rows.size()) << c.name << ": \"" << opening << "\"";
    }
}

TEST_F(AstrologyTables, LeoIsTheLongestParagraphOfAll) {
    const std::string& leo = mla::strSignPositive[4];
    EXPECT_TRUE(leo.starts_with("You are leaders and have a magnetic personality. "));
    EXPECT_TRUE(leo.ends_with(" You have flamboyant personality."));
    for (const ParagraphColumn& c : ParagraphColumns()) {
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            if (&c.column[row] != &leo) {
                EXPECT_LT(c.column[row].size(), leo.size()) << c.name << " row " << row;
            }
        }
    }
}

TEST_F(AstrologyTables, GivenRowsStandWordForWord) {
    EXPECT_EQ(mla::strSignNegative[5],
              "Your need for neatness may make them fussy and finicky. You worry for even the "
              "smallest of things. You may be introverts and not like too much of socializing. "
              "You are generally too critical about yourselves. Some of them may be untidy. You "
              "may be too particular about things, making others crazy. You may be irritable "
              "all the time.");
    EXPECT_EQ(mla::strPlanetPositive[0],
              "He can be good or evil depending upon the planets in configuration with him. The "
              "sun is considered to be the centre and the giver of all life; and as such, this "
              "very planet is considered to be the backbone of astrology. When this planet is "
              "strongly placed in a person's horoscope, he is generally well built, has strong "
              "and broad shoulders, piercing eyes and a broad and high forehead. The natives are "
              "basically strong willed, determinant, outspoken and skillful individuals.");
    EXPECT_EQ(mla::strPlanetNegative[0],
              "This is the parent of the solar system. It is the planet which is known to "
              "co-operate sympathetically with all the other planets of the solar system, except "
              "Saturn. It is temperately hot, dry and masculine. He can be good or evil "
              "depending upon the planets in configuration with him.");
}

TEST_F(AstrologyTables, HousesUseTheirIndianNamesInQuotes) {
    EXPECT_NE(mla::strHouseAttributes[3].find("'Matristhan'"), std::string::npos);
    EXPECT_NE(mla::strHouseAttributes[11].find("'Vyaysthana'"), std::string::npos);
}

// Loading again restores every column, spare entries included.
TEST_F(AstrologyTables, LoadingAgainRestoresTheSameContent) {
    const auto signPositive = mla::strSignPositive;
    const auto ruledHouses = mla::strPlanetRulerForHouse;
    const auto attributes = mla::strHouseAttributes;
    mla::strSignPositive[4] += " extra";
    mla::strSign[12] = "stray";
    mla::strPlanetRulerForHouse[2].clear();
    mla::strPlanet[10] = "stray";
    mla::strHouseAttributes[0] = "changed";
    mla::strHouseKey[12] = "stray";
    for (int round = 0; round < 2; ++round) {
        mla::LoadCategoryTables(mla::kSigns);
        mla::LoadCategoryTables(mla::kPlanets);
        mla::LoadCategoryTables(mla::kHouses);
    }
    EXPECT_EQ(mla::strSignPositive, signPositive);
    EXPECT_EQ(mla::strPlanetRulerForHouse, ruledHouses);
    EXPECT_EQ(mla::strHouseAttributes, attributes);
    EXPECT_TRUE(mla::strSign[12].empty());
    EXPECT_TRUE(mla::strPlanet[10].empty());
    EXPECT_TRUE(mla::strHouseKey[12].empty());
}

struct Category {
    int main;
    std::vector<std::string> captions;
    std::vector<std::span<const std::string>> values;
    std::span<const std::string> names;
};

std::vector<Category> Categories() {
    return {
        {mla::kSigns,
         {"Glyphs (Image)", "Dates", "Sign Numbers", "Opposite Signs", "Keywords",
          "Positive Traits", "Negative Traits", "Element", "Ruling Planet", "Lucky Number",
          "Lucky Color", "Lucky Day", "Birthstone", "Quality", "Anatomy", "Flower Essence"},
         {mla::strSign, mla::strSignDates, mla::strSignNumber, mla::strSignOpposite,
          mla::strSignKeywords, mla::strSignPositive, mla::strSignNegative, mla::strSignElement,
          mla::strSignRulingPlanet, mla::strSignLuckyNumber, mla::strSignLuckyColor,
          mla::strSignLuckyDay, mla::strSignBirthstone, mla::strSignQuality, mla::strSignAnatomy,
          mla::strSignFlowerEssence},
         mla::strSign},
        {mla::kPlanets,
         {"Glyphs (Image)", "Ruler for Sign", "Keywords", "Positive Traits", "Negative Traits",
          "Anatomy", "Time to complete one Cycle", "Ruler for House"},
         {mla::strPlanet, mla::strPlanetRulerForSign, mla::strPlanetKeywords,
          mla::strPlanetPositive, mla::strPlanetNegative, mla::strPlanetAnatomy,
          mla::strPlanetCycle, mla::strPlanetRulerForHouse},
         mla::strPlanet},
        {mla::kHouses,
         {"House Name", "House Planet Ruler", "House Sign Ruler", "Attributes", "Keywords",
          "Mantra", "House Type"},
         {mla::strHouseName, mla::strHousePlanetRuler, mla::strHouseSignRuler,
          mla::strHouseAttributes, mla::strHouseKeywords, mla::strHouseMantra, mla::strHouseType},
         mla::strHouseKey},
    };
}

TEST_F(AstrologyTables, CategoryTableSelectsValuesAndNames) {
    for (const Category& cat : Categories()) {
        SCOPED_TRACE(cat.main);
        EXPECT_EQ(mla::CategoryCaptions(cat.main), cat.captions);
        ASSERT_EQ(cat.values.size(), cat.captions.size());
        for (std::size_t sub = 0; sub < cat.values.size(); ++sub) {
            const auto chosen = mla::ValuesColumn(cat.main, static_cast<int>(sub));
            EXPECT_EQ(chosen.data(), cat.values[sub].data()) << cat.captions[sub];
            EXPECT_EQ(chosen.size(), cat.values[sub].size()) << cat.captions[sub];
        }
        const auto names = mla::NamesColumn(cat.main);
        EXPECT_EQ(names.data(), cat.names.data());
        EXPECT_EQ(names.size(), cat.names.size());
        // Outside the list the last column stands in.
        const int size = static_cast<int>(cat.captions.size());
        for (int sub : {size, size + 1, 100, -1}) {
            EXPECT_EQ(mla::ValuesColumn(cat.main, sub).data(), cat.values.back().data()) << sub;
        }
    }
}

TEST_F(AstrologyTables, AnyOtherMainCategoryMeansHouses) {
    for (int main : {3, 99, -1}) {
        EXPECT_EQ(mla::CategoryCaptions(main), mla::CategoryCaptions(mla::kHouses));
        EXPECT_EQ(mla::NamesColumn(main).data(), mla::strHouseKey.data());
        EXPECT_EQ(mla::ValuesColumn(main, 0).data(), mla::strHouseName.data());
    }
}

TEST_F(AstrologyTables, RunsWhoseValuesAreTheirNames) {
    EXPECT_EQ(mla::ValuesColumn(mla::kSigns, 0).data(), mla::NamesColumn(mla::kSigns).data());
    EXPECT_EQ(mla::ValuesColumn(mla::kPlanets, 0).data(), mla::NamesColumn(mla::kPlanets).data());
    const auto houseSigns = mla::ValuesColumn(mla::kHouses, 2);
    const auto houseNames = mla::NamesColumn(mla::kHouses);
    EXPECT_TRUE(
        std::equal(houseSigns.begin(), houseSigns.end(), houseNames.begin(), houseNames.end()));
    // The window tells planets from the rest by the highest index alone.
    for (const Category& cat : Categories()) {
        for (std::size_t sub = 0; sub < cat.captions.size(); ++sub) {
            const bool planetLike =
                Records(mla::ValuesColumn(cat.main, static_cast<int>(sub))) == 10;
            EXPECT_EQ(planetLike, cat.main == mla::kPlanets) << cat.captions[sub];
        }
    }
}

// --- Glyph pictures ---------------------------------------------------------

std::filesystem::path SourceDir() {
    if (const char* dir = std::getenv("QUILLANE_SOURCE_DIR"); dir != nullptr && *dir != '\0') {
        return dir;
    }
    return QUILLANE_SOURCE_DIR_FALLBACK;
}

// A small well-formedness check: comments and declarations aside, every tag
// has quoted attributes, elements nest properly and there is one root. Hands
// back the root's name and attributes and the names of all elements.
struct XmlSummary {
    std::string root;
    std::map<std::string, std::string> rootAttributes;
    std::set<std::string> elements;
    std::string error;
};

XmlSummary ParseXml(std::string text) {
    XmlSummary xml;
    text = std::regex_replace(text, std::regex(R"(<!--[\s\S]*?-->|<[?!][^>]*>)"), "");
    const std::regex tag(R"(<(/?)([A-Za-z][\w:.-]*)((?:\s+[\w:.-]+\s*=\s*"[^"]*")*)\s*(/?)>)");
    const std::regex attribute(R"(([\w:.-]+)\s*=\s*"([^"]*)\")");
    std::vector<std::string> open;
    std::size_t consumed = 0;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), tag);
         it != std::sregex_iterator(); ++it) {
        const std::smatch& m = *it;
        if (text.find('<', consumed) < static_cast<std::size_t>(m.position())) {
            xml.error = "malformed tag near offset " + std::to_string(consumed);
            return xml;
        }
        consumed = static_cast<std::size_t>(m.position() + m.length());
        const std::string name = m[2];
        if (m[1] == "/") {
            if (open.empty() || open.back() != name) {
                xml.error = "mismatched </" + name + ">";
                return xml;
            }
            open.pop_back();
            continue;
        }
        if (xml.root.empty()) {
            xml.root = name;
            const std::string attributes = m[3];
            for (auto a = std::sregex_iterator(attributes.begin(), attributes.end(), attribute);
                 a != std::sregex_iterator(); ++a) {
                xml.rootAttributes[(*a)[1]] = (*a)[2];
            }
        } else if (open.empty()) {
            xml.error = "second root <" + name + ">";
            return xml;
        }
        xml.elements.insert(name);
        if (m[4] != "/") {
            open.push_back(name);
        }
    }
    if (text.find('<', consumed) != std::string::npos) {
        xml.error = "malformed tag near offset " + std::to_string(consumed);
    } else if (!open.empty()) {
        xml.error = "unclosed <" + open.back() + ">";
    } else if (xml.root.empty()) {
        xml.error = "no element";
    }
    return xml;
}

TEST(AstrologyGlyphs, EverySignAndPlanetHasAnSvgPicture) {
    const std::filesystem::path dir = SourceDir() / "assets" / "astrology";
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < 12; ++i) {
        files.push_back(dir / ("sign-" + std::to_string(i) + ".svg"));
    }
    for (int i = 0; i < 10; ++i) {
        files.push_back(dir / ("planet-" + std::to_string(i) + ".svg"));
    }
    std::set<std::string> contents;
    for (const auto& file : files) {
        SCOPED_TRACE(file.string());
        std::ifstream in(file, std::ios::binary);
        ASSERT_TRUE(in.good());
        const std::string text((std::istreambuf_iterator<char>(in)),
                               std::istreambuf_iterator<char>());
        const XmlSummary xml = ParseXml(text);
        ASSERT_TRUE(xml.error.empty()) << xml.error;
        EXPECT_EQ(xml.root, "svg");
        const auto viewBox = xml.rootAttributes.find("viewBox");
        ASSERT_NE(viewBox, xml.rootAttributes.end());
        std::istringstream box(viewBox->second);
        double x = -1, y = -1, w = 0, h = 0;
        ASSERT_TRUE(box >> x >> y >> w >> h) << "viewBox: " << viewBox->second;
        EXPECT_GT(w, 0);
        EXPECT_EQ(w, h) << "square picture";
        // Drawn as paths, never as lettering in a font.
        EXPECT_FALSE(xml.elements.contains("text"));
        EXPECT_TRUE(contents.insert(text).second) << "same picture as another glyph";
    }
}

} // namespace
