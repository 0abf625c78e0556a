#pragma once
#include "common/Application.h"

namespace quillane {

// Registers the Tarot forms and the modules whose state the driver reads.
void RegisterTarot(Application& app);

} // namespace quillane
