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
    if (prop != Prop::TabState && prop != Prop::Tab)
        return;
    // The program may select a tab it has disabled (and enable it a moment
    // later); the widget can't show a disabled tab as current, so the
    // current one is kept enabled there: the user can't click it anyway.
    const int current = tabs_.Tab();
    if (current < widget->count()) {
        widget->setTabEnabled(current, true);
        widget->setCurrentIndex(current);
    }
    for (int i = 0; i < tabs_.Tabs() && i < widget->count(); ++i) {
        widget->setTabText(i, LabelText(tabs_.TabCaption(i)));
        if (i != current)
            widget->setTabEnabled(i, tabs_.TabEnabled(i));
    }
}

} // namespace quillane::ui
