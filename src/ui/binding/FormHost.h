#pragma once
// The desktop side of the forms: a window for each loaded form, the launcher
// as the main window with the subject windows inside it, its menu bar showing
// the active window's menus, and modal forms as dialogs.
#include "Binder.h"
#include "common/Application.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QObject>
#include <QPointer>
#include <functional>
#include <map>

class QMdiSubWindow;

namespace quillane::ui {

class FormHost : public QObject, public IFormHost {
public:
    // Makes the window of a form; its widgets carry the control names. A
    // window that stands inside the launcher is given the sub-window it goes
    // into, to be built in its place (a widget that took its looks before
    // would take them again there); other windows are given null.
    using WindowBuilder = std::function<QWidget*(Form&, QWidget* frame)>;

    explicit FormHost(Application& app);
    ~FormHost() override;
    void RegisterWindow(const std::string& form, WindowBuilder builder);
    void RegisterWindow(const std::string& form, const std::function<QWidget*(Form&)>& builder);

    void FormLoaded(Form& form) override;
    void FormShown(Form& form) override;
    void FormUnloaded(Form& form) override;
    void RunModal(Form& form) override;
    void PopupMenu(Form& form, Control& menu, Control* defaultEntry) override;
    void ProgramEnded() override;

    QMainWindow* MainWindow() const { return main_; }
    QWidget* WindowOf(const std::string& form) const;
    Binder* BinderOf(const std::string& form) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Window {
        QPointer<QWidget> widget;
        QPointer<QWidget> frame; // the widget itself, or its MDI sub-window
        Binder* binder = nullptr;
    };
    void UpdateMenuBar();
    void FitWrappedTexts(QMdiSubWindow* sub);

    Application& app_;
    std::map<std::string, WindowBuilder> builders_;
    std::map<std::string, Window> windows_;
    QPointer<QMainWindow> main_;
    QPointer<QMdiArea> mdi_;
    bool closingFromModel_ = false;
};

} // namespace quillane::ui
