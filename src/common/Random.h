#pragma once
// The one process-wide generator: uniform numbers in [0,1).
//
// Seeding "from the clock" mixes the clock's reading into the current state
// instead of replacing it, so a loop that re-seeds before every draw within
// one clock tick still moves on to new numbers.
#include <cstdint>
#include <functional>

namespace quillane {

class Generator {
public:
    // The clock that seeding reads: seconds since midnight, as a double.
    using ClockReading = std::function<double()>;

    void SetClock(ClockReading clock) { clock_ = std::move(clock); }
    // Seeds from the clock (VB's Randomize with no argument).
    void Randomize();
    // Mixes a given value into the state (Randomize n).
    void Randomize(double value);
    // Next number in [0,1), with single precision's 24 bits (VB's Rnd).
    float Rnd();
    // Replaces the state outright; for tests and the driver's fixed seed.
    void Reset(std::uint64_t state) { state_ = state; }

private:
    std::uint64_t state_ = 0x853c49e6748fea9bULL;
    ClockReading clock_;
};

// The process-wide instance.
Generator& TheGenerator();
inline float Rnd() {
    return TheGenerator().Rnd();
}
inline void Randomize() {
    TheGenerator().Randomize();
}

} // namespace quillane
