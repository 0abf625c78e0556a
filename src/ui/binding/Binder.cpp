#include "Binder.h"

#include <QAction>
#include <QCoreApplication>
#include <QCursor>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace quillane::ui {
namespace {

// Actions under way, of any window: one window's action may fill another's
// text boxes.
int acting = 0;
QList<QPointer<Binder>>& Holding() {
    static QList<QPointer<Binder>> binders;
    return binders;
}
// Posted ahead of paint requests, so that a message box or a `DoEvents`
// inside an action shows the texts as they stand.
const QEvent::Type kShowHeldTexts = QEvent::Type(QEvent::registerEventType());

} // namespace

Binder::Binder(Application& app, Form& form, QWidget* root)
    : QObject(root), app_(app), form_(form), root_(root) {
    root->setWindowTitle(QString::fromStdString(form.Me().Caption()));
    for (const auto& c : form.Controls()) {
        if (c->Kind() == ControlKind::Menu)
            continue;
        QWidget* widget = Find(*c);
        std::unique_ptr<Adapter> adapter = widget ? MakeAdapter(*this, *c, widget) : nullptr;
        if (!adapter) {
            unbound_ << QString::fromStdString(c->Path());
            continue;
        }
        adapter->RefreshAll();
        adapters_.emplace(c.get(), std::move(adapter));
    }
    if (!unbound_.isEmpty())
        qWarning("%s: no widget shows %s", form.Name().c_str(), qPrintable(unbound_.join(", ")));
    BuildMenus();
    form.SetObserver([this](Control& c, Prop p) { Update(c, p); });
}

Binder::~Binder() {
    Detach();
}

void Binder::Detach() {
    if (detached_)
        return;
    detached_ = true;
    held_.clear();
    form_.SetObserver(nullptr);
    // Widgets may be gone already when the window is being deleted; their
    // connections to the form go with the adapters.
    for (auto& [control, adapter] : adapters_)
        if (QWidget* widget = adapter->Widget())
            disconnect(widget, nullptr, this, nullptr);
    for (QAction* action : std::as_const(actions_))
        disconnect(action, nullptr, this, nullptr);
    actions_.clear();
}

QWidget* Binder::WidgetFor(const Control& control) const {
    auto it = adapters_.find(&control);
    return it == adapters_.end() ? nullptr : it->second->Widget();
}

QWidget* Binder::Find(const Control& control) const {
    const Control* container = control.Container();
    if (container && container->Kind() == ControlKind::UserControl) {
        QWidget* parent = Find(*container);
        const std::string own = control.Index() >= 0
                                    ? control.Name() + "(" + std::to_string(control.Index()) + ")"
                                    : control.Name();
        return parent ? parent->findChild<QWidget*>(QString::fromStdString(own)) : nullptr;
    }
    const QString path = QString::fromStdString(control.Path());
    return root_->objectName() == path ? root_ : root_->findChild<QWidget*>(path);
}

void Binder::Act(const std::function<void()>& action) {
    if (detached_ || app_.Ended())
        return;
    ++acting;
    app_.Dispatch(action);
    if (--acting == 0)
        for (const QPointer<Binder>& binder : std::exchange(Holding(), {}))
            if (binder)
                binder->ShowHeldTexts();
}

void Binder::ShowHeldTexts() {
    for (Adapter* adapter : std::exchange(held_, {})) {
        if (listener_)
            listener_(adapter->Model(), Prop::Text);
        adapter->Refresh(Prop::Text);
    }
}

bool Binder::event(QEvent* event) {
    if (event->type() != kShowHeldTexts)
        return QObject::event(event);
    ShowHeldTexts();
    return true;
}

void Binder::BuildMenus() {
    for (Control* entry : form_.Menus()) {
        const QString caption = QString::fromStdString(entry->Caption());
        Control* parent = entry->Container();
        QMenu* parentMenu = parent ? submenus_.value(parent) : nullptr;
        bool hasChildren = false;
        for (Control* other : form_.Menus())
            hasChildren = hasChildren || other->Container() == entry;
        QAction* action = nullptr;
        if (hasChildren || !parent) {
            auto* menu = new QMenu(caption, root_);
            menu->setObjectName(QString::fromStdString(entry->Path()));
            submenus_.insert(entry, menu);
            action = menu->menuAction();
            if (parentMenu)
                parentMenu->addMenu(menu);
            else
                menus_.append(menu);
        } else if (entry->Caption() == "-") {
            action = parentMenu ? parentMenu->addSeparator() : new QAction(root_);
            action->setSeparator(true);
            action->setObjectName(QString::fromStdString(entry->Path()));
        } else {
            action = new QAction(caption, parentMenu);
            action->setObjectName(QString::fromStdString(entry->Path()));
            if (parentMenu)
                parentMenu->addAction(action);
            connect(action, &QAction::triggered, this,
                    [this, entry] { Act([entry] { entry->UserClick(); }); });
        }
        action->setVisible(entry->Visible());
        action->setEnabled(entry->Enabled());
        actions_.insert(entry, action);
    }
}

void Binder::PopupMenu(Control& menu, Control* defaultEntry) {
    QMenu* popup = submenus_.value(&menu);
    if (!popup)
        return;
    popup->setDefaultAction(defaultEntry ? actions_.value(defaultEntry) : nullptr);
    popup->exec(QCursor::pos());
}

void Binder::Update(Control& control, Prop prop) {
    if (QAction* action = actions_.value(&control)) {
        ++refreshes_;
        if (prop == Prop::Caption && !action->isSeparator())
            action->setText(QString::fromStdString(control.Caption()));
        else if (prop == Prop::Visible)
            action->setVisible(control.Visible());
        else if (prop == Prop::Enabled)
            action->setEnabled(control.Enabled());
        return;
    }
    if (&control == &form_.Me()) {
        if (prop == Prop::Caption)
            root_->setWindowTitle(QString::fromStdString(control.Caption()));
        QWidget* frame =
            qobject_cast<QMdiSubWindow*>(root_->parentWidget()) ? root_->parentWidget() : root_;
        if (prop == Prop::WindowState) {
            if (control.WindowState() == WindowState::Minimized)
                frame->showMinimized();
            else if (frame->isMinimized())
                frame->showNormal();
        }
        // A form the program hides: its frame (the launcher's sub-window for a
        // child) goes from view; showing it again goes through FormShown.
        if (prop == Prop::Visible && !control.Visible()) {
            if (!qobject_cast<QMainWindow*>(frame))
                frame->hide();
        }
        return;
    }
    if (auto it = adapters_.find(&control); it != adapters_.end()) {
        Adapter* adapter = it->second.get();
        const bool held = std::find(held_.begin(), held_.end(), adapter) != held_.end();
        if (acting && prop == Prop::Text && adapter->HoldsText()) {
            if (held)
                return;
            if (held_.empty()) {
                Holding().append(this);
                QCoreApplication::postEvent(this, new QEvent(kShowHeldTexts),
                                            Qt::HighEventPriority);
            }
            held_.push_back(adapter);
            return;
        }
        if (held) // the text first, then what depends on it (the caret)
            ShowHeldTexts();
        if (listener_)
            listener_(control, prop);
        adapter->Refresh(prop);
    }
}

} // namespace quillane::ui
