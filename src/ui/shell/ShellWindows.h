#pragma once
// The launcher and the About box.
#include "ui/binding/FormHost.h"

namespace quillane::ui {

QWidget* BuildLauncher(Form& form);
QWidget* BuildAbout(Form& form);
void RegisterShellWindows(FormHost& host);

} // namespace quillane::ui
