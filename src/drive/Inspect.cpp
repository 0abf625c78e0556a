#include "Inspect.h"

#include "WholeNumber.h"

#include "common/ListView.h"
#include "common/TabStrip.h"
#include "common/UserControl.h"

#include <vector>

namespace quillane::drive {

namespace {

std::vector<std::string> PropertiesOf(ControlKind kind) {
    std::vector<std::string> props{"Visible", "Enabled", "Tag"};
    switch (kind) {
    case ControlKind::Label:
        props.insert(props.end(), {"Caption", "FontUnderline", "FontBold"});
        break;
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::Menu:
        props.push_back("Caption");
        break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
        props.insert(props.end(), {"Caption", "Value"});
        break;
    case ControlKind::TextBox:
        props.insert(props.end(), {"Text", "SelStart"});
        break;
    case ControlKind::RichTextBox:
        props.insert(props.end(), {"Text", "SelStart", "BoldText"});
        break;
    case ControlKind::ComboBox:
        props.insert(props.end(), {"Text", "ListIndex", "ListCount", "List"});
        break;
    case ControlKind::PictureBox:
    case ControlKind::Image:
        props.push_back("Picture");
        break;
    case ControlKind::ListView:
        props.insert(props.end(), {"ListItems", "Checkboxes"});
        break;
    default:
        break;
    }
    return props;
}

// "TabEnabled(2)" -> 2 for the name "TabEnabled"; nothing otherwise.
std::optional<int> Indexed(const std::string& property, const std::string& name) {
    if (property.rfind(name + "(", 0) != 0 || property.back() != ')')
        return std::nullopt;
    return WholeNumber(
        std::string_view(property).substr(name.size() + 1, property.size() - name.size() - 2));
}

std::optional<Json> TabProperty(const TabStrip& tabs, const std::string& p) {
    if (p == "Tab")
        return Json(tabs.Tab());
    if (p == "Tabs")
        return Json(tabs.Tabs());
    for (const char* name : {"TabEnabled", "TabCaption"})
        if (auto n = Indexed(p, name)) {
            if (*n < 0 || *n >= tabs.Tabs())
                return std::nullopt;
            return name == std::string("TabEnabled") ? Json(tabs.TabEnabled(*n))
                                                     : Json(tabs.TabCaption(*n));
        }
    return std::nullopt;
}

std::optional<Json> ListViewProperty(const ListView& list, const std::string& p) {
    if (p == "Checkboxes")
        return Json(list.Checkboxes());
    if (p == "ListItems") {
        Json::Array items;
        for (const auto& item : list.Items())
            items.emplace_back(Json::Object{{"Key", item.key},
                                            {"Text", item.text},
                                            {"SubItem", item.subItem},
                                            {"Checked", item.checked}});
        return Json(std::move(items));
    }
    return std::nullopt;
}

} // namespace

std::optional<Json> GetProperty(const Control& c, const std::string& p) {
    if (const auto* own = dynamic_cast<const UserControl*>(&c))
        if (auto value = own->Property(p))
            return value;
    if (const auto* tabs = dynamic_cast<const TabStrip*>(&c))
        if (auto value = TabProperty(*tabs, p))
            return value;
    if (const auto* list = dynamic_cast<const ListView*>(&c))
        if (auto value = ListViewProperty(*list, p))
            return value;
    if (p == "Visible")
        return Json(c.Visible());
    if (p == "Enabled")
        return Json(c.Enabled());
    if (p == "Tag")
        return Json(c.Tag());
    if (p == "Caption")
        return Json(c.Caption());
    if (p == "Text")
        return Json(c.Text());
    if (p == "Value") {
        if (c.Kind() == ControlKind::OptionButton)
            return Json(c.Value() != 0);
        if (c.Kind() == ControlKind::CheckBox)
            return Json(c.Value());
        return std::nullopt;
    }
    if (p == "InFront") {
        if (!c.Stack())
            return std::nullopt;
        return Json(c.InFront());
    }
    if (p == "WindowState" && c.Kind() == ControlKind::Form)
        return Json(c.WindowState() == WindowState::Minimized ? 1 : 0);
    if (p == "Locked" && c.Kind() == ControlKind::TextBox)
        return Json(c.Locked());
    if (p == "ListIndex")
        return Json(c.ListIndex());
    if (p == "ListCount")
        return Json(c.ListCount());
    if (p == "List") {
        Json::Array items;
        for (const auto& item : c.ListItems())
            items.emplace_back(item);
        return Json(std::move(items));
    }
    if (p == "Picture")
        return Json(c.Picture().Describe());
    if (p == "FontUnderline")
        return Json(c.FontUnderline());
    if (p == "FontBold")
        return Json(c.FontBold());
    if (p == "FontSize")
        return Json(c.FontSize());
    if (p == "SelStart")
        return Json(c.SelStart());
    if (p == "BoldText") {
        Json::Array runs;
        for (const auto& run : c.BoldText())
            runs.emplace_back(run);
        return Json(std::move(runs));
    }
    if (p == "Left")
        return Json(c.Left());
    if (p == "Top")
        return Json(c.Top());
    if (p == "Width")
        return Json(c.Width());
    if (p == "Height")
        return Json(c.Height());
    return std::nullopt;
}

Json DumpControl(const Control& control) {
    Json::Object props;
    auto names = PropertiesOf(control.Kind());
    if (control.Stack())
        names.push_back("InFront");
    if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) {
        names.push_back("Tab");
        for (int i = 0; i < tabs->Tabs(); ++i) {
            names.push_back("TabEnabled(" + std::to_string(i) + ")");
            names.push_back("TabCaption(" + std::to_string(i) + ")");
        }
    }
    for (const auto& name : names)
        if (auto value = GetProperty(control, name))
            props.emplace_back(name, *value);
    if (const auto* own = dynamic_cast<const UserControl*>(&control))
        for (auto& [name, value] : own->Properties())
            props.emplace_back(name, value);
    return Json(std::move(props));
}

} // namespace quillane::drive
