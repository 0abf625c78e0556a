#pragma once
// The constant texts behind the three meaning tables of modLearnRunes.
// Internal to the runes library: the rest of the program reads the tables
// that LoadRuneTables fills, never these constants.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillane::modLearnRunes::content {

inline constexpr std::size_t kStones = 24;

// Upright meaning of each stone, by stone number.
extern const std::array<std::string_view, kStones> kNormalMeaning;
// Reversed meaning of each stone, by stone number. For the seventeen stones
// that can be reversed this is also their merkstave meaning.
extern const std::array<std::string_view, kStones> kReverseMeaning;

// A merkstave meaning that differs from the reversed one: only the stones
// that cannot be reversed have one.
struct OwnMarkstave {
    std::int16_t stone;
    std::string_view text;
};
inline constexpr std::size_t kOwnMarkstaveCount = 7;
extern const std::array<OwnMarkstave, kOwnMarkstaveCount> kOwnMarkstaveMeaning;

} // namespace quillane::modLearnRunes::content
