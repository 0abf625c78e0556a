#include "TabStrip.h"

#include "Errors.h"

#include <utility>

namespace quillane {

TabStrip::TabStrip(Form& owner, std::string name, int tabs, Control* container)
    : Control(owner, ControlKind::TabStrip, std::move(name), -1, container),
      tabs_(std::size_t(tabs)) {}

const TabStrip::TabState& TabStrip::At(int tab) const {
    if (tab < 0 || tab >= Tabs())
        throw RuntimeError(380, "Invalid property value");
    return tabs_[std::size_t(tab)];
}

TabStrip::TabState& TabStrip::At(int tab) {
    return const_cast<TabState&>(std::as_const(*this).At(tab));
}

void TabStrip::SetTab(int tab) {
    At(tab);
    if (tab == tab_)
        return;
    const int previous = tab_;
    tab_ = tab;
    Notify(Prop::Tab);
    if (TabClick)
        TabClick(previous);
}

void TabStrip::SetTabEnabled(int tab, bool enabled) {
    if (At(tab).enabled == enabled)
        return;
    At(tab).enabled = enabled;
    Notify(Prop::TabState);
}

void TabStrip::SetTabCaption(int tab, std::string caption) {
    if (At(tab).caption == caption)
        return;
    At(tab).caption = std::move(caption);
    Notify(Prop::TabState);
}

} // namespace quillane
