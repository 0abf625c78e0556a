#pragma once
#include "common/Application.h"

namespace quillane {

// Registers the Runes forms and the modules whose state the driver reads.
void RegisterRunes(Application& app);

} // namespace quillane
