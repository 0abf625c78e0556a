#include "Adapter.h"

#include "Binder.h"

#include <QStackedWidget>

namespace quillane::ui {

Adapter::Adapter(Binder& binder, Control& control, QWidget* widget)
    : binder_(binder), control_(control), widget_(widget) {}

void Adapter::Act(const std::function<void()>& action) {
    binder_.Act(action);
}

void Adapter::Refresh(Prop prop) {
    if (!widget_)
        return;
    binder_.CountRefresh();
    updating_ = true;
    switch (prop) {
    case Prop::Visible:
        // A stacked panel shows by being in front; a window by its frame.
        if (!control_.Stack() && widget_ != widget_->window())
            widget_->setVisible(control_.Visible());
        break;
    case Prop::Enabled:
        widget_->setEnabled(control_.Enabled());
        break;
    case Prop::Front:
        if (control_.InFront())
            if (auto* stack = qobject_cast<QStackedWidget*>(widget_->parentWidget()))
                stack->setCurrentWidget(widget_);
        break;
    default:
        Show(prop);
    }
    updating_ = false;
}

void Adapter::RefreshAll() {
    for (Prop prop : {Prop::Visible, Prop::Enabled, Prop::Front})
        Refresh(prop);
    for (Prop prop : OwnProps())
        Refresh(prop);
}

QString LabelText(const std::string& caption) {
    QString out;
    const QString in = QString::fromStdString(caption);
    for (int i = 0; i < in.size(); ++i) {
        if (in[i] == '&') {
            if (i + 1 < in.size() && in[i + 1] == '&') {
                out += '&';
                ++i;
            }
            continue;
        }
        out += in[i];
    }
    return out;
}

} // namespace quillane::ui
