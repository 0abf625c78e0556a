#pragma once
// A form: its controls, its load and unload events, its state variables.
// A form object lives from its load to its unload; a closed form has no state.
#include "Control.h"
#include "Json.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quillane {

class Application;

class Form {
public:
    Form(Application& app, std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Application& App() const { return app_; }
    const std::string& Name() const { return name_; }
    // The form's own properties: Caption, Visible, Left, Top, Width, Height.
    Control& Me() { return me_; }
    const Control& Me() const { return me_; }

    virtual void Form_Load() {}
    // Set Cancel to keep the form open.
    virtual void Form_Unload(int& Cancel) { (void)Cancel; }
    // The form's named state variables, for the driver.
    virtual Json Variables() const { return Json::Object{}; }

    // A child window of the launcher.
    bool IsMdiChild() const { return mdiChild_; }
    // A form that hides itself while it loads is not shown by the Show that
    // loaded it (a window that starts in the tray).
    void HideWhileLoading() { hideWhileLoading_ = true; }
    bool TakeHideWhileLoading() { return std::exchange(hideWhileLoading_, false); }

    // The form shown modally over everything.
    bool IsModal() const { return modal_; }
    void SetModal(bool modal) { modal_ = modal; }

    Control& Add(ControlKind kind, std::string name, Control* container = nullptr, int index = -1);
    // Adds a control of a kind with a model of its own (a tab strip, a list
    // view, a user control); the arguments after the form go to its constructor.
    template <class C, class... Args> C& AddTyped(Args&&... args) {
        auto control = std::make_unique<C>(*this, std::forward<Args>(args)...);
        C& added = *control;
        controls_.push_back(std::move(control));
        return added;
    }
    // Adds members lower..upper of a control array, all in one container.
    ControlArray AddArray(ControlKind kind, const std::string& name, int lower, int upper,
                          Control* container = nullptr);
    Control* Find(const std::string& path) const; // "cmdNext", "lblCaption(3)", "a.b"
    const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
    // The form's menu entries in order (top-level ones have no container).
    std::vector<Control*> Menus() const;

    Control* Focused() const { return focused_; }
    void SetFocused(Control* control) { focused_ = control; }

    // A view follows the model through this.
    void SetObserver(std::function<void(Control&, Prop)> observer) {
        observer_ = std::move(observer);
    }
    void Notify(Control& control, Prop prop) {
        if (observer_)
            observer_(control, prop);
    }

protected:
    void SetMdiChild(bool child) { mdiChild_ = child; }

private:
    Application& app_;
    std::string name_;
    Control me_;
    std::vector<std::unique_ptr<Control>> controls_;
    Control* focused_ = nullptr;
    bool mdiChild_ = false;
    bool modal_ = false;
    bool hideWhileLoading_ = false;
    std::function<void(Control&, Prop)> observer_;
};

} // namespace quillane
