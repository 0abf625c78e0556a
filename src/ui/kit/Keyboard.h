#pragma once
// What the keyboard does in every window beyond Qt's defaults: Return and
// Enter press the focused button (not only Space), as users of desktop
// programs expect.
class QApplication;

namespace quillane::ui::kit {

void InstallKeyboard(QApplication& app);

} // namespace quillane::ui::kit
