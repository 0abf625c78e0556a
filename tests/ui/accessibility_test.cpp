// Every window as a screen reader sees it: each control a user can act on has
// its proper role and a name to be known by.
#include "DesktopSession.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

// The interactive controls that have no name, found by walking the tree.
// The controls of a window a user can act on that have no name to be known
// by: every widget is asked, on every panel and tab, shown or not, but for
// those the program itself has hidden and those named by the text the
// program gives them at each question.
QStringList Unnamed(QWidget* window) {
    static const QList<QAccessible::Role> kActs = {QAccessible::PushButton, QAccessible::CheckBox,
                                                   QAccessible::RadioButton, QAccessible::ComboBox,
                                                   QAccessible::EditableText};
    QStringList found;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        QAccessibleInterface* node = QAccessible::queryAccessibleInterface(widget);
        if (!node || !kActs.contains(node->role()) || widget->isHidden() ||
            widget->property("namedByContent").toBool())
            continue;
        QString name = node->text(QAccessible::Name).trimmed();
        // A drop-down is not named by the value it shows.
        if (node->role() == QAccessible::ComboBox && widget->accessibleName().isEmpty())
            name.clear();
        if (name.isEmpty())
            found << widget->objectName();
    }
    return found;
}

struct Accessibility : ::testing::Test, quillane::testing::DesktopSession {};

TEST_F(Accessibility, EveryControlOfEveryWindowHasANameAndItsRole) {
    QMainWindow* main = host->MainWindow();
    EXPECT_EQ(Unnamed(main).join(", ").toStdString(), "") << "the launcher";
    for (const std::string& form : app->FormNames()) {
        if (form == app->MainForm() || form == "frmAbout")
            continue;
        app->Dispatch([&] { app->Load(form); });
        EXPECT_EQ(Unnamed(host->WindowOf(form)).join(", ").toStdString(), "") << form;
    }
    auto* option =
        host->WindowOf("frmLearnNumerologyMain")->findChild<QAbstractButton*>("optChoice(0)");
    ASSERT_NE(option, nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(option)->role(), QAccessible::RadioButton);
}

} // namespace
