#include "Adapters.h"

#include "common/ListView.h"
#include "common/TabStrip.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QTreeWidget>

namespace quillane::ui {

std::unique_ptr<Adapter> MakeAdapter(Binder& binder, Control& control, QWidget* widget) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    auto* label = qobject_cast<QLabel*>(widget);
    switch (control.Kind()) {
    case ControlKind::CommandButton:
        if (button && !qobject_cast<QCheckBox*>(widget) && !qobject_cast<QRadioButton*>(widget))
            return std::make_unique<ButtonAdapter>(binder, control, button);
        break;
    case ControlKind::CheckBox:
        if (qobject_cast<QCheckBox*>(widget))
            return std::make_unique<ButtonAdapter>(binder, control, button);
        break;
    case ControlKind::OptionButton:
        // A round option, or an option drawn as a button that stays down.
        if (qobject_cast<QRadioButton*>(widget) || (button && button->isCheckable()))
            return std::make_unique<ButtonAdapter>(binder, control, button);
        break;
    case ControlKind::Label:
        if (label)
            return std::make_unique<LabelAdapter>(binder, control, label);
        break;
    case ControlKind::PictureBox:
    case ControlKind::Image:
        if (label)
            return std::make_unique<PictureAdapter>(binder, control, label);
        if (!button)
            return std::make_unique<PanelAdapter>(binder, control, widget);
        break;
    case ControlKind::Frame:
    case ControlKind::UserControl:
        if (!button && !label)
            return std::make_unique<PanelAdapter>(binder, control, widget);
        break;
    case ControlKind::TextBox:
        if (auto* line = qobject_cast<QLineEdit*>(widget))
            return std::make_unique<LineAdapter>(binder, control, line);
        if (auto* box = qobject_cast<QPlainTextEdit*>(widget))
            return std::make_unique<TextBoxAdapter>(binder, control, box);
        break;
    case ControlKind::RichTextBox:
        if (auto* view = qobject_cast<QTextEdit*>(widget))
            return std::make_unique<RichTextAdapter>(binder, control, view);
        break;
    case ControlKind::ComboBox:
        if (auto* combo = qobject_cast<QComboBox*>(widget))
            return std::make_unique<DropDownAdapter>(binder, control, combo);
        break;
    case ControlKind::TabStrip:
        if (auto* tabs = qobject_cast<QTabWidget*>(widget))
            return std::make_unique<TabAdapter>(binder, static_cast<TabStrip&>(control), tabs);
        break;
    case ControlKind::ListView:
        if (auto* tree = qobject_cast<QTreeWidget*>(widget))
            return std::make_unique<ListViewAdapter>(binder, static_cast<ListView&>(control), tree);
        break;
    default:
        break;
    }
    return nullptr;
}

} // namespace quillane::ui
