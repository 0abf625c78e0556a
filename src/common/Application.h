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

struct Services {
    IMessageBox* messageBox = nullptr;
    IBrowser* browser = nullptr;
    IPrinter* printer = nullptr;
    ISaveDialog* saveDialog = nullptr;
    IClock* clock = nullptr;
    ILocale* locale = nullptr;
    ISettingsStore* settings = nullptr;
    IProgramFolder* folder = nullptr;
    IInstanceLock* instanceLock = nullptr;
    ITray* tray = nullptr;
    IAutostart* autostart = nullptr;
    IPictureDecoder* pictures = nullptr;
    IScreen* screen = nullptr;
};

// The view side: the desktop program makes a window for each loaded form.
class IFormHost {
public:
    virtual ~IFormHost() = default;
    virtual void FormLoaded(Form& form) = 0;
    virtual void FormShown(Form& form) = 0;
    virtual void FormUnloaded(Form& form) = 0;
    // Shows the form modally; returns when it is closed.
    virtual void RunModal(Form& form) = 0;
    virtual void ProgramEnded() = 0;
};

class Application {
public:
    static constexpr const char* kTitle = "Quillane";

    explicit Application(Services services);
    ~Application();

    Services& Svc() { return services_; }
    void SetHost(IFormHost* host) { host_ = host; }

    using Factory = std::function<std::unique_ptr<Form>(Application&)>;
    void RegisterForm(const std::string& name, Factory factory);
    void RegisterModule(const std::string& name, std::function<Json()> variables);
    bool IsFormName(const std::string& name) const { return factories_.count(name) != 0; }
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
    int depth_ = 0;
    bool ended_ = false;
};

} // namespace quillane
