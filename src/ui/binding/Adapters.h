#pragma once
// The adapter of each kind of widget.
#include "Adapter.h"
#include "Binder.h"

#include <QComboBox>
#include <vector>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class QTextEdit;
class QTreeWidget;

namespace quillane {
class ListView;
class TabStrip;
} // namespace quillane

namespace quillane::ui {

// A widget of the program's own that shows a control's caption (a panel with
// a heading).
class CaptionedWidget {
public:
    virtual ~CaptionedWidget() = default;
    virtual void SetCaption(const QString& caption) = 0;
};

// Push buttons, check boxes and options: a caption, and a value where the
// widget can be checked.
class ButtonAdapter : public Adapter {
public:
    ButtonAdapter(Binder& binder, Control& control, QAbstractButton* button);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Caption, Prop::Value}; }
    void Show(Prop prop) override;
};

class LabelAdapter : public Adapter {
public:
    LabelAdapter(Binder& binder, Control& control, QLabel* label);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Caption, Prop::Font}; }
    void Show(Prop prop) override;
};

class PictureAdapter : public Adapter {
public:
    PictureAdapter(Binder& binder, Control& control, QLabel* label);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Picture}; }
    void Show(Prop prop) override;

private:
    bool shown_ = false;
};

// A text box of one line; a box the window made read-only stays so.
class LineAdapter : public Adapter {
public:
    LineAdapter(Binder& binder, Control& control, QLineEdit* line);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Text, Prop::Locked}; }
    void Show(Prop prop) override;

private:
    bool designReadOnly_;
};

class TextBoxAdapter : public Adapter {
public:
    TextBoxAdapter(Binder& binder, Control& control, QPlainTextEdit* box);
    bool HoldsText() const override { return true; }

protected:
    std::vector<Prop> OwnProps() const override {
        return {Prop::Text, Prop::Locked, Prop::SelStart};
    }
    void Show(Prop prop) override;

private:
    bool designReadOnly_;
};

class RichTextAdapter : public Adapter {
public:
    RichTextAdapter(Binder& binder, Control& control, QTextEdit* view);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Text}; }
    void Show(Prop prop) override;

private:
    std::vector<TextRun> shown_; // what the view shows, to append to it
};

class DropDownAdapter : public Adapter {
public:
    DropDownAdapter(Binder& binder, Control& control, QComboBox* combo);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::List}; }
    void Show(Prop prop) override;
};

// Panels, stacked panels, captioned frames and user controls: shown,
// enabled, in front, and a caption where the widget shows one.
class PanelAdapter : public Adapter {
public:
    PanelAdapter(Binder& binder, Control& control, QWidget* panel);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Caption}; }
    void Show(Prop prop) override;
};

class TabAdapter : public Adapter {
public:
    TabAdapter(Binder& binder, TabStrip& tabs, QTabWidget* widget);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::TabState, Prop::Tab}; }
    void Show(Prop prop) override;

private:
    TabStrip& tabs_;
};

class ListViewAdapter : public Adapter {
public:
    ListViewAdapter(Binder& binder, ListView& list, QTreeWidget* tree);

protected:
    std::vector<Prop> OwnProps() const override { return {Prop::Caption, Prop::Items}; }
    void Show(Prop prop) override;

private:
    ListView& list_;
};

} // namespace quillane::ui
