#pragma once
// The Astrology windows.
#include "ui/binding/FormHost.h"

namespace quillane::ui {

void RegisterAstrologyWindows(FormHost& host);

} // namespace quillane::ui
