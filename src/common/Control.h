#pragma once
// A control as a view model: the properties the program reads and writes, and
// the events it raises. Setting a value from code raises the same event as the
// user's action would: a check box or option whose value changes runs its
// Click, a text box whose text changes runs its Change.
#include "Picture.h"
#include "TextRun.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillane {

class Form;
class PanelStack;

// A window's state: shown normally or minimised.
enum class WindowState { Normal, Minimized };

enum class ControlKind {
    Form,
    Label,
    CommandButton,
    CheckBox,
    OptionButton,
    TextBox,
    RichTextBox,
    ComboBox,
    PictureBox,
    Image,
    Frame,
    Menu,
    ListView,
    TabStrip,
    UserControl,
};

// What changed, for a view that follows the model.
enum class Prop {
    Caption,
    Text,
    Visible,
    Enabled,
    Value,
    List,
    ListIndex,
    Picture,
    Font,
    Tag,
    SelStart,
    Front,
    Geometry,
    WindowState,
    Locked,
    Tab,      // a tab strip's selected tab
    TabState, // a tab's caption or enabled state
    Items,    // a list view's items, their checks or the selection
    Checkboxes
};

// The items of a drop-down list and the one picked.
struct ListPart {
    std::vector<std::string> items;
    int index = -1;
};

class Control {
public:
    Control(Form& owner, ControlKind kind, std::string name, int index, Control* container);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& Owner() const { return owner_; }
    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    // The index within its control array, or -1.
    int Index() const { return index_; }
    // "cmdNext", "lblCaption(3)", and for a child of a user control "parent.child".
    std::string Path() const;
    Control* Container() const { return container_; }
    // The tab page the control lies on, when its container is a tab strip.
    int Page() const { return page_; }
    void SetPage(int page) { page_ = page; }

    // Events, wired by the form to its handlers.
    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> Change;
    std::function<void()> MouseMove;

    // What the user's own actions raise.
    void UserClick();
    void UserHover();

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);

    // Text box, rich text view, drop-down list (the picked item's text).
    std::string Text() const;
    void SetText(std::string text);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    // A locked text box shows its text but refuses typing.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag);

    // Check box: 0 unchecked, 1 checked. Option button: 0 off, -1 (True) on.
    int Value() const { return value_; }
    void SetValue(int value);
    bool Selected() const { return value_ != 0; }

    // Drop-down list.
    void AddItem(std::string item);
    void Clear();
    int ListCount() const { return int(List().items.size()); }
    const std::string& List(int i) const { return List().items.at(std::size_t(i)); }
    const std::vector<std::string>& ListItems() const { return List().items; }
    int ListIndex() const { return List().index; }
    void SetListIndex(int index);
    // The user picks an item in the open list: Click runs even when it is the
    // item already shown.
    void UserPick(int index);

    const quillane::Picture& Picture() const { return picture_; }
    void SetPicture(quillane::Picture picture);

    bool FontUnderline() const { return fontUnderline_; }
    void SetFontUnderline(bool on);
    bool FontBold() const { return fontBold_; }
    void SetFontBold(bool on);
    double FontSize() const { return fontSize_; }
    void SetFontSize(double size);

    // Rich text view: the text as runs, the caret, and the formatting that the
    // next inserted text takes.
    const std::vector<TextRun>& Runs() const { return runs_; }
    long SelStart() const { return selStart_; }
    void SetSelStart(long position);
    bool SelBold = false;
    double SelFontSize = 0;
    // Inserts at the caret with the current formatting; the caret moves past it.
    void SetSelText(const std::string& text);
    // The bold runs, adjacent ones joined.
    std::vector<std::string> BoldText() const;

    // Position and size in twips.
    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void Move(int left, int top, int width, int height);
    void SetLeft(int left) { Move(left, top_, width_, height_); }
    // A form's window state.
    quillane::WindowState WindowState() const { return windowState_; }
    void SetWindowState(quillane::WindowState state);
    void SetTop(int top) { Move(left_, top, width_, height_); }

    // Stacked panels.
    PanelStack* Stack() const { return stack_; }
    bool InFront() const;
    // False for a control on a tab page that is not the selected one.
    bool OnShownPage() const;

    void SetFocus();

    // Whether the user could reach this control now; "" if so, else "hidden"
    // or "disabled".
    std::string Unreachable() const;

protected:
    friend class PanelStack;
    void Notify(Prop prop);

private:
    const ListPart& List() const;
    ListPart& List();
    void RaiseClick();
    void RaiseChange();

    Form& owner_;
    ControlKind kind_;
    std::string name_;
    int index_;
    Control* container_;
    PanelStack* stack_ = nullptr;

    std::string caption_, text_, tag_;
    int page_ = -1;
    bool visible_ = true, enabled_ = true, locked_ = false;
    int value_ = 0;
    std::unique_ptr<ListPart> list_;
    quillane::Picture picture_;
    bool fontUnderline_ = false, fontBold_ = false;
    double fontSize_ = 0;
    std::vector<TextRun> runs_;
    long selStart_ = 0;
    int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    quillane::WindowState windowState_ = quillane::WindowState::Normal;
};

// A control array: members by index, from lower to upper.
class ControlArray {
public:
    Control& operator()(int index) const;
    int LBound() const { return lower_; }
    int UBound() const { return lower_ + int(members_.size()) - 1; }
    int Count() const { return int(members_.size()); }
    void Append(Control& member);
    void OnClick(const std::function<void(int)>& handler);
    void OnMouseMove(const std::function<void(int)>& handler);
    void OnChange(const std::function<void(int)>& handler);

private:
    int lower_ = 0;
    std::vector<Control*> members_;
};

// Panels stacked in one place; the one in front is the window's state.
class PanelStack {
public:
    PanelStack() = default;
    PanelStack(const PanelStack&) = delete;
    void Add(Control& panel);
    void BringToFront(Control& panel);
    Control* Front() const { return front_; }
    const std::vector<Control*>& Members() const { return members_; }

private:
    std::vector<Control*> members_;
    Control* front_ = nullptr;
};

} // namespace quillane
