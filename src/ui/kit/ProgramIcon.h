#pragma once
// The program's icon: a simplified drawing at the small sizes of menus and
// title bars, where the full one would blur into a blob, and the full
// drawing from 32 pixels up.
#include <QIcon>

namespace quillane::ui::kit {

QIcon ProgramIcon();

// An icon drawn from one of the program's SVG pictures at each size it is
// shown at; every size is drawn once and kept with the other pictures.
QIcon SvgIcon(const QString& resource);

} // namespace quillane::ui::kit
