#include "Adapters.h"

#include "common/TabStrip.h"

#include <QTabBar>

namespace quillane::ui {

TabAdapter::TabAdapter(Binder& binder, TabStrip& tabs, QTabWidget* widget)
    : Adapter(binder, tabs, widget), tabs_(tabs) {
    QObject::connect(widget, &QTabWidget::currentChanged, &binder_, [this](int index) {
        if (Updating() || index < 0 || index == tabs_.Tab())
            return;
        TabStrip* model = &tabs_;
        Act([model, index] {
            model->SetFocus();
            model->SetTab(index);
        });
        // The tab change rule may have moved elsewhere, or closed the form.
        if (!binder_.Detached())
            Refresh(Prop::Tab);
    });
}

void TabAdapter::Show(Prop prop) {
    auto* widget = static_cast<QTabWidget*>(widget_.data());
    if (prop == Prop::TabState) {
        for (int i = 0; i < tabs_.Tabs() && i < widget->count(); ++i) {
            widget->setTabText(i, LabelText(tabs_.TabCaption(i)));
            widget->setTabEnabled(i, tabs_.TabEnabled(i));
        }
    } else if (prop == Prop::Tab) {
        widget->setCurrentIndex(tabs_.Tab());
    }
}

} // namespace quillane::ui
