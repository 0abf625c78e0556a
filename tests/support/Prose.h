#pragma once
// The rules every written paragraph of the knowledge tables keeps, and the
// variety of a set of them.
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace quillane::testing {

// What is wrong with a paragraph, or "": printable ASCII with CR LF pairs as
// its only line breaks, no blank at either end or before a stop or comma,
// and a full stop at its end.
inline std::string ProseFault(std::string_view text) {
    if (text.empty() || text.front() == ' ' || text.back() != '.')
        return "blank at an end, or no full stop at the end";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool fine = c == '\r'   ? text.substr(i + 1, 1) == "\n"
                          : c == '\n' ? i > 0 && text[i - 1] == '\r'
                                      : c >= 0x20 && c < 0x7f;
        if (!fine)
            return "character " + std::to_string(c) + " at " + std::to_string(i);
    }
    for (std::string_view bad : {" .", " ,", "..", " \r", "\n "})
        if (text.find(bad) != std::string_view::npos)
            return "\"" + std::string(bad) + "\"";
    return "";
}

// The most common opening of three words in texts, and how many texts share it.
template <typename Texts>
std::pair<std::string, std::size_t> MostCommonOpening(const Texts& texts) {
    std::map<std::string, std::size_t> counts;
    std::pair<std::string, std::size_t> most;
    for (const auto& text : texts) {
        std::istringstream words{std::string(text)};
        std::string word, opening;
        for (int i = 0; i < 3 && words >> word; ++i)
            opening += (i == 0 ? "" : " ") + word;
        if (++counts[opening] > most.second)
            most = {opening, counts[opening]};
    }
    return most;
}

} // namespace quillane::testing
