#pragma once
// Binds a form's controls to the widgets of its window by name: the widget
// whose object name is the control's path shows that control and hands the
// user's actions to it. One binder serves every form.
#include "common/Application.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QAction;
class QMenu;
class QTextEdit;

namespace quillane::ui {

class Binder : public QObject {
public:
    Binder(Application& app, Form& form, QWidget* root);
    ~Binder() override;

    // Lets go of the form, which is closing: the window may still receive
    // events until it is deleted, and they must not reach the form.
    void Detach();

    // The top-level menus built from the form's menu entries.
    const QList<QMenu*>& Menus() const { return menus_; }
    QWidget* WidgetFor(const Control& control) const { return widgets_.value(&control); }

    // The caption as a label shows it: "&&" is one ampersand, a lone "&" marks
    // a mnemonic and is not shown.
    static QString LabelText(const std::string& caption);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Bind(Control& control, QWidget* widget);
    void BuildMenus();
    void Update(Control& control, Prop prop);
    void Refresh(Control& control);
    void RefreshRichText(const Control& control, QTextEdit* view);
    void Act(const std::function<void()>& action);

    Application& app_;
    Form& form_;
    QWidget* root_;
    QHash<const Control*, QPointer<QWidget>> widgets_;
    QHash<QObject*, Control*> controlOf_;
    QHash<const Control*, QAction*> actions_;
    QList<QMenu*> menus_;
    // What each rich text view shows, to append to it rather than redraw.
    QHash<const Control*, std::vector<TextRun>> richShown_;
    bool updating_ = false;
    bool detached_ = false;
};

} // namespace quillane::ui
