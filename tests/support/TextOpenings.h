#pragma once
// Variety of written paragraphs: how many of a set open with the same words.
#include <map>
#include <sstream>
#include <string>
#include <utility>

namespace quillane::testing {

// The most common opening of three words in texts, and how many texts share it.
template <typename Texts>
std::pair<std::string, std::size_t> MostCommonOpening(const Texts& texts) {
    std::map<std::string, std::size_t> counts;
    std::pair<std::string, std::size_t> most;
    for (const auto& text : texts) {
        std::istringstream words{std::string(text)};
        std::string word, opening;
        for (int i = 0; i < 3 && words >> word; ++i) {
            opening += (i == 0 ? "" : " ") + word;
        }
        if (++counts[opening] > most.second) {
            most = {opening, counts[opening]};
        }
    }
    return most;
}

} // namespace quillane::testing
