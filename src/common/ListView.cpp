#include "ListView.h"

#include "Errors.h"

namespace quillane {

ListView::ListView(Form& owner, std::string name, Control* container)
    : Control(owner, ControlKind::ListView, std::move(name), -1, container) {}

const ListViewItem& ListView::Item(int n) const {
    if (n < 1 || n > Count())
        throw RuntimeError(35600, "Index out of bounds");
    return items_[std::size_t(n - 1)];
}

ListViewItem& ListView::At(int n) {
    return const_cast<ListViewItem&>(Item(n));
}

int ListView::Add(std::string key, std::string text) {
    for (const auto& item : items_)
        if (!key.empty() && item.key == key)
            throw RuntimeError(35602, "Key is not unique in collection");
    items_.push_back(ListViewItem{std::move(key), std::move(text), {}, false});
    Notify(Prop::Items);
    return Count();
}

void ListView::SetSubItem(int n, std::string text) {
    At(n).subItem = std::move(text);
    Notify(Prop::Items);
}

void ListView::SetChecked(int n, bool checked) {
    if (At(n).checked == checked)
        return;
    At(n).checked = checked;
    Notify(Prop::Items);
}

void ListView::ClearItems() {
    if (items_.empty())
        return;
    items_.clear();
    selected_ = 0;
    Notify(Prop::Items);
}

void ListView::SetColumns(std::vector<std::string> columns) {
    columns_ = std::move(columns);
    Notify(Prop::Caption);
}

void ListView::SetCheckboxes(bool on) {
    if (on == checkboxes_)
        return;
    checkboxes_ = on;
    Notify(Prop::Checkboxes);
}

void ListView::Select(int n) {
    if (n != 0)
        Item(n);
    if (n == selected_)
        return;
    selected_ = n;
    Notify(Prop::Items);
}

void ListView::UserClickItem(int n) {
    SetFocus();
    Select(n);
    if (ItemClick)
        ItemClick(n);
}

void ListView::UserCheckItem(int n, bool checked) {
    SetFocus();
    SetChecked(n, checked);
    if (ItemCheck)
        ItemCheck(n);
}

} // namespace quillane
