// Containers: panels, stacked panels, captioned frames and user controls.
#include "Adapters.h"
#include "MouseForwarder.h"

#include <QGroupBox>

namespace quillane::ui {

PanelAdapter::PanelAdapter(Binder& binder, Control& control, QWidget* panel)
    : Adapter(binder, control, panel) {
    new MouseForwarder(binder, control, panel);
}

void PanelAdapter::Show(Prop prop) {
    if (prop != Prop::Caption)
        return;
    const QString caption = LabelText(control_.Caption());
    if (auto* box = qobject_cast<QGroupBox*>(widget_.data()))
        box->setTitle(caption);
    else if (auto* captioned = dynamic_cast<CaptionedWidget*>(widget_.data()))
        captioned->SetCaption(caption);
}

} // namespace quillane::ui
