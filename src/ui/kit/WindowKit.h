#pragma once
// The pieces every window is built from. A widget that shows a control carries
// the control's path as its object name, so the binder finds it; looks come
// from the theme through roles (and a subject's accent from the sheet the
// theme gives its window), never from a window's own style sheet.
#include "WrappedHeights.h"
#include "ui/binding/Adapters.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>
#include <functional>
#include <initializer_list>

namespace quillane::ui::kit {

template <class W> W* Named(W* widget, const QString& path) {
    widget->setObjectName(path);
    return widget;
}
template <class W> W* Role(W* widget, const char* role) {
    widget->setProperty("role", role);
    return widget;
}
// "cmdNext", "chkGroup(2)"
inline QString Path(const char* name, int index) {
    return QString("%1(%2)").arg(name).arg(index);
}

QLabel* Label(const QString& path, const char* role = nullptr, bool wrap = true);
// A label that leads somewhere when clicked.
QLabel* Link(const QString& path);
// A button; the primary one of a panel is drawn in the subject's accent.
QPushButton* Button(const QString& path, bool primary = false);
QCheckBox* Check(const QString& path);
QRadioButton* Option(const QString& path);
// A drop-down list. Made in the widget it will stand in (`in`): a list moved
// into a window with its own style sheet builds its pop-up at once.
QComboBox* DropDown(const QString& path, QWidget* in = nullptr);
// A multi-line text box with a vertical scroll bar; read-only when the
// program only shows its text. Made in the widget it will stand in (`in`),
// its scroll bars, which take their looks at once, take them only there.
QPlainTextEdit* TextBox(const QString& path, bool readOnly = false, QWidget* in = nullptr);
// A rich text view that the program writes and the user reads.
QTextEdit* RichText(const QString& path);
// A picture control of a fixed size; the picture is drawn at that size.
QLabel* Picture(const QString& path, QSize size, const char* role = nullptr);
// A panel: a container the program shows, hides or brings to front.
QWidget* Panel(const QString& path, QWidget* in = nullptr);
// A frame with its caption as a title (the binder keeps the title).
QGroupBox* Frame(const QString& path, QWidget* in = nullptr);
// Panels stacked in one place; the binder keeps the front one current. The
// stack takes its place in the layout first: the panel in front takes its
// looks as it goes in, and should take them where it stands.
QStackedWidget* Stack(QBoxLayout* place, std::initializer_list<QWidget*> panels, int stretch = 0);
// The same, each panel made by its maker in the stack, where it stands: a
// widget measured before it stands in its window takes its looks twice.
using PanelMaker = std::function<QWidget*(QWidget* in)>;
QStackedWidget* Stack(QBoxLayout* place, std::initializer_list<PanelMaker> panels, int stretch = 0);
// Marks a control whose name is the text the program gives it with each
// question (an answer's option), and which has none before.
template <class W> W* NamedByContent(W* widget) {
    widget->setProperty("namedByContent", true);
    return widget;
}
// A row of buttons: some at the left, the rest at the right.
QHBoxLayout* ButtonRow(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right);
// A horizontal rule.
QFrame* Rule();

// A panel whose caption stands as its heading above its content, with a rule.
class CaptionedPanel : public QWidget, public CaptionedWidget {
public:
    explicit CaptionedPanel(const QString& path);
    void SetCaption(const QString& caption) override;
    QVBoxLayout* Content() const { return content_; }

private:
    QLabel* heading_;
    QFrame* rule_;
    QVBoxLayout* content_;
};

// An option button drawn without its caption: the caption holds the choice's
// text for the program, and the box beside it is what the user reads.
class BareOption : public QRadioButton {
public:
    explicit BareOption(const QString& path);

protected:
    void paintEvent(QPaintEvent*) override;
    bool hitButton(const QPoint&) const override { return true; }
};

// Tab pages that are repainted when their layout changes, not at every
// request to look at it again. Qt's tab widget repaints itself whole at each
// such request, and one comes whenever a label on a page takes a new text:
// each step of a walk would repaint every tab and control of the window.
class TabPages : public QTabWidget {
public:
    explicit TabPages(const QString& path);
    // A page to be, made where the pages stand: its widgets take their looks
    // there once, where a page made elsewhere would take them again on going
    // into its tab.
    QWidget* NewPage();

protected:
    bool event(QEvent* event) override;

private:
    struct Layout {
        QSize size, bar, hint, minimum;
        bool operator==(const Layout&) const = default;
    };
    // Where the pages stand: Qt's tab widget keeps them in a stack of its own.
    QStackedWidget* Pages() const;
    Layout Current() const;
    Layout laidOut_;
};

// A check box or option whose caption is a paragraph: the text wraps under
// itself beside the indicator, and the whole area takes the click.
template <class Button> class Wrapping : public Button {
public:
    explicit Wrapping(const QString& path);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return {420, heightForWidth(420)}; }
    QSize minimumSizeHint() const override { return {200, Indicator().height() + 4}; }

protected:
    void paintEvent(QPaintEvent*) override;
    bool hitButton(const QPoint& pos) const override { return this->rect().contains(pos); }

private:
    QSize Indicator() const;
    int TextLeft() const;
    int TextWidth(int width) const { return std::max(40, width - TextLeft()); }
    mutable WrappedHeights heights_;
};
using WrapCheck = Wrapping<QCheckBox>;
using WrapOption = Wrapping<QRadioButton>;

// A subject window: its body in the subject's accent, and below it the links
// every subject carries (the forum's label is named by each subject) and the
// exit button where the form has one. It is made in the frame it will stand
// in, before the body's panels go into the body (whose minimum width is set
// by then), so that every widget takes its looks once, where it stands.
QWidget* SubjectShell(Form& form, QWidget* frame, QWidget* body, const char* subject,
                      const char* forumLabel);

} // namespace quillane::ui::kit
