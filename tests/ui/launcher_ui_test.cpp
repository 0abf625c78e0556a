// The real launcher on the offscreen platform: clicks and keys on its widgets
// reach the forms, the widgets follow the forms, and every subject fits the
// smallest screen.
#include "DesktopSession.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct LauncherUi : ::testing::Test, quillane::testing::DesktopSession {
    QMainWindow* Main() const { return host->MainWindow(); }
    template <class W = QWidget> W* Widget(const QString& name) const {
        return Main()->findChild<W*>(name);
    }
    QAbstractButton* Subject(int i) const {
        return Widget<QAbstractButton>(QString("cmdSelectOption(%1)").arg(i));
    }
    bool Welcome() const { return Widget("picMain")->isVisible(); }
    // The subjects the launcher's bar marks as open.
    std::string Marked() const {
        std::string marked;
        for (int i = 0; i < 4; ++i)
            marked += Subject(i)->property("current").toBool() ? std::to_string(i) : "";
        return marked;
    }
    QStringList MenuTitles() const {
        QStringList titles;
        for (QAction* a : Main()->menuBar()->actions())
            titles << a->text();
        return titles;
    }
    void CloseFrame(const std::string& form) {
        host->WindowOf(form)->parentWidget()->close();
        QCoreApplication::processEvents();
    }
};

TEST_F(LauncherUi, SubjectsOpenInsideTheLauncherWithTheirMenusAndClosingOneBringsTheWelcomeBack) {
    EXPECT_TRUE(Main()->isVisible());
    EXPECT_EQ(Main()->windowTitle(), "Quillane v1.20");
    EXPECT_EQ(MenuTitles(), (QStringList{"&File", "&Help"}));
    QTest::mouseClick(Widget<QLabel>("lblZenthoraBanner"), Qt::LeftButton);
    QTest::mouseClick(Widget<QLabel>("Label7"), Qt::LeftButton);
    EXPECT_EQ(browser.opened,
              (std::vector<std::string>{"https://www.zenthora.net/",
                                        "https://www.zenthora.net/fully-branded.html"}));

    QTest::mouseClick(Subject(1), Qt::LeftButton);
    auto* mdi = Widget<QMdiArea>("mdiArea");
    ASSERT_EQ(mdi->subWindowList().size(), 1);
    EXPECT_EQ(mdi->subWindowList().first()->windowTitle(), "Quillane Learn Numerology");
    EXPECT_FALSE(Welcome());
    // The subject's menus take the menu bar's place; its File, Exit closes it.
    QMenu* file = Main()->menuBar()->actions().first()->menu();
    EXPECT_EQ(file->objectName(), "mnuFile");
    EXPECT_EQ(file->actions().first()->text(), "E&xit");
    file->actions().first()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnNumerologyMain"), nullptr);
    EXPECT_TRUE(Welcome());
    EXPECT_EQ(MenuTitles(), (QStringList{"&File", "&Help"}));

    // A subject's own Exit button closes the form that owns it; the window goes later.
    QTest::mouseClick(Subject(2), Qt::LeftButton);
    QTest::mouseClick(Main()->findChild<QAbstractButton*>("cmdNav(1)"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnTarotMain"), nullptr);
    EXPECT_TRUE(mdi->subWindowList().isEmpty());
    EXPECT_TRUE(Welcome());

    // A subject's label underlines under the mouse, and opens its subject.
    auto* label = Widget<QLabel>("lblCaption(6)");
    QTest::mouseMove(label);
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), label->mapToGlobal(QPointF(5, 5)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(label, &move);
    EXPECT_TRUE(label->font().underline());
    QMouseEvent leave(QEvent::MouseMove, QPointF(2, 2), QPointF(2, 2), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(Widget("picMain"), &leave);
    EXPECT_FALSE(label->font().underline());
    QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_NE(app->Find("frmLearnRunesMain"), nullptr);
    EXPECT_EQ(Marked(), "3");
}

// The Runes meaning test is a dialog in the launcher that stands in for the
// Runes window, hidden meanwhile; the bar marks the Runes all along.
TEST_F(LauncherUi, TheRuneMeaningDialogStandsInForTheHiddenRunesWindowUntilItCloses) {
    Subject(3)->click();
    for (const char* step :
         {"cmdSubjects(2)", "optTestSubjects(0)", "cmdTestNext(0)", "chkTestType(0)",
          "cmdTestNext(1)", "optTestLevel(1)", "cmdTestNext(2)"})
        Widget<QAbstractButton>(step)->click();
    QWidget* dialog = host->WindowOf("frmLearnRunesMeaningTest");
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(qobject_cast<QMdiSubWindow*>(dialog->parentWidget()));
    EXPECT_TRUE(dialog->findChild<QWidget*>("chkMeaning(7)")->isVisible());
    EXPECT_FALSE(host->WindowOf("frmLearnRunesMain")->isVisible());
    EXPECT_EQ(Marked(), "3");
    CloseFrame("frmLearnRunesMeaningTest"); // the title bar's close button, in mid-test
    EXPECT_EQ(app->Find("frmLearnRunesMeaningTest"), nullptr);
    EXPECT_TRUE(host->WindowOf("frmLearnRunesMain")->isVisible()) << "the Runes window comes back";
    EXPECT_EQ(Marked(), "3");
    CloseFrame("frmLearnRunesMain");
    EXPECT_EQ(app->Find("frmLearnRunesMain"), nullptr);
    EXPECT_TRUE(Welcome());
    EXPECT_EQ(Marked(), "");
}

TEST_F(LauncherUi, EverySubjectOpensClosesAndIsLeftByKeyboard) {
    Main()->activateWindow();
    QApplication::setActiveWindow(Main());
    Subject(2)->setFocus();
    QTest::keyClick(Subject(2), Qt::Key_Return);
    EXPECT_NE(app->Find("frmLearnTarotMain"), nullptr) << "Return presses the focused button";
    QTest::keyClick(Main(), Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(app->Find("frmLearnTarotMain"), nullptr);
    EXPECT_NE(app->Find("frmLearnRunesMain"), nullptr) << "Alt+R opens the Runes";
    EXPECT_EQ(Marked(), "3");
    QTest::keyClick(Main(), Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnRunesMain"), nullptr) << "Ctrl+F4 closes the subject in front";
    EXPECT_TRUE(Welcome());
    EXPECT_EQ(Marked(), "");

    // Tab and F6 lead from a subject to the launcher and back.
    Subject(0)->click();
    QWidget* subject = host->WindowOf("frmLearnAstrologyMain");
    QWidget* last = subject->findChild<QWidget*>("cmdNext");
    auto* link = subject->findChild<QLabel*>("lblCobrand");
    link->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(link->font().underline()) << "a link shows that it has the focus";
    last->setFocus();
    EXPECT_FALSE(link->font().underline());
    for (int stops = 0; stops < 50 && subject->isAncestorOf(QApplication::focusWidget()); ++stops) {
        last = QApplication::focusWidget();
        QTest::keyClick(last, Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), Subject(0))
        << "Tab goes on from the subject's last control to the launcher's first button";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), last);
    QTest::keyClick(last, Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), Subject(0)) << "F6 goes to the open subject's button";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), last) << "and back to where the subject was";
}

