#pragma once
#include "common/Application.h"

namespace quillane {

// Registers the Numerology forms and the modules whose state the driver reads.
void RegisterNumerology(Application& app);

} // namespace quillane
