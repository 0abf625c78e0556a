#pragma once
// The windows of the program's forms, laid out by hand. Every widget that
// shows a control carries that control's path as its object name.
#include "FormHost.h"

namespace quillane::ui {

QWidget* BuildLauncher(Form& form);
QWidget* BuildAbout(Form& form);
// A subject window: its body, and below it the links every subject carries.
QWidget* BuildSubjectShell(Form& form, QWidget* body);

// The subject windows, one file each.
QWidget* BuildAstrologyWindow(Form& form);
QWidget* BuildNumerologyWindow(Form& form);
QWidget* BuildTarotWindow(Form& form);
QWidget* BuildRunesWindow(Form& form);
QWidget* BuildRunesMeaningTestWindow(Form& form);

// Registers the window of every form.
void RegisterWindows(FormHost& host);

} // namespace quillane::ui
