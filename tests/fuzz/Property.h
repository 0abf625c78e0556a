#pragma once
// What a fuzz target checks: a property that must hold for every input. A
// broken one stops the run, which libFuzzer reports with the input.
#include <cstdio>
#include <cstdlib>

namespace quillane::fuzz {

inline void Holds(bool property, const char* what) {
    if (!property) {
        std::fprintf(stderr, "property broken: %s\n", what);
        std::abort();
    }
}

} // namespace quillane::fuzz
