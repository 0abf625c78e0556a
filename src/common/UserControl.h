#pragma once
// A control of the program's own, made of child controls (its constituent
// controls, addressed as "parent.child"). A kind of user control adds the
// properties and events of its own and tells the driver about them.
#include "Control.h"
#include "Json.h"

#include <optional>
#include <string>

namespace quillane {

class UserControl : public Control {
public:
    UserControl(Form& owner, std::string name, Control* container = nullptr)
        : Control(owner, ControlKind::UserControl, std::move(name), -1, container) {}

    // The control's own properties by name, as the driver shows them; nothing
    // for a name it does not have.
    virtual std::optional<Json> Property(const std::string& name) const {
        (void)name;
        return std::nullopt;
    }
    // Every property of its own, for a dump.
    virtual Json::Object Properties() const { return {}; }
};

} // namespace quillane
