#pragma once
// A form with one control of each compound kind (tabs, a list view, a user
// control, options on one spot, a locked box, a pop-up menu and a tray icon),
// for the tests of the binding and the driver.
#include "common/Application.h"
#include "common/ListView.h"
#include "common/TabStrip.h"
#include "common/UserControl.h"

namespace quillane::testing {

// A day picker made of one drop-down list, as a user control is.
class DayPicker : public UserControl {
public:
    DayPicker(Form& owner, std::string name) : UserControl(owner, std::move(name)) {}
    std::optional<Json> Property(const std::string& name) const override {
        return name == "Picked" ? std::optional<Json>(Json(picked)) : std::nullopt;
    }
    Json::Object Properties() const override { return {{"Picked", Json(picked)}}; }
    int picked = 0;
};

class Sampler : public Form {
public:
    explicit Sampler(Application& app)
        : Form(app, "frmSampler"), tabs(AddTyped<TabStrip>("SSTab1", 3)),
          onSecond(tabs.Place(Add(ControlKind::CommandButton, "cmdSecond", &tabs), 1)),
          list(AddTyped<ListView>("ListView1")), picker(AddTyped<DayPicker>("dtpDay")),
          day(Add(ControlKind::ComboBox, "cboDay", &picker)),
          locked(Add(ControlKind::TextBox, "txtLocked")),
          views(AddArray(ControlKind::OptionButton, "optGoals", 0, 1)),
          popup(Add(ControlKind::Menu, "mnuPopUp")),
          show(Add(ControlKind::Menu, "mnuShow", &popup)),
          sep(Add(ControlKind::Menu, "mnuSep", &popup)),
          quit(Add(ControlKind::Menu, "mnuExit", &popup)) {
        Me().SetCaption("Sampler");
        for (int i = 0; i < 3; ++i)
            tabs.SetTabCaption(i, "Tab &" + std::to_string(i));
        tabs.TabClick = [this](int previous) { previousTabs.push_back(previous); };
        list.SetColumns({"Goals"});
        list.ItemClick = [this](int n) { clicked.push_back(n); };
        list.ItemCheck = [this](int n) { checked.push_back(n); };
        for (int d = 1; d <= 31; ++d)
            day.AddItem(std::to_string(d));
        day.Click = [this] { picker.picked = day.ListIndex() + 1; };
        locked.SetLocked(true);
        spot.Add(views(1));
        spot.Add(views(0));
        popup.SetCaption("PopUp");
        popup.SetVisible(false);
        show.SetCaption("Show");
        sep.SetCaption("-");
        quit.SetCaption("Exit");
        show.Click = [this] { picks.push_back("show"); };
        quit.Click = [this] { picks.push_back("exit"); };
    }
    void Form_Load() override {
        App().Svc().tray->Add("Recent", [this](int message) {
            if (message == kTrayLeftDoubleClick)
                show.Click();
            else if (message == kTrayRightButtonUp)
                App().PopupMenu(*this, popup, &show);
        });
    }
    TabStrip& tabs;
    Control& onSecond;
    ListView& list;
    DayPicker& picker;
    Control& day;
    Control& locked;
    ControlArray views;
    PanelStack spot; // the two view options lie on one spot
    Control &popup, &show, &sep, &quit;
    std::vector<int> previousTabs, clicked, checked;
    std::vector<std::string> picks;
};

} // namespace quillane::testing