// Whether a drop-down shows each of its entries whole.
bool ShowsEveryEntry(const QComboBox* combo) {
    QStyleOptionComboBox option;
    option.initFrom(combo);
    const int room =
        combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    for (int i = 0; i < combo->count(); ++i)
        if (combo->fontMetrics().horizontalAdvance(combo->itemText(i)) > room)
            return false;
    return true;
}

// What clips or overlaps in a window: a wrapped label shorter than its text,
// a drop-down narrower than an entry, a button lower than it asks to be, or
// two controls of one container over each other.
QStringList Clipped(QWidget* window) {
    QStringList found;
    for (QWidget* w : window->findChildren<QWidget*>()) {
        if (!w->isVisible() || w->isWindow())
            continue;
        if (auto* label = qobject_cast<QLabel*>(w);
            label && label->wordWrap() && label->height() < label->heightForWidth(label->width()))
            found << w->objectName() + " is cut";
        if (auto* combo = qobject_cast<QComboBox*>(w); combo && !ShowsEveryEntry(combo))
            found << w->objectName() + " cuts an entry";
        if (qobject_cast<QAbstractButton*>(w) && w->height() < w->sizeHint().height())
            found << w->objectName() + " is squeezed";
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
    for (int step = 0; step < 5; ++step) {
        (step < 4 ? Subject(step) : Widget<QAbstractButton>("cmdMemorize"))->click();
        QCoreApplication::processEvents();
        QMdiSubWindow* child = mdi->subWindowList().first();
        EXPECT_TRUE(mdi->viewport()->rect().contains(child->geometry())) << step;
        // Every page of a window with tabs, turned to without telling the
        // program (which may refuse a page or act on it).
        auto* tabs = child->findChild<QTabWidget*>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs) {
                const QSignalBlocker quiet(tabs);
                tabs->setCurrentIndex(page);
                QCoreApplication::processEvents();
            }
            EXPECT_EQ(Clipped(child).join(", ").toStdString(), "")
                << child->windowTitle().toStdString() << ", page " << page;
        }
    }
}

} // namespace
