#include "FormHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>

namespace quillane::ui {

namespace {

bool IsTabStop(const QWidget* w) {
    return (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy() && w->isVisible() &&
           w->isEnabled();
}

// A child window whose tab order goes on into the main window around it:
// Tab past its last control reaches the main window's next one, Shift+Tab
// before its first the one before it, so that every control of the program
// can be reached from the keyboard.
class ChildFrame : public QMdiSubWindow {
protected:
    bool focusNextPrevChild(bool next) override {
        const QWidget* from = QApplication::focusWidget();
        if (!from || !isAncestorOf(from))
            return QMdiSubWindow::focusNextPrevChild(next);
        for (QWidget* w = next ? from->nextInFocusChain() : from->previousInFocusChain();
             w && w != from; w = next ? w->nextInFocusChain() : w->previousInFocusChain()) {
            if (w->window() != window() || !IsTabStop(w))
                continue;
            if (w == this || isAncestorOf(w))
                break; // the next stop is inside: the window's own order
            w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
        return QMdiSubWindow::focusNextPrevChild(next);
    }
};

} // namespace

FormHost::FormHost(Application& app) : app_(app) {}

FormHost::~FormHost() {
    closingFromModel_ = true;
    for (auto& [name, w] : windows_)
        delete w.frame.data();
}

void FormHost::RegisterWindow(const std::string& form, WindowBuilder builder) {
    builders_[form] = std::move(builder);
}

void FormHost::RegisterWindow(const std::string& form,
                              const std::function<QWidget*(Form&)>& builder) {
    builders_[form] = [builder](Form& f, QWidget*) { return builder(f); };
}

QWidget* FormHost::WindowOf(const std::string& form) const {
    auto it = windows_.find(form);
    return it == windows_.end() ? nullptr : it->second.widget.data();
}

Binder* FormHost::BinderOf(const std::string& form) const {
    auto it = windows_.find(form);
    return it == windows_.end() ? nullptr : it->second.binder;
}

void FormHost::PopupMenu(Form& form, Control& menu, Control* defaultEntry) {
    if (Binder* binder = BinderOf(form.Name()))
        binder->PopupMenu(menu, defaultEntry);
}

void FormHost::FormLoaded(Form& form) {
    auto it = builders_.find(form.Name());
    if (it == builders_.end())
        return;
    QMdiSubWindow* sub = nullptr;
    if (form.IsMdiChild() && mdi_) {
        sub = new ChildFrame;
        sub->setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                            Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
                            Qt::WindowSystemMenuHint);
        sub->setAttribute(Qt::WA_DeleteOnClose, false);
        sub->setWindowIcon(QApplication::windowIcon());
        mdi_->addSubWindow(sub);
    }
    QWidget* widget = it->second(form, sub);
    Window w{widget, widget, nullptr};
    if (auto* main = qobject_cast<QMainWindow*>(widget)) {
        main_ = main;
        mdi_ = main->findChild<QMdiArea*>("mdiArea");
    } else if (sub) {
        sub->setWidget(widget);
        w.frame = sub;
    }
    w.binder = new Binder(app_, form, widget);
    w.frame->installEventFilter(this);
    windows_[form.Name()] = w;
}

void FormHost::FormShown(Form& form) {
    auto it = windows_.find(form.Name());
    if (it == windows_.end())
        return;
    QWidget* frame = it->second.frame;
    if (frame == main_) {
        // Without a window manager a maximise request is not honoured, so the
        // window first takes the screen's whole available area itself.
        if (QScreen* screen = main_->screen())
            main_->setGeometry(screen->availableGeometry());
        main_->showMaximized();
    } else if (auto* sub = qobject_cast<QMdiSubWindow*>(frame)) {
        // As large as it likes within the client area, never below its minimum.
        sub->resize(
            sub->sizeHint().boundedTo(mdi_->viewport()->size()).expandedTo(sub->minimumSizeHint()));
        // Centred across the client area, at its top.
        sub->move(std::max(0, (mdi_->viewport()->width() - sub->width()) / 2), 0);
        if (form.Me().WindowState() == WindowState::Minimized)
            sub->showMinimized();
        else
            sub->show();
        mdi_->setActiveSubWindow(sub);
        FitWrappedTexts(sub);
    } else if (!form.IsModal()) {
        frame->show();
    }
    UpdateMenuBar();
}

void FormHost::FitWrappedTexts(QMdiSubWindow* sub) {
    // Texts that wrap take their height from the width they are given, which
    // is known once the window has its looks: a desktop font larger than the
    // window was built with needs more lines than its size hint allowed for.
    QWidget* inner = sub->widget();
    if (!inner || !inner->hasHeightForWidth() || sub->isMinimized() || sub->isMaximized())
        return;
    const int frame = sub->height() - inner->height();
    const int wanted = std::min(inner->heightForWidth(inner->width()) + frame,
                                mdi_->viewport()->height() - sub->y());
    if (wanted > sub->height())
        sub->resize(sub->width(), wanted);
}

void FormHost::FormUnloaded(Form& form) {
    auto it = windows_.find(form.Name());
    if (it == windows_.end())
        return;
    Window w = it->second;
    windows_.erase(it);
    if (w.binder)
        w.binder->Detach();
    closingFromModel_ = true;
    if (auto* dialog = qobject_cast<QDialog*>(w.frame.data()))
        dialog->done(0);
    if (w.frame && w.frame != main_) {
        w.frame->hide();
        if (auto* sub = qobject_cast<QMdiSubWindow*>(w.frame.data()); sub && mdi_)
            mdi_->removeSubWindow(sub);
        w.frame->deleteLater();
    }
    closingFromModel_ = false;
    UpdateMenuBar();
}

void FormHost::RunModal(Form& form) {
    auto it = windows_.find(form.Name());
    if (it == windows_.end())
        return;
    if (auto* dialog = qobject_cast<QDialog*>(it->second.frame.data())) {
        dialog->setParent(main_, dialog->windowFlags());
        dialog->exec();
    }
}

void FormHost::ProgramEnded() {
    closingFromModel_ = true;
    if (main_)
        main_->hide();
    QApplication::quit();
}

bool FormHost::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || closingFromModel_)
        return QObject::eventFilter(watched, event);
    // The title bar's close button runs the form's own unload, which may keep
    // the window open; the window closes when the form is unloaded.
    for (const auto& [name, w] : windows_) {
        if (w.frame != watched)
            continue;
        event->ignore();
        const std::string form = name;
        app_.Dispatch([this, form] { app_.Unload(form); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void FormHost::UpdateMenuBar() {
    if (!main_)
        return;
    QMenuBar* bar = main_->menuBar();
    bar->clear();
    Form* owner = app_.MenuOwner();
    if (!owner)
        return;
    auto it = windows_.find(owner->Name());
    if (it == windows_.end() || !it->second.binder)
        return;
    for (QMenu* menu : it->second.binder->Menus())
        bar->addMenu(menu);
}

} // namespace quillane::ui
