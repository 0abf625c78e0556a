// The Tarot window.
#include "TarotWindows.h"
#include "ui/kit/WindowKit.h"

namespace quillane::ui {

namespace {

QWidget* BuildTarotWindow(Form& form) {
    auto* body = new QWidget;
    body->setMinimumSize(760, 480);
    return kit::SubjectShell(form, body, "tarot", "Label6");
}

} // namespace

void RegisterTarotWindows(FormHost& host) {
    host.RegisterWindow("frmLearnTarotMain", BuildTarotWindow);
}

} // namespace quillane::ui
