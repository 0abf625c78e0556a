#include "Numbers.h"

#include <charconv>
#include <version>
#ifndef __cpp_lib_to_chars
#include <locale>
#include <sstream>
#endif

namespace quillane {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::optional<double> ReadNumber(std::string_view text) {
    std::size_t i = text.find_first_not_of(" \t\n\v\f\r");
    if (i == std::string_view::npos)
        return std::nullopt;
    if (text[i] == '+' && i + 1 < text.size() && text[i + 1] != '-')
        ++i; // from_chars takes no plus sign
    // The longest decimal number at the start: digits, a point, an exponent.
    const std::size_t start = i;
    auto digits = [&] {
        const std::size_t from = i;
        while (i < text.size() && IsDigit(text[i]))
            ++i;
        return i - from;
    };
    if (i < text.size() && text[i] == '-')
        ++i;
    std::size_t mantissa = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        mantissa += digits();
    }
    if (mantissa == 0)
        return std::nullopt;
    std::size_t end = i;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            ++i;
        if (digits() > 0)
            end = i;
    }
    const std::string_view number = text.substr(start, end - start);
    double value = 0;
#ifdef __cpp_lib_to_chars
    const auto [last, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc())
        return std::nullopt;
#else
    // A standard library without from_chars for floating point (libc++
    // before 20) reads the same digits through a stream in the classic locale.
    std::istringstream in{std::string(number)};
    in.imbue(std::locale::classic());
    if (!(in >> value))
        return std::nullopt;
#endif
    return value;
}

std::string WriteNumber(double value, int significantDigits) {
    char buffer[32];
    const auto [last, error] = std::to_chars(buffer, buffer + sizeof buffer, value,
                                             std::chars_format::general, significantDigits);
    return error == std::errc() ? std::string(buffer, last) : std::string();
}

} // namespace quillane
