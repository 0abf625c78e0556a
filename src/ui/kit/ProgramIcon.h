#pragma once
// The program's icon: a simplified drawing at the small sizes of menus and
// title bars, where the full one would blur into a blob, and the full
// drawing from 32 pixels up.
#include <QIcon>

namespace quillane::ui::kit {

QIcon ProgramIcon();

} // namespace quillane::ui::kit
