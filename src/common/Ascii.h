#pragma once
// Letters as the program folds and compares them: ASCII only, whatever the
// user's locale. (Under a Turkish locale the C library's toupper leaves 'i'
// as it is and tolower 'I', so "id" and "ID" would not be the same name.)
#include <string>
#include <string_view>

namespace quillane {

constexpr char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

constexpr char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
}

inline std::string AsciiUpper(std::string text) {
    for (char& c : text)
        c = AsciiUpper(c);
    return text;
}

constexpr bool SameTextIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (AsciiLower(a[i]) != AsciiLower(b[i]))
            return false;
    return true;
}

} // namespace quillane
