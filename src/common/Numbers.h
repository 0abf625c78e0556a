#pragma once
// The number rules the program's draws and reports use.
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillane {

// The integer part: VB's Int, the largest whole number not above x.
inline long Int(double x) {
    return long(std::floor(x));
}

// Rounds to the nearest whole number, ties to the even neighbour (VB's CInt
// and CLng).
inline long CInt(double x) {
    return long(std::nearbyint(x));
}

// Format(n, "00"): at least two digits.
inline std::string Format00(long n) {
    std::string digits = std::to_string(n < 0 ? -n : n);
    if (digits.size() < 2)
        digits.insert(0, 2 - digits.size(), '0');
    return (n < 0 ? "-" : "") + digits;
}

// Numbers read and written the same whatever the user's locale, with '.' as
// the decimal point.
//
// The decimal number at the start of a text, after blanks, as C's strtod reads
// it in the "C" locale (hexadecimal, infinite and NaN forms aside); nothing
// when the text starts with no number or the number is out of range.
std::optional<double> ReadNumber(std::string_view text);
// The number with at most that many significant digits, as "%.*g" writes it
// in the "C" locale.
std::string WriteNumber(double value, int significantDigits);

// Booleans in state are 0 and -1.
constexpr std::int16_t vbTrue = -1;
constexpr std::int16_t vbFalse = 0;
inline std::int16_t VBBool(bool b) {
    return b ? vbTrue : vbFalse;
}

} // namespace quillane
