#pragma once
// The Runes windows.
#include "ui/binding/FormHost.h"

namespace quillane::ui {

void RegisterRunesWindows(FormHost& host);
QWidget* BuildRunesMeaningTestWindow(Form& form, QWidget* frame);

} // namespace quillane::ui
