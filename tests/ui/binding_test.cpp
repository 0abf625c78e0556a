// The generic binding on the offscreen platform: the adapters of tabs, list
// views, user controls and pop-up menus carry the model to the widget and the
// user's actions back.
#include "DesktopSession.h"
#include "SamplerForm.h"
#include "ui/binding/Binder.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

// The sampler's window, its widgets named as a designer names them.
QWidget* BuildSampler(Form&) {
    auto* window = new QWidget;
    window->setObjectName("frmSampler");
    auto* column = new QVBoxLayout(window);
    const auto add = [column]<class W>(W* widget, const QString& name) {
        widget->setObjectName(name);
        column->addWidget(widget);
        return widget;
    };
    auto* tabs = add(new QTabWidget, "SSTab1");
    for (int i = 0; i < 3; ++i)
        tabs->addTab(new QWidget, QString());
    auto* second = new QPushButton;
    second->setObjectName("cmdSecond");
    (new QVBoxLayout(tabs->widget(1)))->addWidget(second);
    add(new QTreeWidget, "ListView1");
    (new QComboBox(add(new QWidget, "dtpDay")))->setObjectName("cboDay");
    add(new QLineEdit, "txtLocked");
    auto* spot = add(new QStackedWidget, "");
    for (int i = 0; i < 2; ++i) {
        auto* view = new QPushButton;
        view->setObjectName(QString("optGoals(%1)").arg(i));
        view->setCheckable(true);
        spot->addWidget(view);
    }
    return window;
}

using quillane::testing::Sampler;

struct Adapters : ::testing::Test, quillane::testing::DesktopSession {
    Adapters() {
        app->RegisterForm("frmSampler",
                          [](Application& a) { return std::make_unique<Sampler>(a); });
        host->RegisterWindow("frmSampler", BuildSampler);
        app->Dispatch([this] { app->Show("frmSampler"); });
        form = static_cast<Sampler*>(app->Find("frmSampler"));
        window = host->WindowOf("frmSampler");
    }
    template <class W> W* Widget(const char* name) const { return window->findChild<W*>(name); }
    Sampler* form = nullptr;
    QWidget* window = nullptr;
};

TEST_F(Adapters, TheTitleTabsAndAUserControlsChildrenFollowTheModelAndTheUsersChoice) {
    app->Dispatch([&] { form->Me().SetCaption("Renamed"); });
    EXPECT_EQ(window->windowTitle(), "Renamed");
    auto* tabs = Widget<QTabWidget>("SSTab1");
    EXPECT_EQ(tabs->tabText(2), "Tab 2");
    app->Dispatch([&] { form->tabs.SetTabEnabled(2, false); });
    EXPECT_FALSE(tabs->isTabEnabled(2));
    EXPECT_EQ(form->onSecond.Unreachable(), "hidden") << "a control on a tab not in front";

    tabs->setCurrentIndex(1); // as a click on the tab does
    EXPECT_EQ(form->tabs.Tab(), 1);
    EXPECT_EQ(form->previousTabs, std::vector<int>{0});
    EXPECT_EQ(form->onSecond.Unreachable(), "");

    app->Dispatch([&] { form->tabs.SetTab(0); });
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(form->previousTabs, (std::vector<int>{0, 1}));

    app->Dispatch([&] { form->tabs.SetTab(2); }); // the program may select a disabled tab
    EXPECT_EQ(tabs->currentIndex(), 2);
    app->Dispatch([&] { form->tabs.SetTabEnabled(2, true); });
    app->Dispatch([&] { form->tabs.SetTabEnabled(0, false); });
    EXPECT_EQ(tabs->currentIndex(), 2) << "the shown tab follows the model, not the widget's rules";
    EXPECT_FALSE(tabs->isTabEnabled(0));

    auto* day = Widget<QComboBox>("cboDay");
    EXPECT_EQ(day->count(), 31);
    day->setCurrentIndex(4);
    emit day->activated(4); // the user picks 5
    EXPECT_EQ(form->picker.picked, 5);
    form->picker.picked = 0;
    emit day->activated(4); // and picks the shown item again
    EXPECT_EQ(form->picker.picked, 5) << "a re-pick runs Click";
    app->Dispatch([&] { form->picker.SetEnabled(false); });
    EXPECT_FALSE(Widget<QWidget>("dtpDay")->isEnabled());
    EXPECT_TRUE(Widget<QLineEdit>("txtLocked")->isReadOnly()) << "a locked box refuses typing";
    EXPECT_TRUE(host->BinderOf("frmSampler")->Unbound().isEmpty());
}

TEST_F(Adapters, AListViewAndAPopUpMenuShowTheModelAndRunTheUsersPicks) {
    auto* tree = Widget<QTreeWidget>("ListView1");
    app->Dispatch([&] {
        form->list.SetCheckboxes(true);
        form->list.Add("_0", "Weekly reading");
        form->list.Add("_1", "Learn the Cups");
        form->list.SetSubItem(2, "1");
    });
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(tree->headerItem()->text(0), "Goals");
    EXPECT_EQ(tree->topLevelItem(1)->text(0), "Learn the Cups");

    tree->topLevelItem(1)->setCheckState(0, Qt::Checked); // the user ticks it
    EXPECT_TRUE(form->list.Item(2).checked);
    EXPECT_EQ(form->checked, std::vector<int>{2});
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      tree->visualItemRect(tree->topLevelItem(0)).center());
    EXPECT_EQ(form->clicked, std::vector<int>{1});
    EXPECT_EQ(form->list.Selected(), 1);

    app->Dispatch([&] { form->list.SetCheckboxes(false); });
    EXPECT_FALSE(tree->topLevelItem(1)->data(0, Qt::CheckStateRole).isValid());
    app->Dispatch([&] { form->list.ClearItems(); });
    EXPECT_EQ(tree->topLevelItemCount(), 0);

    QStringList shown;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* a : menu->actions())
            shown << (a->isSeparator() ? "-" : a->text());
        EXPECT_EQ(menu->defaultAction()->text(), "Show");
        menu->actions().last()->trigger();
        menu->close();
    });
    app->Dispatch([&] { app->PopupMenu(*form, form->popup, &form->show); });
    EXPECT_EQ(shown, (QStringList{"Show", "-", "Exit"}));
    EXPECT_EQ(form->picks, std::vector<std::string>{"exit"});
    EXPECT_FALSE(app->OpenPopup()) << "a window's menu closes when it returns";
}

} // namespace
