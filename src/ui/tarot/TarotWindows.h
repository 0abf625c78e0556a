#pragma once
// The Tarot windows.
#include "ui/binding/FormHost.h"

namespace quillane::ui {

void RegisterTarotWindows(FormHost& host);

} // namespace quillane::ui
