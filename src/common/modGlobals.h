#pragma once
// Small array tests shared by the Tarot and goal windows.
#include "VBArray.h"

#include <cstdint>
#include <string>

namespace quillane::modGlobals {

template <class T> bool IsArrayInitialised(const VBArray<T>& array) {
    return array.IsInitialised();
}

// The same test for the array of goal records.
template <class Goal> bool IsGoalArrayInitialised(const VBArray<Goal>& goals) {
    return goals.IsInitialised();
}

// True when the array has bounds and an element equals the value, scanning
// from the lower to the upper bound.
template <class T> bool IsInArray(const T& value, const VBArray<T>& array) {
    if (!array.IsInitialised())
        return false;
    for (long i = array.LBound(); i <= array.UBound(); ++i)
        if (array(i) == value)
            return true;
    return false;
}

inline bool IsInLongArray(std::int32_t value, const VBArray<std::int32_t>& array) {
    return IsInArray(value, array);
}

// By exact comparison; an unset element is the empty string, so "" is found
// in any array with bounds.
inline bool IsInStringArray(const std::string& value, const VBArray<std::string>& array) {
    return IsInArray(value, array);
}

} // namespace quillane::modGlobals
