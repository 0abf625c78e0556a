#include "Control.h"

#include "Application.h"
#include "Errors.h"
#include "Form.h"
#include "TabStrip.h"

#include <algorithm>

namespace quillane {

Control::Control(Form& owner, ControlKind kind, std::string name, int index, Control* container)
    : owner_(owner), kind_(kind), name_(std::move(name)), index_(index), container_(container) {
    if (kind == ControlKind::ComboBox)
        list_ = std::make_unique<ListPart>();
}

Control::~Control() = default;

const ListPart& Control::List() const {
    static const ListPart kNone;
    return list_ ? *list_ : kNone;
}

ListPart& Control::List() {
    if (!list_)
        throw RuntimeError(438, "Object doesn't support this property or method");
    return *list_;
}

std::string Control::Path() const {
    std::string own = index_ >= 0 ? name_ + "(" + std::to_string(index_) + ")" : name_;
    if (container_ && container_->kind_ == ControlKind::UserControl)
        return container_->Path() + "." + own;
    return own;
}

void Control::Notify(Prop prop) {
    owner_.Notify(*this, prop);
}

void Control::RaiseClick() {
    if (Click)
        Click();
}

void Control::RaiseChange() {
    if (Change)
        Change();
}

void Control::UserClick() {
    switch (kind_) {
    case ControlKind::CheckBox:
        SetFocus();
        SetValue(value_ == 1 ? 0 : 1);
        break;
    case ControlKind::OptionButton:
        SetFocus();
        SetValue(-1);
        break;
    case ControlKind::CommandButton:
    case ControlKind::ComboBox:
    case ControlKind::TextBox:
        SetFocus();
        RaiseClick();
        break;
    default:
        RaiseClick();
    }
}

void Control::UserHover() {
    if (MouseMove)
        MouseMove();
}

void Control::SetCaption(std::string caption) {
    if (caption == caption_)
        return;
    caption_ = std::move(caption);
    Notify(Prop::Caption);
}

std::string Control::Text() const {
    switch (kind_) {
    case ControlKind::ComboBox: {
        const ListPart& list = List();
        return list.index >= 0 && list.index < int(list.items.size())
                   ? list.items[std::size_t(list.index)]
                   : text_;
    }
    case ControlKind::RichTextBox: {
        std::string all;
        for (const auto& run : runs_)
            all += run.text;
        return all;
    }
    default:
        return text_;
    }
}

void Control::SetText(std::string text) {
    if (text == Text())
        return;
    if (kind_ == ControlKind::RichTextBox) {
        runs_.clear();
        if (!text.empty())
            runs_.push_back(TextRun{std::move(text), false, 0});
        selStart_ = 0;
    } else {
        text_ = std::move(text);
    }
    Notify(Prop::Text);
    RaiseChange();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    Notify(Prop::Visible);
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    Notify(Prop::Enabled);
}

void Control::SetLocked(bool locked) {
    if (locked == locked_)
        return;
    locked_ = locked;
    Notify(Prop::Locked);
}

void Control::SetTag(std::string tag) {
    if (tag == tag_)
        return;
    tag_ = std::move(tag);
    Notify(Prop::Tag);
}

void Control::SetValue(int value) {
    if (kind_ == ControlKind::OptionButton) {
        const bool on = value != 0;
        if (on == (value_ != 0))
            return;
        value_ = on ? -1 : 0;
        if (on) {
            // Options in one container exclude one another.
            for (const auto& other : owner_.Controls())
                if (other.get() != this && other->kind_ == ControlKind::OptionButton &&
                    other->container_ == container_ && other->value_ != 0) {
                    other->value_ = 0;
                    other->Notify(Prop::Value);
                }
        }
        Notify(Prop::Value);
        if (on)
            RaiseClick();
        return;
    }
    if (kind_ == ControlKind::CheckBox && (value < 0 || value > 2))
        throw RuntimeError(380, "Invalid property value");
    if (value == value_)
        return;
    value_ = value;
    Notify(Prop::Value);
    if (kind_ == ControlKind::CheckBox)
        RaiseClick();
}

void Control::AddItem(std::string item) {
    List().items.push_back(std::move(item));
    Notify(Prop::List);
}

void Control::Clear() {
    ListPart& list = List();
    if (list.items.empty() && list.index == -1)
        return;
    list.items.clear();
    list.index = -1;
    Notify(Prop::List);
}

void Control::SetListIndex(int index) {
    ListPart& list = List();
    if (index < -1 || index >= int(list.items.size()))
        throw RuntimeError(380, "Invalid property value");
    if (index == list.index)
        return;
    list.index = index;
    Notify(Prop::ListIndex);
    RaiseClick();
}

void Control::UserPick(int index) {
    SetFocus();
    if (index == ListIndex())
        RaiseClick();
    else
        SetListIndex(index);
}

void Control::SetPicture(quillane::Picture picture) {
    if (picture == picture_)
        return;
    picture_ = std::move(picture);
    Notify(Prop::Picture);
}

void Control::SetFontUnderline(bool on) {
    if (on == fontUnderline_)
        return;
    fontUnderline_ = on;
    Notify(Prop::Font);
}

void Control::SetFontBold(bool on) {
    if (on == fontBold_)
        return;
    fontBold_ = on;
    Notify(Prop::Font);
}

void Control::SetFontSize(double size) {
    if (size == fontSize_)
        return;
    fontSize_ = size;
    Notify(Prop::Font);
}

void Control::SetSelStart(long position) {
    const long length = long(Text().size());
    selStart_ = std::clamp(position, 0L, length);
    Notify(Prop::SelStart);
}

void Control::SetSelText(const std::string& text) {
    if (text.empty())
        return;
    // Split the run that holds the caret, then insert the new run there.
    std::vector<TextRun> out;
    long pos = 0;
    bool inserted = false;
    const TextRun added{text, SelBold, SelFontSize};
    for (const auto& run : runs_) {
        const long end = pos + long(run.text.size());
        if (!inserted && selStart_ >= pos && selStart_ < end) {
            const auto cut = std::size_t(selStart_ - pos);
            if (cut > 0)
                out.push_back(TextRun{run.text.substr(0, cut), run.bold, run.pointSize});
            out.push_back(added);
            out.push_back(TextRun{run.text.substr(cut), run.bold, run.pointSize});
            inserted = true;
        } else {
            out.push_back(run);
        }
        pos = end;
    }
    if (!inserted)
        out.push_back(added);
    runs_ = std::move(out);
    selStart_ += long(text.size());
    Notify(Prop::Text);
    RaiseChange();
}

std::vector<std::string> Control::BoldText() const {
    std::vector<std::string> bold;
    bool previousBold = false;
    for (const auto& run : runs_) {
        if (run.bold && !run.text.empty()) {
            if (previousBold)
                bold.back() += run.text;
            else
                bold.push_back(run.text);
        }
        if (!run.text.empty())
            previousBold = run.bold;
    }
    return bold;
}

void Control::Move(int left, int top, int width, int height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Notify(Prop::Geometry);
}

void Control::SetWindowState(quillane::WindowState state) {
    if (state == windowState_)
        return;
    windowState_ = state;
    Notify(Prop::WindowState);
}

bool Control::OnShownPage() const {
    if (page_ < 0 || !container_ || container_->kind_ != ControlKind::TabStrip)
        return true;
    return static_cast<const TabStrip*>(container_)->Tab() == page_;
}

bool Control::InFront() const {
    return stack_ && stack_->Front() == this;
}

void Control::SetFocus() {
    owner_.SetFocused(this);
}

std::string Control::Unreachable() const {
    Application& app = owner_.App();
    Form* loaded = app.Find(owner_.Name());
    if (loaded != &owner_ || !owner_.Me().Visible())
        return "hidden";
    if (kind_ == ControlKind::Menu && app.MenuOwner() != &owner_)
        return "hidden";
    for (const Control* c = this; c; c = c->container_)
        if (!c->visible_ || (c->stack_ && !c->InFront()) || !c->OnShownPage())
            return "hidden";
    if (Form* modal = app.ModalForm(); modal && modal != &owner_)
        return "disabled";
    if (!owner_.Me().Enabled())
        return "disabled";
    for (const Control* c = this; c; c = c->container_)
        if (!c->enabled_)
            return "disabled";
    return "";
}

Control& ControlArray::operator()(int index) const {
    if (index < lower_ || index > UBound())
        throw RuntimeError(340, "Control array element does not exist");
    return *members_[std::size_t(index - lower_)];
}

void ControlArray::Append(Control& member) {
    if (members_.empty())
        lower_ = member.Index();
    members_.push_back(&member);
}

void ControlArray::OnClick(const std::function<void(int)>& handler) {
    for (Control* m : members_)
        m->Click = [handler, i = m->Index()] { handler(i); };
}

void ControlArray::OnMouseMove(const std::function<void(int)>& handler) {
    for (Control* m : members_)
        m->MouseMove = [handler, i = m->Index()] { handler(i); };
}

void ControlArray::OnChange(const std::function<void(int)>& handler) {
    for (Control* m : members_)
        m->Change = [handler, i = m->Index()] { handler(i); };
}

void PanelStack::Add(Control& panel) {
    members_.push_back(&panel);
    panel.stack_ = this;
    if (!front_)
        front_ = &panel;
}

void PanelStack::BringToFront(Control& panel) {
    if (front_ == &panel)
        return;
    Control* previous = front_;
    front_ = &panel;
    if (previous)
        previous->Notify(Prop::Front);
    panel.Notify(Prop::Front);
}

} // namespace quillane
