#pragma once
// Reading a control's properties as the driver shows them.
#include "common/Control.h"
#include "common/Json.h"

#include <optional>
#include <string>

namespace quillane::drive {

// The property's value, or nothing when the control has no such property.
std::optional<Json> GetProperty(const Control& control, const std::string& property);
// Every property that the control's kind has.
Json DumpControl(const Control& control);

} // namespace quillane::drive
