#include "Random.h"

#include <bit>
#include <chrono>

namespace quillane {

namespace {
std::uint64_t SplitMix(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

double SystemSecondsSinceMidnight() {
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    return duration<double>(now - floor<days>(now)).count();
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
