#pragma once
#include "common/Application.h"

namespace quillane {

// Registers every form and module of the program with the application.
void RegisterProgram(Application& app);

// What runs at the start of the process, before any window exists.
void StartUp(Application& app);

// Closes every window still open, each through its own Form_Unload, children
// before the launcher, then ends the process.
void ExitApplication(Application& app);

} // namespace quillane
