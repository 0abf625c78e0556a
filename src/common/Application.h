#pragma once
// The running program: its services, the forms it can load, the modules whose
// state the driver can read, and the rules of loading, showing and unloading.
#include "Form.h"
#include "Random.h"
#include "Services.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillane {

// The view side: the desktop program makes a window for each loaded form.
class IFormHost {
public:
    virtual ~IFormHost() = default;
    virtual void FormLoaded(Form& form) = 0;
    virtual void FormShown(Form& form) = 0;
    virtual void FormUnloaded(Form& form) = 0;
    // Shows the form modally; returns when it is closed.
    virtual void RunModal(Form& form) = 0;
    // Pops up one of the form's menus where the mouse is; returns when it is
    // closed, an entry's Click having run if one was picked.
    virtual void PopupMenu(Form& form, Control& menu, Control* defaultEntry) = 0;
    virtual void ProgramEnded() = 0;
};

class Application {
public:
    static constexpr const char* kTitle = "Quillane";

    explicit Application(Services services);
    ~Application();

    Services& Svc() { return services_; }
    // The program's one top-level form, whose menus show while no child has any.
    void SetMainForm(std::string name) { mainForm_ = std::move(name); }
    const std::string& MainForm() const { return mainForm_; }
    void SetHost(IFormHost* host) { host_ = host; }

    using Factory = std::function<std::unique_ptr<Form>(Application&)>;
    void RegisterForm(const std::string& name, Factory factory);
    void RegisterModule(const std::string& name, std::function<Json()> variables);
    bool IsFormName(const std::string& name) const { return factories_.count(name) != 0; }
    // Every form that can be loaded, by name.
    std::vector<std::string> FormNames() const;
    std::optional<Json> ModuleVariables(const std::string& name) const;

    // The loaded form of that name, or null.
    Form* Find(const std::string& name) const;
    // Loads the form if it is not loaded (its Form_Load runs then).
    Form& Load(const std::string& name);
    template <class F> F& Get(const std::string& name) { return static_cast<F&>(Load(name)); }
    // Loads and shows; a modal show returns when the form is closed.
    Form& Show(const std::string& name, bool modal = false);
    // Runs the form's Form_Unload and closes it unless it cancels. Nothing
    // happens for a form that is not loaded. True when it is closed.
    bool Unload(const std::string& name);
    std::vector<Form*> LoadedForms() const;
    // The form whose menus are on the menu bar: the active child, else the launcher.
    Form* MenuOwner() const;
    // A modal form stands in front of every other.
    Form* ModalForm() const;

    void End();
    bool Ended() const { return ended_; }

    // Runs one event of the user's. Forms unloaded during it are destroyed
    // after it; a fatal failure shows its box and ends the program.
    void Dispatch(const std::function<void()>& handler);

    MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon);

    // A pop-up menu of a form, with its default entry shown in bold.
    struct Popup {
        std::string form;
        Control* menu = nullptr;
        Control* defaultEntry = nullptr;
    };
    void PopupMenu(Form& form, Control& menu, Control* defaultEntry = nullptr);
    // The pop-up menu that is up and waits for a pick (without a window, it
    // stays up until the next action closes it).
    const std::optional<Popup>& OpenPopup() const { return popup_; }
    void ClosePopup() { popup_.reset(); }

private:
    void Collect();

    Services services_;
    IFormHost* host_ = nullptr;
    std::map<std::string, Factory> factories_;
    std::map<std::string, std::function<Json()>> modules_;
    std::vector<std::unique_ptr<Form>> loaded_;   // in load order
    std::vector<std::unique_ptr<Form>> unloaded_; // waiting for the event to end
    std::vector<std::string> unloading_;
    std::string activeChild_;
    std::string mainForm_;
    std::optional<Popup> popup_;
    int depth_ = 0;
    bool ended_ = false;
};

} // namespace quillane
