#pragma once
// A list view in report style: items with a key, a text, one sub-item and a
// check box that shows while the view has check boxes on. Items are counted
// from 1, as the program addresses them.
#include "Control.h"

#include <functional>
#include <string>
#include <vector>

namespace quillane {

struct ListViewItem {
    std::string key;
    std::string text;
    std::string subItem;
    bool checked = false;
};

class ListView : public Control {
public:
    ListView(Form& owner, std::string name, Control* container = nullptr);

    const std::vector<ListViewItem>& Items() const { return items_; }
    int Count() const { return int(items_.size()); }
    const ListViewItem& Item(int n) const;
    // Appends an item; answers its number.
    int Add(std::string key, std::string text);
    void SetSubItem(int n, std::string text);
    void SetChecked(int n, bool checked);
    void ClearItems();

    // The column headers of the report.
    const std::vector<std::string>& Columns() const { return columns_; }
    void SetColumns(std::vector<std::string> columns);

    bool Checkboxes() const { return checkboxes_; }
    void SetCheckboxes(bool on);

    // The selected item's number, or 0.
    int Selected() const { return selected_; }
    void Select(int n);

    // The user's actions: a click selects the item and runs ItemClick; a tick
    // sets the check and runs ItemCheck.
    void UserClickItem(int n);
    void UserCheckItem(int n, bool checked);
    std::function<void(int n)> ItemClick;
    std::function<void(int n)> ItemCheck;

private:
    ListViewItem& At(int n);

    std::vector<ListViewItem> items_;
    std::vector<std::string> columns_;
    bool checkboxes_ = false;
    int selected_ = 0;
};

} // namespace quillane
