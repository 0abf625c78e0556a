#pragma once
// modLearnRunes: the knowledge base of the Runes subject.
//
// Six parallel tables of text, addressed by stone number (0 to 23, in the
// order Fehu ... Othala; the group is the stone number divided by 8). Each
// table has one entry more than it has data: the spare last entry stays
// empty for the whole run and is never a stone. The keyword and alternative
// name tables are flat: entry k belongs to stone k / 4 and k / 3.
//
// The tables are process-wide and written only by LoadRuneTables, which may
// be called at any time and any number of times; it always writes the same
// values.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillane::modLearnRunes {

inline constexpr std::int16_t kStoneCount = 24;
inline constexpr std::int16_t kStonesPerAett = 8;
inline constexpr std::int16_t kKeywordsPerStone = 4;
inline constexpr std::int16_t kAlternativeNamesPerStone = 3;

// Display name of each stone.
extern std::array<std::string, 25> strStoneName;
// Meaning of the upright stone ("Normal Meaning").
extern std::array<std::string, 25> strNormalMeaning;
// Meaning of the reversed stone ("Reverse Meaning").
extern std::array<std::string, 25> strReverseMeaning;
// Meaning in the merkstave position ("Markstave Meaning"); equal to
// strReverseMeaning for every stone that can be reversed.
extern std::array<std::string, 25> strMarkstaveMeaning;
// Four keywords per stone, flat: entries 4s to 4s + 3 belong to stone s.
extern std::array<std::string, 97> strKeyword;
// Three alternative names per stone, flat: entries 3s to 3s + 2.
extern std::array<std::string, 73> strAlternativeName;

// Writes all six tables from the program's constants.
void LoadRuneTables();

// Keys of the picture list IMG, entry n (from 1) at index n - 1. Entry s + 1
// shows stone s; entry 25 is the blank stone. The program reaches pictures by
// number; the keys name the picture assets (assets/runes/stone-01-fehu.svg).
inline constexpr std::array<std::string_view, 25> kImgKey = {
    "01 Fehu",   "02 Uruz",    "03 Thurisaz", "04 Ansuz",   "05 Raidho", "06 Kenaz",  "07 Gebo",
    "08 Wunjo",  "09 Hagalaz", "10 Nauthiz",  "11 Isa",     "12 Jera",   "13 Eihwaz", "14 Perthro",
    "15 Algiz",  "16 Sowilo",  "17 Tiwaz",    "18 Berkano", "19 Ehwaz",  "20 Mannaz", "21 Laguz",
    "22 Ingwaz", "23 Dagaz",   "24 Othala",   "25 Blank"};

// File name of the picture asset of IMG entry n (1 to 25), made from its key:
// "01 Fehu" gives "stone-01-fehu.svg". Empty for a number outside the list.
std::string ImgFileName(int entry);

} // namespace quillane::modLearnRunes
