#include "Windows.h"

#include <QWidget>

namespace quillane::ui {

QWidget* BuildRunesWindow(Form& form) {
    auto* body = new QWidget;
    body->setMinimumSize(760, 480);
    return BuildSubjectShell(form, body);
}

} // namespace quillane::ui
