// Push buttons, check boxes and option buttons.
#include "Adapters.h"

#include <QAbstractButton>

namespace quillane::ui {

ButtonAdapter::ButtonAdapter(Binder& binder, Control& control, QAbstractButton* button)
    : Adapter(binder, control, button) {
    // The model, not the widget, decides which option is on.
    button->setAutoExclusive(false);
    Control* c = &control;
    QObject::connect(button, &QAbstractButton::clicked, &binder_, [this, c] {
        Act([c] { c->UserClick(); });
        // The widget toggled itself; the model may see it otherwise (an option
        // clicked again stays on). The click may have closed the form.
        if (!binder_.Detached())
            Refresh(Prop::Value);
    });
}

void ButtonAdapter::Show(Prop prop) {
    auto* button = static_cast<QAbstractButton*>(widget_.data());
    if (prop == Prop::Caption)
        button->setText(QString::fromStdString(control_.Caption()));
    else if (prop == Prop::Value && button->isCheckable())
        button->setChecked(control_.Value() != 0);
}

} // namespace quillane::ui
