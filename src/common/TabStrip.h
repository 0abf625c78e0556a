#pragma once
// A tab control: numbered tabs with a caption and an enabled state each, one
// of them selected. Controls lie on its pages (Control::Page); only those of
// the selected tab are within the user's reach.
#include "Control.h"

#include <functional>
#include <string>
#include <vector>

namespace quillane {

class TabStrip : public Control {
public:
    TabStrip(Form& owner, std::string name, int tabs, Control* container = nullptr);

    int Tabs() const { return int(tabs_.size()); }
    int Tab() const { return tab_; }
    // Selects a tab, from code or by the user's click; a change runs
    // TabClick with the tab that was selected before. Code may select a
    // disabled tab, the user can't.
    void SetTab(int tab);
    std::function<void(int PreviousTab)> TabClick;

    bool TabEnabled(int tab) const { return At(tab).enabled; }
    void SetTabEnabled(int tab, bool enabled);
    const std::string& TabCaption(int tab) const { return At(tab).caption; }
    void SetTabCaption(int tab, std::string caption);

    // Places a control on a page.
    template <class C> C& Place(C& control, int tab) const {
        CheckTab(tab);
        control.SetPage(tab);
        return control;
    }

private:
    void CheckTab(int tab) const { At(tab); }
    struct TabState {
        std::string caption;
        bool enabled = true;
    };
    const TabState& At(int tab) const;
    TabState& At(int tab);

    std::vector<TabState> tabs_;
    int tab_ = 0;
};

} // namespace quillane
