#include "Binder.h"

#include "Pictures.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStyle>
#include <QTextEdit>

namespace quillane::ui {

Binder::Binder(Application& app, Form& form, QWidget* root)
    : QObject(root), app_(app), form_(form), root_(root) {
    root->setWindowTitle(QString::fromStdString(form.Me().Caption()));
    for (const auto& c : form.Controls()) {
        if (c->Kind() == ControlKind::Menu)
            continue;
        const QString path = QString::fromStdString(c->Path());
        QWidget* widget = root->objectName() == path ? root : root->findChild<QWidget*>(path);
        if (widget)
            Bind(*c, widget);
    }
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
    form_.SetObserver(nullptr);
    // Widgets may be gone already when the window is being deleted.
    for (const QPointer<QWidget>& widget : std::as_const(widgets_))
        if (widget) {
            widget->removeEventFilter(this);
            disconnect(widget, nullptr, this, nullptr);
        }
    for (QAction* action : std::as_const(actions_))
        disconnect(action, nullptr, this, nullptr);
    widgets_.clear();
    controlOf_.clear();
    actions_.clear();
    richShown_.clear();
}

QString Binder::LabelText(const std::string& caption) {
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

void Binder::Act(const std::function<void()>& action) {
    if (detached_ || app_.Ended())
        return;
    app_.Dispatch(action);
}

void Binder::Bind(Control& control, QWidget* widget) {
    widgets_.insert(&control, widget);
    controlOf_.insert(widget, &control);
    Control* c = &control;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setAutoExclusive(false);
        connect(button, &QAbstractButton::clicked, this, [this, c] {
            Act([c] { c->UserClick(); });
            // The model, not the widget, decides the checked state; the click
            // may have closed the form.
            if (!detached_)
                Refresh(*c);
        });
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        connect(combo, &QComboBox::activated, this, [this, c](int index) {
            Act([c, index] {
                c->SetFocus();
                c->SetListIndex(index);
            });
        });
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        connect(line, &QLineEdit::textEdited, this, [this, c](const QString& text) {
            Act([c, text] { c->SetText(text.toStdString()); });
        });
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
        connect(plain, &QPlainTextEdit::textChanged, this, [this, c, plain] {
            if (updating_)
                return;
            // Text boxes keep CRLF line ends, as the program's texts do.
            const std::string text = plain->toPlainText().replace("\n", "\r\n").toStdString();
            Act([c, text] { c->SetText(text); });
        });
    } else {
        // Labels, pictures and panels: clicks and the mouse passing over.
        widget->installEventFilter(this);
        widget->setMouseTracking(true);
        if (control.Click && qobject_cast<QLabel*>(widget))
            widget->setCursor(Qt::PointingHandCursor);
    }
    Refresh(control);
}

void Binder::RefreshRichText(const Control& control, QTextEdit* view) {
    // Reports grow by appending runs; only the new ones are laid out, so a
    // long report does not redraw itself once for every piece.
    std::vector<TextRun>& shown = richShown_[&control];
    const std::vector<TextRun>& runs = control.Runs();
    auto same = [](const TextRun& a, const TextRun& b) {
        return a.bold == b.bold && a.pointSize == b.pointSize && a.text == b.text;
    };
    if (shown.size() > runs.size() || !std::equal(shown.begin(), shown.end(), runs.begin(), same)) {
        view->clear();
        shown.clear();
    }
    QTextCursor cursor(view->document());
    cursor.movePosition(QTextCursor::End);
    for (std::size_t i = shown.size(); i < runs.size(); ++i) {
        QTextCharFormat format;
        format.setFontWeight(runs[i].bold ? QFont::Bold : QFont::Normal);
        if (runs[i].pointSize > 0)
            format.setFontPointSize(runs[i].pointSize);
        cursor.insertText(QString::fromStdString(runs[i].text).replace("\r\n", "\n"), format);
    }
    shown = runs;
    // The caret counts a line end as two characters; the view as one.
    const std::string before = control.Text().substr(0, std::size_t(control.SelStart()));
    const int caret = int(QString::fromStdString(before).replace("\r\n", "\n").size());
    cursor.setPosition(std::min(caret, view->document()->characterCount() - 1));
    view->setTextCursor(cursor);
    if (caret == 0) // a text read from its start opens at its top, margin included
        view->verticalScrollBar()->setValue(0);
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    Control* c = controlOf_.value(watched);
    if (!c || !c->Enabled())
        return QObject::eventFilter(watched, event);
    // Each control has its own mouse events: they go no further to the
    // container, as a label's would by default.
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        Act([c] { c->UserClick(); });
        event->accept();
        return true;
    case QEvent::MouseButtonPress:
        event->accept();
        return true;
    case QEvent::MouseMove:
        Act([c] { c->UserHover(); });
        event->accept();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void Binder::BuildMenus() {
    QHash<const Control*, QMenu*> submenus;
    for (Control* entry : form_.Menus()) {
        const QString caption = QString::fromStdString(entry->Caption());
        Control* parent = entry->Container();
        QMenu* parentMenu = parent ? submenus.value(parent) : nullptr;
        bool hasChildren = false;
        for (Control* other : form_.Menus())
            hasChildren = hasChildren || other->Container() == entry;
        QAction* action = nullptr;
        if (hasChildren || !parent) {
            auto* menu = new QMenu(caption, root_);
            menu->setObjectName(QString::fromStdString(entry->Path()));
            submenus.insert(entry, menu);
            action = menu->menuAction();
            if (parentMenu)
                parentMenu->addMenu(menu);
            else
                menus_.append(menu);
        } else {
            action = new QAction(caption, parentMenu);
            action->setObjectName(QString::fromStdString(entry->Path()));
            action->setSeparator(entry->Caption() == "-");
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

void Binder::Update(Control& control, Prop prop) {
    if (QAction* action = actions_.value(&control)) {
        action->setText(QString::fromStdString(control.Caption()));
        action->setVisible(control.Visible());
        action->setEnabled(control.Enabled());
        return;
    }
    if (&control == &form_.Me()) {
        if (prop == Prop::Caption)
            root_->setWindowTitle(QString::fromStdString(control.Caption()));
        // A form the program hides: its frame (the launcher's sub-window for a
        // child) goes from view; showing it again goes through FormShown.
        if (prop == Prop::Visible && !control.Visible()) {
            QWidget* frame =
                qobject_cast<QMdiSubWindow*>(root_->parentWidget()) ? root_->parentWidget() : root_;
            if (!qobject_cast<QMainWindow*>(frame))
                frame->hide();
        }
        return;
    }
    if (control.Stack()) {
        // A panel brought to front: its stack follows.
        for (Control* member : control.Stack()->Members())
            if (member->InFront())
                if (QWidget* front = widgets_.value(member))
                    if (auto* stack = qobject_cast<QStackedWidget*>(front->parentWidget()))
                        stack->setCurrentWidget(front);
    }
    Refresh(control);
}

void Binder::Refresh(Control& control) {
    QWidget* widget = widgets_.value(&control);
    if (!widget)
        return;
    updating_ = true;
    if (control.InFront())
        if (auto* stack = qobject_cast<QStackedWidget*>(widget->parentWidget()))
            stack->setCurrentWidget(widget);
    if (!control.Stack() && widget != widget->window())
        widget->setVisible(control.Visible());
    widget->setEnabled(control.Enabled());
    const QString caption = QString::fromStdString(control.Caption());
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setText(caption);
        if (button->isCheckable())
            button->setChecked(control.Value() != 0);
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        if (control.Kind() == ControlKind::PictureBox || control.Kind() == ControlKind::Image) {
            // A picture the window drew itself (a decoration) stays until the
            // program gives the control a picture of its own.
            if (!control.Picture().empty())
                label->setPixmap(
                    RenderPicture(control.Picture(), label->size(), label->devicePixelRatioF()));
            else if (label->property("shownPicture").toBool())
                label->clear();
            label->setProperty("shownPicture", !control.Picture().empty());
        } else {
            label->setText(LabelText(control.Caption()));
        }
        // Style sheets decide fonts over setFont, so the flags go through
        // properties that the window's style sheet reads as well.
        QFont font = label->font();
        font.setUnderline(control.FontUnderline());
        if (control.FontBold())
            font.setBold(true);
        label->setFont(font);
        if (label->property("underline").toBool() != control.FontUnderline()) {
            label->setProperty("underline", control.FontUnderline());
            label->style()->unpolish(label);
            label->style()->polish(label);
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        QStringList items;
        for (const auto& item : control.ListItems())
            items << QString::fromStdString(item);
        QStringList current;
        for (int i = 0; i < combo->count(); ++i)
            current << combo->itemText(i);
        if (current != items) {
            combo->clear();
            combo->addItems(items);
        }
        combo->setCurrentIndex(control.ListIndex());
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        const QString text = QString::fromStdString(control.Text());
        if (line->text() != text)
            line->setText(text);
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
        const QString text = QString::fromStdString(control.Text()).replace("\r\n", "\n");
        if (plain->toPlainText() != text)
            plain->setPlainText(text);
    } else if (auto* rich = qobject_cast<QTextEdit*>(widget)) {
        RefreshRichText(control, rich);
    }
    updating_ = false;
}

} // namespace quillane::ui
