#pragma once
// The number rules the program's draws and reports use.
#include <cmath>
#include <cstdint>
#include <string>

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

// Booleans in state are 0 and -1.
constexpr std::int16_t vbTrue = -1;
constexpr std::int16_t vbFalse = 0;
inline std::int16_t VBBool(bool b) {
    return b ? vbTrue : vbFalse;
}

} // namespace quillane
