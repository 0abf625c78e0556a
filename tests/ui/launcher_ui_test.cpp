// The real launcher on the offscreen platform: clicks on its widgets reach the
// forms, and the widgets follow the forms.
#include "DriveSession.h"
#include "drive/RecordingServices.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"

#include "DesktopSession.h"
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct LauncherUi : ::testing::Test, quillane::testing::DesktopSession {

    QMainWindow* Main() const { return host->MainWindow(); }
    template <class W> W* Widget(const char* name) const { return Main()->findChild<W*>(name); }
    QStringList MenuTitles() const {
        QStringList titles;
        for (QAction* a : Main()->menuBar()->actions())
            titles << a->text();
        return titles;
    }
};

} // namespace

TEST_F(LauncherUi, ShowsTheLauncherWithItsTextsAndMenus) {
    ASSERT_NE(Main(), nullptr);
    EXPECT_TRUE(Main()->isVisible());
    EXPECT_EQ(Main()->windowTitle(), "Quillane v1.20");
    EXPECT_EQ(Widget<QAbstractButton>("cmdSelectOption(2)")->text(), "Learn Tarot");
    EXPECT_EQ(Widget<QLabel>("lblCaption(0)")->text(), "Welcome to Quillane");
    EXPECT_TRUE(Widget<QWidget>("picMain")->isVisible());
    EXPECT_EQ(MenuTitles(), (QStringList{"&File", "&Help"}));
}

TEST_F(LauncherUi, AButtonOpensItsSubjectInsideTheLauncher) {
    QTest::mouseClick(Widget<QAbstractButton>("cmdSelectOption(1)"), Qt::LeftButton);
    auto* mdi = Widget<QMdiArea>("mdiArea");
    ASSERT_EQ(mdi->subWindowList().size(), 1);
    EXPECT_EQ(mdi->subWindowList().first()->windowTitle(), "Quillane Learn Numerology");
    EXPECT_FALSE(Widget<QWidget>("picMain")->isVisible());
    EXPECT_TRUE(mdi->isVisible());
    EXPECT_NE(app->Find("frmLearnNumerologyMain"), nullptr);

    // The subject's menus take the menu bar's place.
    QMenu* file = nullptr;
    for (QAction* a : Main()->menuBar()->actions())
        if (a->text() == "&File")
            file = a->menu();
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->objectName(), "mnuFile");
    EXPECT_EQ(file->actions().first()->text(), "E&xit");
    file->actions().first()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnNumerologyMain"), nullptr);
    EXPECT_TRUE(Widget<QWidget>("picMain")->isVisible())
        << "closing a subject brings the welcome back";
    EXPECT_EQ(Main()->menuBar()->actions().size(), 2);
}

TEST_F(LauncherUi, SubjectLabelsOpenAndUnderlineUnderTheMouse) {
    auto* label = Widget<QLabel>("lblCaption(6)");
    QTest::mouseMove(label);
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), label->mapToGlobal(QPointF(5, 5)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(label, &move);
    EXPECT_TRUE(app->Find("frmMDI")->Find("lblCaption(6)")->FontUnderline());
    EXPECT_TRUE(label->property("underline").toBool());
    EXPECT_TRUE(label->font().underline());
    QMouseEvent leave(QEvent::MouseMove, QPointF(2, 2), QPointF(2, 2), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(Widget<QWidget>("picMain"), &leave);
    EXPECT_FALSE(label->font().underline());

    QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_NE(app->Find("frmLearnRunesMain"), nullptr);
    // Closing the sub-window with its title bar runs the form's unload.
    Widget<QMdiArea>("mdiArea")->subWindowList().first()->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnRunesMain"), nullptr);
    EXPECT_TRUE(Widget<QWidget>("picMain")->isVisible());
}

TEST_F(LauncherUi, LinksGoToTheBrowser) {
    QTest::mouseClick(Widget<QLabel>("lblZenthoraBanner"), Qt::LeftButton);
    QTest::mouseClick(Widget<QLabel>("Label7"), Qt::LeftButton);
    EXPECT_EQ(browser.opened,
              (std::vector<std::string>{"https://www.zenthora.net/",
                                        "https://www.zenthora.net/fully-branded.html"}));
}

TEST_F(LauncherUi, ASubjectClosedByItsOwnButtonLeavesNothingBehind) {
    // The click closes the form that owns the button; the window goes later.
    QTest::mouseClick(Widget<QAbstractButton>("cmdSelectOption(2)"), Qt::LeftButton);
    auto* exit = Main()->findChild<QAbstractButton*>("cmdNav(1)");
    ASSERT_NE(exit, nullptr);
    QTest::mouseClick(exit, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnTarotMain"), nullptr);
    EXPECT_TRUE(Widget<QMdiArea>("mdiArea")->subWindowList().isEmpty());
    EXPECT_TRUE(Widget<QWidget>("picMain")->isVisible());
}

TEST_F(LauncherUi, EverySubjectOpensAndClosesByKeyboard) {
    Main()->activateWindow();
    QApplication::setActiveWindow(Main());
    auto* tarot = Widget<QAbstractButton>("cmdSelectOption(2)");
    tarot->setFocus();
    QTest::keyClick(tarot, Qt::Key_Return);
    EXPECT_NE(app->Find("frmLearnTarotMain"), nullptr) << "Return presses the focused button";
    QTest::keyClick(Main(), Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(app->Find("frmLearnTarotMain"), nullptr);
    EXPECT_NE(app->Find("frmLearnRunesMain"), nullptr) << "Alt+R opens the Runes";
    QTest::keyClick(Main(), Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnRunesMain"), nullptr) << "Ctrl+F4 closes the subject in front";
    EXPECT_TRUE(Widget<QWidget>("picMain")->isVisible());
}

TEST_F(LauncherUi, TabAndF6LeadFromASubjectToTheLauncherAndBack) {
    QApplication::setActiveWindow(Main());
    Widget<QAbstractButton>("cmdSelectOption(0)")->click();
    QWidget* subject = host->WindowOf("frmLearnAstrologyMain");
    auto* next = subject->findChild<QWidget*>("cmdNext");
    next->setFocus();
    QWidget* last = next;
    for (int stops = 0; stops < 50 && subject->isAncestorOf(QApplication::focusWidget()); ++stops) {
        last = QApplication::focusWidget();
        QTest::keyClick(last, Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), Widget<QWidget>("cmdSelectOption(0)"))
        << "Tab goes on from the subject's last control to the launcher's first button";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), last);

    QTest::keyClick(last, Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), Widget<QWidget>("cmdSelectOption(0)"))
        << "F6 goes to the open subject's button";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), last) << "and back to where the subject was";
}

