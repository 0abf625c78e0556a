#include "Form.h"

#include "Application.h"

namespace quillane {

Form::Form(Application& app, std::string name)
    : app_(app), name_(std::move(name)), me_(*this, ControlKind::Form, name_, -1, nullptr) {
    me_.SetVisible(false);
}

Form::~Form() = default;

Control& Form::Add(ControlKind kind, std::string name, Control* container, int index) {
    controls_.push_back(std::make_unique<Control>(*this, kind, std::move(name), index, container));
    return *controls_.back();
}

ControlArray Form::AddArray(ControlKind kind, const std::string& name, int lower, int upper,
                            Control* container) {
    ControlArray array;
    for (int i = lower; i <= upper; ++i)
        array.Append(Add(kind, name, container, i));
    return array;
}

Control* Form::Find(const std::string& path) const {
    for (const auto& c : controls_)
        if (c->Path() == path)
            return c.get();
    return nullptr;
}

std::vector<Control*> Form::Menus() const {
    std::vector<Control*> menus;
    for (const auto& c : controls_)
        if (c->Kind() == ControlKind::Menu)
            menus.push_back(c.get());
    return menus;
}

} // namespace quillane
