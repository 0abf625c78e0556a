#pragma once
// What a screen reader is told beyond Qt's defaults: option buttons are
// announced as options (radio buttons), not as check boxes.
class QApplication;

namespace quillane::ui::kit {

void InstallAccessibility(QApplication& app);

} // namespace quillane::ui::kit
