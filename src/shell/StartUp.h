#pragma once
#include "common/Application.h"

namespace quillane {

struct LauncherSubjects;

// Registers the shell's forms (the launcher, which opens these subjects, and
// the About box) and makes the launcher the main form.
void RegisterShell(Application& app, const LauncherSubjects& subjects);

// What runs at the start of the process, before any window exists.
void StartUp(Application& app);

// Closes every window still open, each through its own Form_Unload, children
// before the launcher, then ends the process.
void ExitApplication(Application& app);

} // namespace quillane
