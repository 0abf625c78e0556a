#pragma once
// Widgets that carry a control's path as their object name, so the binder
// finds them, in the looks the program's windows share.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTextEdit>
#include <initializer_list>

namespace quillane::ui::kit {

template <class W> W* Named(W* widget, const QString& path) {
    widget->setObjectName(path);
    return widget;
}

inline QLabel* Label(const QString& path, bool wrap = true) {
    auto* label = Named(new QLabel, path);
    label->setWordWrap(wrap);
    return label;
}
// A label that leads somewhere when clicked.
inline QLabel* Link(const QString& path) {
    auto* label = Label(path);
    label->setProperty("role", "link");
    label->setCursor(Qt::PointingHandCursor);
    return label;
}
inline QPushButton* Button(const QString& path) {
    return Named(new QPushButton, path);
}
inline QCheckBox* Check(const QString& path) {
    return Named(new QCheckBox, path);
}
inline QRadioButton* Option(const QString& path) {
    return Named(new QRadioButton, path);
}
inline QComboBox* DropDown(const QString& path) {
    return Named(new QComboBox, path);
}
// A multi-line text box with a vertical scroll bar.
inline QPlainTextEdit* TextBox(const QString& path) {
    auto* box = Named(new QPlainTextEdit, path);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    return box;
}
// A rich text view that the program writes and the user reads.
inline QTextEdit* RichText(const QString& path) {
    auto* view = Named(new QTextEdit, path);
    view->setReadOnly(true);
    return view;
}
// A picture control of a fixed size; the picture is drawn at that size.
inline QLabel* Picture(const QString& path, QSize size) {
    auto* label = Named(new QLabel, path);
    label->setFixedSize(size);
    label->setAlignment(Qt::AlignCenter);
    return label;
}
// A panel: a container the program shows, hides or brings to front.
inline QWidget* Panel(const QString& path) {
    return Named(new QWidget, path);
}
// Panels stacked in one place; the binder keeps the front one current.
inline QStackedWidget* Stack(std::initializer_list<QWidget*> panels) {
    auto* stack = new QStackedWidget;
    for (QWidget* panel : panels)
        stack->addWidget(panel);
    return stack;
}

} // namespace quillane::ui::kit
