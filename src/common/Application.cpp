#include "Application.h"

#include "Errors.h"

#include <algorithm>

namespace quillane {

Application::Application(Services services) : services_(services) {}

Application::~Application() {
    // Forms may refer to one another while they go; close children first.
    while (!loaded_.empty())
        loaded_.pop_back();
    unloaded_.clear();
}

void Application::RegisterForm(const std::string& name, Factory factory) {
    factories_[name] = std::move(factory);
}

void Application::RegisterModule(const std::string& name, std::function<Json()> variables) {
    modules_[name] = std::move(variables);
}

std::vector<std::string> Application::FormNames() const {
    std::vector<std::string> names;
    for (const auto& [name, factory] : factories_)
        names.push_back(name);
    return names;
}

std::optional<Json> Application::ModuleVariables(const std::string& name) const {
    auto it = modules_.find(name);
    if (it == modules_.end())
        return std::nullopt;
    return it->second();
}

Form* Application::Find(const std::string& name) const {
    for (const auto& f : loaded_)
        if (f->Name() == name)
            return f.get();
    return nullptr;
}

Form& Application::Load(const std::string& name) {
    if (Form* f = Find(name))
        return *f;
    auto it = factories_.find(name);
    if (it == factories_.end())
        throw RuntimeError(424, "Object required: " + name);
    loaded_.push_back(it->second(*this));
    Form& form = *loaded_.back();
    if (host_)
        host_->FormLoaded(form);
    form.Form_Load();
    return form;
}

Form& Application::Show(const std::string& name, bool modal) {
    Form& form = Load(name);
    if (form.TakeHideWhileLoading())
        return form;
    if (modal)
        form.SetModal(true);
    if (form.IsMdiChild())
        activeChild_ = name;
    form.Me().SetVisible(true);
    if (host_)
        host_->FormShown(form);
    if (modal && host_)
        host_->RunModal(form);
    return form;
}

bool Application::Unload(const std::string& name) {
    Form* form = Find(name);
    if (!form)
        return true;
    if (std::find(unloading_.begin(), unloading_.end(), name) != unloading_.end())
        return true;
    unloading_.push_back(name);
    int cancel = 0;
    form->Form_Unload(cancel);
    unloading_.erase(std::find(unloading_.begin(), unloading_.end(), name));
    if (cancel != 0)
        return false;
    auto it = std::find_if(loaded_.begin(), loaded_.end(),
                           [&](const auto& f) { return f.get() == form; });
    if (it == loaded_.end())
        return true; // unloaded already by its own handler
    std::unique_ptr<Form> closed = std::move(*it);
    loaded_.erase(it);
    closed->Me().SetVisible(false);
    closed->SetModal(false);
    if (popup_ && popup_->form == name)
        popup_.reset();
    if (activeChild_ == name)
        activeChild_.clear();
    if (host_)
        host_->FormUnloaded(*closed);
    unloaded_.push_back(std::move(closed));
    if (depth_ == 0)
        Collect();
    return true;
}

std::vector<Form*> Application::LoadedForms() const {
    std::vector<Form*> forms;
    for (const auto& f : loaded_)
        forms.push_back(f.get());
    return forms;
}

Form* Application::MenuOwner() const {
    if (!activeChild_.empty())
        if (Form* child = Find(activeChild_);
            child && child->Me().Visible() && !child->Menus().empty())
            return child;
    return Find(mainForm_);
}

Form* Application::ModalForm() const {
    for (const auto& f : loaded_)
        if (f->IsModal() && f->Me().Visible())
            return f.get();
    return nullptr;
}

void Application::End() {
    if (ended_)
        return;
    ended_ = true;
    if (host_)
        host_->ProgramEnded();
}

void Application::Dispatch(const std::function<void()>& handler) {
    ++depth_;
    try {
        handler();
    } catch (const FatalError& e) {
        MsgBox(std::string(e.what()) + "\r\n\r\nFile: " + e.File() +
                   "\r\n\r\nQuillane will close now.",
               MsgButtons::Ok, MsgIcon::Critical);
        End();
    } catch (const RuntimeError& e) {
        MsgBox("Run-time error '" + std::to_string(e.Number()) + "':\r\n\r\n" + e.what(),
               MsgButtons::Ok, MsgIcon::Critical);
        End();
    } catch (const std::exception& e) {
        MsgBox(std::string("An unexpected error stopped Quillane:\r\n\r\n") + e.what() +
                   "\r\n\r\nQuillane will close now.",
               MsgButtons::Ok, MsgIcon::Critical);
        End();
    }
    --depth_;
    if (depth_ == 0)
        Collect();
}

void Application::PopupMenu(Form& form, Control& menu, Control* defaultEntry) {
    popup_ = Popup{form.Name(), &menu, defaultEntry};
    if (host_) {
        host_->PopupMenu(form, menu, defaultEntry);
        popup_.reset();
    }
}

void Application::Collect() {
    unloaded_.clear();
}

MsgAnswer Application::MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon) {
    return services_.messageBox->Show(text, kTitle, icon, buttons);
}

} // namespace quillane
