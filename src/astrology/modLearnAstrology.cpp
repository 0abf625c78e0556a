#include "astrology/modLearnAstrology.h"

#include "astrology/AstrologyParagraphs.h"

#include <string_view>

namespace quillane::modLearnAstrology {

namespace {

// The short columns, row by row. The texts stand exactly as the window shows
// them, odd spellings, doubled ampersands and overlapping date ranges included.

constexpr std::array<std::string_view, 12> kSign = {
    "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
constexpr std::array<std::string_view, 12> kSignDates = {
    "March 21 - April 19",       "April 20 - May 20",        "May 22 - June 21",
    "June 22 - July 22",         "July 23 - August 22",      "August 23 - September 22",
    "September 23 - October 22", "October 23 - November 22", "November 23 - December 22",
    "December 23 - January 20",  "January 20 - February 19", "February 19 - March 20"};
constexpr std::array<std::string_view, 12> kSignNumber = {"First", "Second", "Third",    "Fourth",
                                                          "Fifth", "Sixth",  "Seventh",  "Eighth",
                                                          "Ninth", "Tenth",  "Eleventh", "Twelfth"};
constexpr std::array<std::string_view, 12> kSignOpposite = {
    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces",
    "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo"};
constexpr std::array<std::string_view, 12> kSignKeywords = {
    "Pioneer, Assertive, Energetic",
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
constexpr std::array<std::string_view, 12> kSignElement = {"Fire", "Earth", "Air", "Water",
                                                           "Fire", "Earth", "Air", "Water",
                                                           "Fire", "Earth", "Air", "Water"};
constexpr std::array<std::string_view, 12> kSignRulingPlanet = {
    "Mars",  "Venus",          "Mercury", "The Moon", "The Sun",           "Mercury",
    "Venus", "Pluto and Mars", "Jupiter", "Saturn",   "Uranus and Saturn", "Neptune and Jupiter"};
constexpr std::array<std::string_view, 12> kSignLuckyNumber = {
    "9",      "6",      "5",      "2",      "8 && 9", "3 && 5",
    "6 && 9", "2 && 4", "5 && 7", "8 && 2", "1 && 7", "2 && 6"};
constexpr std::array<std::string_view, 12> kSignLuckyColor = {
    "Red",    "Green", "Yellow", "Silver",   "Gold", "Blue", "Blue", "Burgundy and Black",
    "Purple", "Brown", "Violet", "Sea green"};
constexpr std::array<std::string_view, 12> kSignLuckyDay = {
    "Tuesday", "Friday",  "Wednesday", "Monday",   "Sunday",    "Wednesday",
    "Friday",  "Tuesday", "Thursday",  "Saturday", "Wednesday", "Friday"};
constexpr std::array<std::string_view, 12> kSignBirthstone = {
    "Diamond", "Emerald", "Agate",     "Pearl",  "Ruby",     "Sapphire",
    "Opal",    "Topaz",   "Turquoise", "Garnet", "Amethyst", "Aquamarine"};
constexpr std::array<std::string_view, 12> kSignQuality = {
    "Cardinal", "Fixed", "Mutable", "Cardinal", "Fixed", "Mutable",
    "Cardinal", "Fixed", "Mutable", "Cardinal", "Fixed", "Mutable"};
constexpr std::array<std::string_view, 12> kSignAnatomy = {
    "Head And Face", "Throat", "Arms And Shoulders", "Stomach", "Heart",
    "Intestines",    "Skin",   "Sexual Organs",      "Thighs",  "Knees",
    "Calves",        "Feet"};
constexpr std::array<std::string_view, 12> kSignFlowerEssence = {
    "Tiger Lily",           "Oak And Sundew", "Jojoba",     "Honeysuckle",
    "Sunflower, Buttercup", "Chrysanthemum",  "Goldenseal", "Holly",
    "Blackberry",           "Trillium",       "Goldenrod",  "Rhubarb"};

constexpr std::array<std::string_view, 10> kPlanet = {
    "Sun", "Moon", "Jupiter", "Mercury", "Venus", "Mars", "Saturn", "Uranus", "Neptune", "Pluto"};
constexpr std::array<std::string_view, 10> kPlanetRulerForSign = {
    "Leo",   "Cancer",    "Sagittarius", "Gemini, Virgo", "Taurus, Libra",
    "Aries", "Capricorn", "Aquarius",    "Pisces",        "Scorpio"};
constexpr std::array<std::string_view, 10> kPlanetKeywords = {
    "Identity, Vitality, Goals",
    "Emotions, Intuition, Home",
    "Expansion, Good Luck, Ideals",
    "Communication, Intelligence, Reasoning",
    "Love, Harmony, Pleasure",
    "Physical Energy, Competition, Will-Power",
    "Restriction, Obstacles, Stability",
    "Shock, Change, Independence",
    "Imagination, Spirituality, Confusion",
    "Elimination, Transformation, Change"};
constexpr std::array<std::string_view, 10> kPlanetCycle = {
    "None",     "27 days", "12 years", "88 days", "225 days",
    "687 days", "29 yrs",  "84 yrs",   "165 yrs", "248 years"};
constexpr std::array<std::string_view, 10> kPlanetAnatomy = {
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
constexpr std::array<std::string_view, 10> kPlanetRulerForHouse = {
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

constexpr std::array<std::string_view, 12> kHouseKey = {
    "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
constexpr std::array<std::string_view, 12> kHouseNumber = {
    "1st House", "2nd House", "3rd House", "4th House",  "5th House",  "6th House",
    "7th House", "8th House", "9th House", "10th House", "11th House", "12th House"};
constexpr std::array<std::string_view, 12> kHouseName = {
    "The House of Identity",     "The House of Finances",     "The House of Communication",
    "The House of Family",       "The House of Pleasures",    "The House of Health",
    "The House of Partnerships", "The House of Spirituality", "The House of Travel",
    "The House of Career",       "The House of Hopes",        "The House of Shortcomings"};
constexpr std::array<std::string_view, 12> kHousePlanetRuler = {
    "Mars",    "Venus",   "Mercury",        "Moon",
    "Sun",     "Mercury", "Venus",          "Mars, Pluto",
    "Jupiter", "Saturn",  "Uranus, Saturn", "Neptune, Jupiter"};
constexpr std::array<std::string_view, 12> kHouseSignRuler = {
    "Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
    "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
constexpr std::array<std::string_view, 12> kHouseKeywords = {
    "Outer-Self, Superficial Traits, Physical Appearance",
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
constexpr std::array<std::string_view, 12> kHouseMantra = {
    "To Be",     "To Have",      "To Communicate", "To Belong",  "To Create",   "To Serve",
    "To Relate", "To Transform", "To Explore",     "To Achieve", "To Innovate", "To Reintegrate"};
constexpr std::array<std::string_view, 12> kHouseType = {
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)",
    "Angular House (Action)", "Succedent House (Fixed)", "Cadent House (Adaptable)"};

// Copies the rows into a column and clears its spare entry.
template <std::size_t N, std::size_t Rows>
void Fill(std::array<std::string, N>& column, const std::array<std::string_view, Rows>& rows) {
    static_assert(Rows + 1 == N, "a column keeps exactly one spare entry");
    for (std::size_t row = 0; row < Rows; ++row) {
        column[row] = rows[row];
    }
    column[Rows].clear();
}

} // namespace

void LoadSignTables() {
    Fill(strSign, kSign);
    Fill(strSignDates, kSignDates);
    Fill(strSignNumber, kSignNumber);
    Fill(strSignOpposite, kSignOpposite);
    Fill(strSignKeywords, kSignKeywords);
    Fill(strSignElement, kSignElement);
    Fill(strSignRulingPlanet, kSignRulingPlanet);
    Fill(strSignLuckyNumber, kSignLuckyNumber);
    Fill(strSignLuckyColor, kSignLuckyColor);
    Fill(strSignLuckyDay, kSignLuckyDay);
    Fill(strSignBirthstone, kSignBirthstone);
    Fill(strSignQuality, kSignQuality);
    Fill(strSignAnatomy, kSignAnatomy);
    Fill(strSignFlowerEssence, kSignFlowerEssence);
    Fill(strSignPositive, paragraphs::kSignPositive);
    // Leo's paragraph, the longest of all, is kept as two halves and joined here.
    strSignPositive[4] = std::string(paragraphs::kLeoPositiveOpening);
    strSignPositive[4] += paragraphs::kLeoPositiveClosing;
    Fill(strSignNegative, paragraphs::kSignNegative);
}

void LoadPlanetTables() {
    Fill(strPlanet, kPlanet);
    Fill(strPlanetRulerForSign, kPlanetRulerForSign);
    Fill(strPlanetKeywords, kPlanetKeywords);
    Fill(strPlanetCycle, kPlanetCycle);
    Fill(strPlanetAnatomy, kPlanetAnatomy);
    Fill(strPlanetRulerForHouse, kPlanetRulerForHouse);
    Fill(strPlanetPositive, paragraphs::kPlanetPositive);
    Fill(strPlanetNegative, paragraphs::kPlanetNegative);
}

void LoadHouseTables() {
    Fill(strHouseKey, kHouseKey);
    Fill(strHouseNumber, kHouseNumber);
    Fill(strHouseName, kHouseName);
    Fill(strHousePlanetRuler, kHousePlanetRuler);
    Fill(strHouseSignRuler, kHouseSignRuler);
    Fill(strHouseKeywords, kHouseKeywords);
    Fill(strHouseMantra, kHouseMantra);
    Fill(strHouseType, kHouseType);
    Fill(strHouseAttributes, paragraphs::kHouseAttributes);
}

void LoadCategoryTables(int mainCategory) {
    if (mainCategory == kSigns) {
        LoadSignTables();
    } else if (mainCategory == kPlanets) {
        LoadPlanetTables();
    } else {
        LoadHouseTables();
    }
}

namespace {

struct SubCategory {
    std::string caption;
    std::span<const std::string> values;
};

const std::vector<SubCategory>& SubCategories(int mainCategory) {
    static const std::vector<SubCategory> signs = {
        {"Glyphs (Image)", strSign},
        {"Dates", strSignDates},
        {"Sign Numbers", strSignNumber},
        {"Opposite Signs", strSignOpposite},
        {"Keywords", strSignKeywords},
        {"Positive Traits", strSignPositive},
        {"Negative Traits", strSignNegative},
        {"Element", strSignElement},
        {"Ruling Planet", strSignRulingPlanet},
        {"Lucky Number", strSignLuckyNumber},
        {"Lucky Color", strSignLuckyColor},
        {"Lucky Day", strSignLuckyDay},
        {"Birthstone", strSignBirthstone},
        {"Quality", strSignQuality},
        {"Anatomy", strSignAnatomy},
        {"Flower Essence", strSignFlowerEssence},
    };
    static const std::vector<SubCategory> planets = {
        {"Glyphs (Image)", strPlanet},
        {"Ruler for Sign", strPlanetRulerForSign},
        {"Keywords", strPlanetKeywords},
        {"Positive Traits", strPlanetPositive},
        {"Negative Traits", strPlanetNegative},
        {"Anatomy", strPlanetAnatomy},
        {"Time to complete one Cycle", strPlanetCycle},
        {"Ruler for House", strPlanetRulerForHouse},
    };
    static const std::vector<SubCategory> houses = {
        {"House Name", strHouseName},
        {"House Planet Ruler", strHousePlanetRuler},
        {"House Sign Ruler", strHouseSignRuler},
        {"Attributes", strHouseAttributes},
        {"Keywords", strHouseKeywords},
        {"Mantra", strHouseMantra},
        {"House Type", strHouseType},
    };
    if (mainCategory == kSigns) {
        return signs;
    }
    if (mainCategory == kPlanets) {
        return planets;
    }
    return houses;
}

} // namespace

const std::vector<std::string>& CategoryCaptions(int mainCategory) {
    static const auto captionsOf = [](int category) {
        std::vector<std::string> captions;
        for (const SubCategory& sub : SubCategories(category)) {
            captions.push_back(sub.caption);
        }
        return captions;
    };
    static const std::vector<std::string> signs = captionsOf(kSigns);
    static const std::vector<std::string> planets = captionsOf(kPlanets);
    static const std::vector<std::string> houses = captionsOf(kHouses);
    if (mainCategory == kSigns) {
        return signs;
    }
    if (mainCategory == kPlanets) {
        return planets;
    }
    return houses;
}

std::span<const std::string> ValuesColumn(int mainCategory, int subIndex) {
    const std::vector<SubCategory>& list = SubCategories(mainCategory);
    // Anything that is not a position in the list falls to its last entry.
    if (subIndex < 0 || static_cast<std::size_t>(subIndex) >= list.size()) {
        return list.back().values;
    }
    return list[static_cast<std::size_t>(subIndex)].values;
}

std::span<const std::string> NamesColumn(int mainCategory) {
    if (mainCategory == kSigns) {
        return strSign;
    }
    if (mainCategory == kPlanets) {
        return strPlanet;
    }
    return strHouseKey;
}

} // namespace quillane::modLearnAstrology
