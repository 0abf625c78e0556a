#pragma once
// An array with the bounds model the program leans on: explicit lower and
// upper bounds, ReDim (with or without keeping the contents), Erase back to
// "no bounds", and a subscript check that raises run-time error 9.
#include "Errors.h"

#include <cstddef>
#include <vector>

namespace quillane {

template <class T> class VBArray {
public:
    VBArray() = default;
    // A fixed array: Dim a(lower To upper).
    VBArray(long lower, long upper) { ReDim(lower, upper); }

    bool IsInitialised() const { return initialised_; }
    long LBound() const {
        CheckBounds();
        return lower_;
    }
    long UBound() const {
        CheckBounds();
        return upper_;
    }

    void ReDim(long lower, long upper) {
        lower_ = lower;
        upper_ = upper;
        items_.assign(Count(), T{});
        initialised_ = true;
    }
    void ReDim(long upper) { ReDim(0, upper); }
    // Keeps the elements that stand in both the old and the new bounds.
    void ReDimPreserve(long upper) {
        if (!initialised_) {
            ReDim(0, upper);
            return;
        }
        upper_ = upper;
        items_.resize(Count());
    }
    void Erase() {
        items_.clear();
        initialised_ = false;
        lower_ = 0;
        upper_ = -1;
    }

    T& operator()(long i) { return items_[Slot(i)]; }
    const T& operator()(long i) const { return items_[Slot(i)]; }
    // The elements from the lower to the upper bound.
    const std::vector<T>& Items() const { return items_; }

private:
    std::size_t Count() const { return upper_ >= lower_ ? std::size_t(upper_ - lower_ + 1) : 0; }
    void CheckBounds() const {
        if (!initialised_)
            throw RuntimeError(9, "Subscript out of range");
    }
    std::size_t Slot(long i) const {
        CheckBounds();
        if (i < lower_ || i > upper_)
            throw RuntimeError(9, "Subscript out of range");
        return std::size_t(i - lower_);
    }

    std::vector<T> items_;
    long lower_ = 0;
    long upper_ = -1;
    bool initialised_ = false;
};

} // namespace quillane
