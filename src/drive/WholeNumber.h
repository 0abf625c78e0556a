#pragma once
// A number in a command: whole, in decimals, and nothing else ("1e3", "3abc"
// and " 2" are no numbers).
#include <charconv>
#include <optional>
#include <string_view>

namespace quillane::drive {

template <class Int = int> std::optional<Int> WholeNumber(std::string_view text) {
    Int value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return value;
}

} // namespace quillane::drive
