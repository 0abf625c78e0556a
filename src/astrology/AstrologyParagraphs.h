#pragma once

// The long texts of the Astrology tables, kept as plain data apart from the
// routines that load them. Internal to the astrology library.

#include <array>
#include <string_view>

namespace quillane::modLearnAstrology::paragraphs {

// Row 4 (Leo) is left empty here: LoadSignTables joins it from the two
// halves below.
extern const std::array<std::string_view, 12> kSignPositive;
extern const std::string_view kLeoPositiveOpening;
extern const std::string_view kLeoPositiveClosing;
extern const std::array<std::string_view, 12> kSignNegative;

extern const std::array<std::string_view, 10> kPlanetPositive;
extern const std::array<std::string_view, 10> kPlanetNegative;

extern const std::array<std::string_view, 12> kHouseAttributes;

} // namespace quillane::modLearnAstrology::paragraphs
