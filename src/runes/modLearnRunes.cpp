// The short columns of the rune tables and the routine that loads all six.
// The long meaning texts are in RuneMeanings.cpp.
#include "runes/modLearnRunes.h"

#include "common/Ascii.h"
#include "runes/RuneMeanings.h"

namespace quillane::modLearnRunes {

std::array<std::string, 25> strStoneName;
std::array<std::string, 25> strNormalMeaning;
std::array<std::string, 25> strReverseMeaning;
std::array<std::string, 25> strMarkstaveMeaning;
std::array<std::string, 97> strKeyword;
std::array<std::string, 73> strAlternativeName;

namespace {

struct StoneRow {
    std::string_view name;
    std::array<std::string_view, kAlternativeNamesPerStone> alternativeNames;
    std::array<std::string_view, kKeywordsPerStone> keywords;
};

// In stone number order; names and keywords in their display order.
constexpr std::array<StoneRow, kStoneCount> kStoneRows = {{
    // First Aett
    {"Fehu", {"Faihu", "Foeh", "Fe"}, {"Wealth", "Mobility", "Fulfillment", "Intuition"}},
    {"Uruz", {"Uraz", "Uros", "Ur"}, {"Beginnings", "Spirituality", "Opportunity", "Harmony"}},
    {"Thurisaz",
     {"Thuith", "Thorn", "Thurs"},
     {"Protection", "Action", "Destruction", "Willpower"}},
    {"Ansuz", {"Os", "Ass", "Ansur"}, {"Rebirth", "Knowledge", "Communication", "Justice"}},
    {"Raidho", {"Raidha", "Rad", "Raid"}, {"Rhythm", "Movement", "Travel", "Spiritual"}},
    {"Kenaz", {"Kusma", "Kaun", "Kaunaz"}, {"Knowledge", "Fire", "Guiding Light", "Fertility"}},
    {"Gebo", {"Geuua", "Gipt", "Geofu"}, {"Gift", "Exchange", "Interaction", "Balance"}},
    {"Wunjo", {"Uuinne", "Vend", "Wynn"}, {"Joy", "Pleasure", "Hope", "Fellowship"}},
    // Second Aett
    {"Hagalaz",
     {"Haal", "Hagall", "Hagl"},
     {"Transformation", "Change", "Evolution", "Protection"}},
    {"Nauthiz", {"Noicz", "Naud", "Naudr"}, {"Need", "Help", "Resistance", "Love"}},
    {"Isa", {"Icz", "Iss", "Is"}, {"Constraint", "Massive Force", "Gradual Integration", "Delay"}},
    {"Jera", {"Gaar", "Ar", "Ger"}, {"Cycles", "Right Action", "Completion", "Fertility"}},
    {"Eihwaz", {"Ezck", "Yr", "Eo"}, {"Communication", "Death", "Regeneration", "Knowledge"}},
    {"Perthro", {"Pertra", "Peordh", "Peorth"}, {"Birth", "Wisdom", "Kinship", "Manifestation"}},
    {"Algiz", {"Algis", "Elhaz", "Eolh"}, {"Spirit", "Protection", "Sanctuary", "Refuge"}},
    {"Sowilo", {"Sugil", "Sol", "Sulu"}, {"Partnership", "Journey", "Power", "Transformation"}},
    // Third Aett
    {"Tiwaz", {"Tys", "Tyr", "Tir"}, {"Justice", "Loyalty", "Victory", "Support"}},
    {"Berkano", {"Berkana", "Bercna", "Bjarkan"}, {"Rebirth", "Growth", "Transition", "Spirit"}},
    {"Ehwaz", {"Eys", "Ehol", "Ior"}, {"Duality", "Movement", "Partnership", "Interaction"}},
    {"Mannaz", {"Manna", "Madr", "Mann"}, {"Godhood", "Humanity", "Ancestors", "Memory"}},
    {"Laguz", {"Laaz", "Logr", "Lagu"}, {"Fluidity", "Life Force", "Birth", "Intuition"}},
    {"Ingwaz",
     {"Enguz", "Ing", "Ingvarr"},
     {"Energy", "Gestation", "Integration", "Male Fertility"}},
    {"Dagaz", {"Daaz", "Daeg", "Dagur"}, {"Light", "Enlightenment", "Awakening", "Intuition"}},
    {"Othala", {"Utal", "Odal", "Otael"}, {"Ancestry", "Prosperity", "Inheritance", "Family"}},
}};

} // namespace

void LoadRuneTables() {
    constexpr auto kNames = std::size_t(kAlternativeNamesPerStone);
    constexpr auto kKeywords = std::size_t(kKeywordsPerStone);
    for (std::size_t s = 0; s < std::size_t(kStoneCount); ++s) {
        const StoneRow& row = kStoneRows[s];
        strStoneName[s] = row.name;
        for (std::size_t j = 0; j < kNames; ++j) {
            strAlternativeName[s * kNames + j] = row.alternativeNames[j];
        }
        for (std::size_t j = 0; j < kKeywords; ++j) {
            strKeyword[s * kKeywords + j] = row.keywords[j];
        }
        strNormalMeaning[s] = content::kNormalMeaning[s];
        strReverseMeaning[s] = content::kReverseMeaning[s];
        // A stone that can be reversed reads the same in the merkstave
        // position; the stones that cannot are given their own text below.
        strMarkstaveMeaning[s] = strReverseMeaning[s];
    }
    for (const content::OwnMarkstave& own : content::kOwnMarkstaveMeaning) {
        strMarkstaveMeaning[std::size_t(own.stone)] = own.text;
    }
}

std::string ImgFileName(int entry) {
    if (entry < 1 || entry > static_cast<int>(kImgKey.size())) {
        return {};
    }
    std::string name = "stone-";
    for (char c : kImgKey[std::size_t(entry - 1)]) {
        name += c == ' ' ? '-' : AsciiLower(c);
    }
    return name + ".svg";
}

} // namespace quillane::modLearnRunes
