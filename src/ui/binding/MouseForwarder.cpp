#include "MouseForwarder.h"

#include "Binder.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QWidget>

namespace quillane::ui {

MouseForwarder::MouseForwarder(Binder& binder, Control& control, QWidget* widget)
    : QObject(widget), binder_(binder), control_(control) {
    widget->installEventFilter(this);
    widget->setMouseTracking(true);
    if (control.Click && qobject_cast<QLabel*>(widget)) {
        widget->setCursor(Qt::PointingHandCursor);
        // A label that leads somewhere is reached by Tab and pressed by
        // Return or Space, as a link is. It takes the focus from its first
        // showing on (below).
        widget->setAccessibleDescription("Link");
        if (widget->isVisible())
            widget->setFocusPolicy(Qt::TabFocus);
    }
}

bool MouseForwarder::eventFilter(QObject* watched, QEvent* event) {
    // A label that can take the focus lays its text out as a whole document,
    // again at each size its layout asks about, which made a window with
    // links slow to lay out for its first showing. By the time the label
    // shows, its window has been laid out.
    if (event->type() == QEvent::Show && control_.Click) {
        auto* label = qobject_cast<QLabel*>(watched);
        if (label && label->focusPolicy() == Qt::NoFocus)
            label->setFocusPolicy(Qt::TabFocus);
    }
    // A link with the focus is underlined, so that a keyboard user sees where
    // Return would lead; the style sheet's borders do not follow a label's
    // focus.
    if ((event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) && control_.Click) {
        if (auto* label = qobject_cast<QLabel*>(watched)) {
            QFont font = label->font();
            font.setUnderline(event->type() == QEvent::FocusIn);
            label->setFont(font);
        }
    }
    // The form may be gone while its window still takes events.
    if (binder_.Detached() || !control_.Enabled())
        return QObject::eventFilter(watched, event);
    Control* c = &control_;
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        binder_.Act([c] { c->UserClick(); });
        event->accept();
        return true;
    case QEvent::MouseButtonPress:
        event->accept();
        return true;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (!control_.Click ||
            (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space))
            return QObject::eventFilter(watched, event);
        binder_.Act([c] { c->UserClick(); });
        event->accept();
        return true;
    }
    case QEvent::MouseMove:
        binder_.Act([c] { c->UserHover(); });
        event->accept();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace quillane::ui
