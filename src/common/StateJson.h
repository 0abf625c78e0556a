#pragma once
// Arrays of a form's or module's state as the driver shows them: every entry
// from the lower to the upper bound, a dynamic array without bounds as null,
// and flags (0 and -1) as false and true.
#include "Json.h"
#include "VBArray.h"

namespace quillane {

// Any range of numbers or strings: std::array, std::span, a vector.
template <class Range> Json ListJson(const Range& values) {
    Json::Array items;
    for (const auto& v : values)
        items.emplace_back(v);
    return Json(std::move(items));
}
template <class T> Json ListJson(const VBArray<T>& array) {
    return array.IsInitialised() ? ListJson(array.Items()) : Json();
}

template <class Range> Json FlagsJson(const Range& values) {
    Json::Array items;
    for (const auto& v : values)
        items.emplace_back(v != 0);
    return Json(std::move(items));
}
template <class T> Json FlagsJson(const VBArray<T>& array) {
    return array.IsInitialised() ? FlagsJson(array.Items()) : Json();
}

} // namespace quillane
