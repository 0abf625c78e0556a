// Labels and pictures: text or a picture, with the control's own clicks.
#include "Adapters.h"
#include "MouseForwarder.h"
#include "Pictures.h"

#include <QLabel>
#include <QStyle>

namespace quillane::ui {

LabelAdapter::LabelAdapter(Binder& binder, Control& control, QLabel* label)
    : Adapter(binder, control, label) {
    new MouseForwarder(binder, control, label);
}

void LabelAdapter::Show(Prop prop) {
    auto* label = static_cast<QLabel*>(widget_.data());
    if (prop == Prop::Caption) {
        label->setText(LabelText(control_.Caption()));
        return;
    }
    if (prop != Prop::Font)
        return;
    // Style sheets decide fonts over setFont, so the underline also goes
    // through a property that the theme reads.
    QFont font = label->font();
    font.setUnderline(control_.FontUnderline());
    if (control_.FontBold())
        font.setBold(true);
    label->setFont(font);
    if (label->property("underline").toBool() != control_.FontUnderline()) {
        label->setProperty("underline", control_.FontUnderline());
        label->style()->unpolish(label);
        label->style()->polish(label);
    }
}

PictureAdapter::PictureAdapter(Binder& binder, Control& control, QLabel* label)
    : Adapter(binder, control, label) {
    new MouseForwarder(binder, control, label);
}

void PictureAdapter::Show(Prop prop) {
    if (prop != Prop::Picture)
        return;
    auto* label = static_cast<QLabel*>(widget_.data());
    // A picture the window drew itself (a decoration) stays until the
    // program gives the control a picture of its own.
    const Picture& picture = control_.Picture();
    label->setAccessibleName(QString::fromStdString(picture.description));
    if (!picture.empty())
        label->setPixmap(
            binder_.Pictures().Render(picture, label->size(), label->devicePixelRatioF()));
    else if (shown_)
        label->clear();
    shown_ = !picture.empty();
}

} // namespace quillane::ui
