#pragma once
// Clicks and the mouse passing over a widget that is no button (a label, a
// picture, a panel) reach its control, and go no further to the container,
// as they would by default: each control has its own mouse events.
#include "common/Control.h"

#include <QObject>
#include <functional>

namespace quillane::ui {

class Binder;

class MouseForwarder : public QObject {
public:
    MouseForwarder(Binder& binder, Control& control, QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Binder& binder_;
    Control& control_;
};

} // namespace quillane::ui
