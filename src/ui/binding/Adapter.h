#pragma once
// One control shown by one widget. An adapter binds the widget once (its
// signals hand the user's actions to the control) and afterwards refreshes
// only the property that changed. Each kind of widget has its adapter.
#include "common/Application.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

namespace quillane::ui {

class Binder;

class Adapter {
public:
    Adapter(Binder& binder, Control& control, QWidget* widget);
    virtual ~Adapter() = default;
    Adapter(const Adapter&) = delete;
    Adapter& operator=(const Adapter&) = delete;

    Control& Model() const { return control_; }
    QWidget* Widget() const { return widget_; }

    // Shows one property of the control.
    void Refresh(Prop prop);
    // Shows every property, once, when the window is bound.
    void RefreshAll();
    // Whether a new text may wait until the user's action ends: true where
    // showing a text costs a layout of its own.
    virtual bool HoldsText() const { return false; }

protected:
    // The properties of this kind of widget beyond the common ones, and how
    // it shows each.
    virtual std::vector<Prop> OwnProps() const = 0;
    virtual void Show(Prop prop) = 0;
    // Runs a user's action on the model as one event of the program.
    void Act(const std::function<void()>& action);
    // True while the adapter itself sets the widget, whose signals then are
    // not the user's.
    bool Updating() const { return updating_; }

    Binder& binder_;
    Control& control_;
    QPointer<QWidget> widget_;

private:
    bool updating_ = false;
};

// The adapter for the widget's kind; nothing for a widget no adapter takes.
std::unique_ptr<Adapter> MakeAdapter(Binder& binder, Control& control, QWidget* widget);

// The caption as a label shows it: "&&" is one ampersand, a lone "&" marks a
// mnemonic and is not shown.
QString LabelText(const std::string& caption);

} // namespace quillane::ui
