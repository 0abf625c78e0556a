#pragma once
// The Numerology windows.
#include "ui/binding/FormHost.h"

namespace quillane::ui {

void RegisterNumerologyWindows(FormHost& host);

} // namespace quillane::ui
