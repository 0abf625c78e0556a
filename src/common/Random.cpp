#include "Random.h"

#include <bit>
#include <ctime>

namespace quillane {

namespace {
std::uint64_t SplitMix(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

double SystemSecondsSinceMidnight() {
    timespec ts{};
    timespec_get(&ts, TIME_UTC);
    return double(ts.tv_sec % 86400) + double(ts.tv_nsec) / 1e9;
}
} // namespace

void Generator::Randomize() {
    Randomize(clock_ ? clock_() : SystemSecondsSinceMidnight());
}

void Generator::Randomize(double value) {
    // The old state stays in the mix, so equal readings still give a new state.
    state_ ^= std::bit_cast<std::uint64_t>(value);
    SplitMix(state_);
}

float Generator::Rnd() {
    const std::uint64_t bits = SplitMix(state_) >> 40; // 24 bits
    return float(bits) / float(1 << 24);
}

Generator& TheGenerator() {
    static Generator generator;
    return generator;
}

} // namespace quillane
