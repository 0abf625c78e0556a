#pragma once
#include "common/Application.h"

namespace quillane {

// Registers the Astrology forms and the modules whose state the driver reads.
void RegisterAstrology(Application& app);

} // namespace quillane
