#pragma once
// A stable digest of a table's texts (64-bit FNV-1a), so that a test can hold
// one constant for a whole table instead of a second copy of it. A deliberate
// change of the texts updates the constant in the same commit; the failure
// message shows the new value.
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace quillane::testing {

class TableDigest {
public:
    // Adds one text; texts are kept apart, so "ab","c" differs from "a","bc".
    TableDigest& Add(std::string_view text) {
        for (unsigned char c : text)
            Mix(c);
        Mix(0x1f);
        return *this;
    }
    template <typename Texts> TableDigest& AddAll(const Texts& texts) {
        for (const auto& text : texts)
            Add(text);
        Mix(0x1e);
        return *this;
    }
    std::uint64_t Value() const { return hash_; }
    std::string Hex() const {
        char text[24];
        std::snprintf(text, sizeof text, "0x%016llx", static_cast<unsigned long long>(hash_));
        return text;
    }

private:
    void Mix(unsigned char c) { hash_ = (hash_ ^ c) * 0x100000001b3ULL; }
    std::uint64_t hash_ = 0xcbf29ce484222325ULL;
};

} // namespace quillane::testing