TEST_F(LauncherUi, TheBarMarksTheOpenSubjectAlsoAfterTheRuneMeaningDialog) {
    auto current = [this] {
        QStringList marked;
        for (int i = 0; i < 4; ++i)
            if (Widget<QWidget>(qPrintable(QString("cmdSelectOption(%1)").arg(i)))
                    ->property("current")
                    .toBool())
                marked << QString::number(i);
        return marked.join(",").toStdString();
    };
    EXPECT_EQ(current(), "");
    Widget<QAbstractButton>("cmdSelectOption(3)")->click();
    for (const char* step :
         {"cmdSubjects(2)", "optTestSubjects(0)", "cmdTestNext(0)", "chkTestType(1)",
          "cmdTestNext(1)", "optTestLevel(0)", "cmdTestNext(2)"})
        Widget<QAbstractButton>(step)->click();
    ASSERT_NE(app->Find("frmLearnRunesMeaningTest"), nullptr);
    EXPECT_EQ(current(), "3");
    host->WindowOf("frmLearnRunesMeaningTest")->parentWidget()->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(current(), "3");
    Widget<QAbstractButton>("cmdSelectOption(0)")->click();
    EXPECT_EQ(current(), "0");
    QTest::keyClick(Main(), Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(current(), "");
}

const char* const kSubjects[4] = {"Astrology", "Numerology", "Tarot", "Runes"};

// What clips or overlaps in a window: a wrapped label shorter than its text,
// or two controls of one container over each other.
QStringList Clipped(QWidget* window) {
    QStringList found;
    for (QWidget* w : window->findChildren<QWidget*>()) {
        if (!w->isVisible() || w->isWindow())
            continue;
        if (auto* label = qobject_cast<QLabel*>(w);
            label && label->wordWrap() && label->height() < label->heightForWidth(label->width()))
            found << w->objectName() + " is cut";
        for (QWidget* other : w->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (other != w && other->isVisible() && w->geometry().intersects(other->geometry()) &&
                !w->objectName().isEmpty() && w->objectName() < other->objectName())
                found << w->objectName() + " overlaps " + other->objectName();
    }
    return found;
}

TEST_F(LauncherUi, OnTheSmallestScreenEveryWindowFitsWithNothingCut) {
    Main()->showNormal();
    Main()->resize(1024, 768);
    QCoreApplication::processEvents();
    auto* mdi = Widget<QMdiArea>("mdiArea");
    auto fits = [mdi](const char* what) {
        QCoreApplication::processEvents();
        QMdiSubWindow* child = mdi->subWindowList().first();
        EXPECT_TRUE(mdi->viewport()->rect().contains(child->geometry())) << what;
        EXPECT_EQ(Clipped(child).join(", ").toStdString(), "") << what;
    };
    for (int subject = 0; subject < 4; ++subject) {
        Widget<QAbstractButton>(qPrintable(QString("cmdSelectOption(%1)").arg(subject)))->click();
        fits(kSubjects[subject]);
    }
    Widget<QAbstractButton>("cmdMemorize")->click();
    fits("the rune stones");
}
