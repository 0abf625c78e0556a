#pragma once
// Binds a form's controls to the widgets of its window by name: the widget
// whose object name is the control's path shows that control and hands the
// user's actions to it (a child of a user control is found by its own name
// inside the user control's widget). One binder serves every form; an
// adapter per widget kind does the work, and a change of the model refreshes
// just the property that changed.
#include "Adapter.h"
#include "Pictures.h"
#include "common/Application.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <memory>
#include <unordered_map>

class QAction;
class QMenu;

namespace quillane::ui {

class Binder : public QObject {
public:
    Binder(Application& app, Form& form, QWidget* root);
    ~Binder() override;

    // Lets go of the form, which is closing: the window may still receive
    // events until it is deleted, and they must not reach the form.
    void Detach();
    bool Detached() const { return detached_; }

    // The top-level menus built from the form's menu entries.
    const QList<QMenu*>& Menus() const { return menus_; }
    QWidget* WidgetFor(const Control& control) const;
    // The controls that the window shows no widget of their kind for, by path.
    const QStringList& Unbound() const { return unbound_; }

    // Pops up one of the form's menus at the mouse, its default entry in bold.
    void PopupMenu(Control& menu, Control* defaultEntry);

    // Runs a user's action as one event of the program. Texts that the
    // action gives a text box reach the widget when it ends (or before
    // anything is painted), so a text built up piece by piece is laid out once.
    void Act(const std::function<void()>& action);

    PictureCache& Pictures() const { return SharedPictures(); }
    // How many widget properties the binder has set since it was made.
    long Refreshes() const { return refreshes_; }
    void CountRefresh() { ++refreshes_; }
    // Told of every property the binder sets on a widget (for measuring).
    void SetRefreshListener(std::function<void(const Control&, Prop)> listener) {
        listener_ = std::move(listener);
    }

private:
    QWidget* Find(const Control& control) const;
    void BuildMenus();
    void Update(Control& control, Prop prop);
    // Shows the texts held back until now.
    void ShowHeldTexts();
    bool event(QEvent* event) override;

    Application& app_;
    Form& form_;
    QWidget* root_;
    std::unordered_map<const Control*, std::unique_ptr<Adapter>> adapters_;
    std::vector<Adapter*> held_; // text boxes whose text is still to be shown
    QHash<const Control*, QAction*> actions_;
    QHash<const Control*, QMenu*> submenus_;
    QList<QMenu*> menus_;
    QStringList unbound_;
    long refreshes_ = 0;
    std::function<void(const Control&, Prop)> listener_;
    bool detached_ = false;
};

} // namespace quillane::ui
