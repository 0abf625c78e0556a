// Every window of the program, as the binding builds it and as a screen
// reader sees it: each control of its form has a widget of its kind, and each
// control a user can act on has the role of its kind and a name to be known
// by, on every panel and tab, shown now or later (the goals, the date picker,
// the About box included).
#include "DesktopSession.h"
#include "ui/binding/Binder.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QTabBar>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

// The role a widget of that kind must have; none for the kinds not checked.
// An option drawn as a button that stays down is an option all the same.
std::optional<QAccessible::Role> RoleOfKind(QWidget* widget) {
    if (qobject_cast<QCheckBox*>(widget))
        return QAccessible::CheckBox;
    if (qobject_cast<QComboBox*>(widget))
        return QAccessible::ComboBox;
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return button->isCheckable() ? QAccessible::RadioButton : QAccessible::PushButton;
    return std::nullopt;
}

// What a screen reader can't tell: a control without its role or its name, a
// tab without a caption. Controls named by the text the program gives them at
// each question, and Qt's own inner parts, are left out.
QStringList Faults(QWidget* window) {
    static const QList<QAccessible::Role> kActs = {QAccessible::PushButton,   QAccessible::CheckBox,
                                                   QAccessible::RadioButton,  QAccessible::ComboBox,
                                                   QAccessible::EditableText, QAccessible::Tree};
    QStringList found;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_") ||
            widget->property("namedByContent").toBool())
            continue;
        QAccessibleInterface* node = QAccessible::queryAccessibleInterface(widget);
        if (!node)
            continue;
        if (const auto role = RoleOfKind(widget); role && node->role() != *role)
            found << widget->objectName() + " has the wrong role";
        if (!kActs.contains(node->role()))
            continue;
        QString name = node->text(QAccessible::Name).trimmed();
        // A drop-down is not named by the value it shows.
        if (node->role() == QAccessible::ComboBox && widget->accessibleName().isEmpty())
            name.clear();
        if (name.isEmpty())
            found << widget->objectName() + " has no name";
    }
    for (QTabBar* tabs : window->findChildren<QTabBar*>())
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i).isEmpty())
                found << QString("tab %1 has no caption").arg(i);
    return found;
}

TEST(EveryWindow, EachControlHasAWidgetOfItsKindWithItsRoleAndAName) {
    quillane::testing::DesktopSession session;
    Application& app = *session.app;
    for (const std::string& form : app.FormNames()) {
        if (!session.host->WindowOf(form))
            app.Dispatch([&] { app.Load(form); });
        ui::Binder* binder = session.host->BinderOf(form);
        ASSERT_NE(binder, nullptr) << form << " has no window";
        EXPECT_EQ(binder->Unbound().join(", ").toStdString(), "") << form << " shows nothing for";
        QWidget* window = session.host->WindowOf(form);
        EXPECT_FALSE(window->findChildren<QAbstractButton*>().isEmpty()) << form;
        EXPECT_EQ(Faults(window).join(", ").toStdString(), "") << form;
        if (form != app.MainForm())
            app.Dispatch([&] { app.Unload(form); });
    }
}

} // namespace
