#pragma once

// modLearnAstrology: everything the Astrology window knows.
//
// Three table sets of parallel text columns, for the 12 signs, the 10 planets
// and the 12 houses. Rows are linked by position only. Every column keeps one
// spare, empty entry above its used rows, so the highest index of a column is
// also its number of records: 12 for signs and houses, 10 for planets. The
// window tells a planet column from the others by that highest index.
//
// The columns are filled by the three Load routines and never changed
// otherwise. The window runs a Load routine each time it starts on a set;
// running one again writes the same content and does no harm.

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace quillane::modLearnAstrology {

inline constexpr std::size_t kSignRows = 12;
inline constexpr std::size_t kPlanetRows = 10;
inline constexpr std::size_t kHouseRows = 12;

using SignColumn = std::array<std::string, kSignRows + 1>;
using PlanetColumn = std::array<std::string, kPlanetRows + 1>;
using HouseColumn = std::array<std::string, kHouseRows + 1>;

// Main categories of the window's combos.
inline constexpr int kSigns = 0;
inline constexpr int kPlanets = 1;
inline constexpr int kHouses = 2;

// Sign table: row 0 is Aries, row 11 Pisces.
inline SignColumn strSign;
inline SignColumn strSignDates;
inline SignColumn strSignNumber;
inline SignColumn strSignOpposite;
inline SignColumn strSignKeywords;
inline SignColumn strSignElement;
inline SignColumn strSignRulingPlanet;
inline SignColumn strSignLuckyNumber; // "&&" stands for one ampersand on a label
inline SignColumn strSignLuckyColor;
inline SignColumn strSignLuckyDay;
inline SignColumn strSignBirthstone;
inline SignColumn strSignQuality;
inline SignColumn strSignAnatomy;
inline SignColumn strSignFlowerEssence;
inline SignColumn strSignPositive;
inline SignColumn strSignNegative;

// Planet table, in the program's own order: Sun, Moon, Jupiter, Mercury,
// Venus, Mars, Saturn, Uranus, Neptune, Pluto.
inline PlanetColumn strPlanet;
inline PlanetColumn strPlanetRulerForSign;
inline PlanetColumn strPlanetKeywords;
inline PlanetColumn strPlanetCycle;
inline PlanetColumn strPlanetAnatomy;
inline PlanetColumn strPlanetRulerForHouse; // two houses joined by "\r\n"
inline PlanetColumn strPlanetPositive;
inline PlanetColumn strPlanetNegative;

// House table: row 0 is the first house. strHouseKey holds sign names and
// equals strHouseSignRuler; strHouseNumber is the record's title.
inline HouseColumn strHouseKey;
inline HouseColumn strHouseNumber;
inline HouseColumn strHouseName;
inline HouseColumn strHousePlanetRuler;
inline HouseColumn strHouseSignRuler;
inline HouseColumn strHouseKeywords;
inline HouseColumn strHouseMantra;
inline HouseColumn strHouseType;
inline HouseColumn strHouseAttributes;

void LoadSignTables();
void LoadPlanetTables();
void LoadHouseTables();

// Runs the Load routine of a main category: 0 signs, 1 planets, any other
// value houses (as the sub combo is filled).
void LoadCategoryTables(int mainCategory);

// Captions of the sub-category list of a main category, in list order:
// 16 for signs, 8 for planets, 7 for houses.
const std::vector<std::string>& CategoryCaptions(int mainCategory);

// The values column that a sub-category selects. A sub index outside the
// list (beyond its end, or below 0) selects the last column of the list.
// The span covers the whole column with its spare entry, so size() - 1 is
// the number of records. The content is what the last Load left there.
std::span<const std::string> ValuesColumn(int mainCategory, int subIndex);

// The names column of a main category: strSign, strPlanet or strHouseKey.
std::span<const std::string> NamesColumn(int mainCategory);

} // namespace quillane::modLearnAstrology
