// The Runes window and the meaning test dialog on the offscreen platform:
// every control has its widget, pictures have their size, and the dialog
// stands over the launcher while the Runes window is out of view.
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
#include <QMdiSubWindow>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct RunesUi : ::testing::Test, quillane::testing::DesktopSession {
    RunesUi() : DesktopSession(Date(2026, 11, 20), 3) {}
    void SetUp() override {
        host->MainWindow()->findChild<QAbstractButton*>("cmdSelectOption(3)")->click();
    }
    void Click(const std::string& form, const std::string& control) {
        app->Dispatch([&] { app->Find(form)->Find(control)->UserClick(); });
    }
    QWidget* Frame(const std::string& form) {
        QWidget* w = host->WindowOf(form);
        return w ? w->parentWidget() : nullptr;
    }
    // The controls of a form that have no widget of their name.
    QStringList Unbound(const std::string& name) {
        QStringList missing;
        QWidget* root = host->WindowOf(name);
        for (const auto& c : app->Find(name)->Controls()) {
            if (c->Kind() == ControlKind::Menu)
                continue;
            const QString path = QString::fromStdString(c->Path());
            if (!root->findChild<QWidget*>(path))
                missing << path;
        }
        return missing;
    }
};

TEST_F(RunesUi, EveryControlOfTheWindowHasItsWidget) {
    ASSERT_TRUE(host->WindowOf("frmLearnRunesMain"));
    EXPECT_EQ(Unbound("frmLearnRunesMain"), QStringList());
    QWidget* root = host->WindowOf("frmLearnRunesMain");
    for (const char* picture : {"picStone(0)", "picStone(1)", "picStone(2)", "picTest"})
        EXPECT_EQ(root->findChild<QLabel*>(picture)->size(), QSize(113, 151)) << picture;
    for (const char* box : {"txtMeaning(0)", "txtGoal1", "txtResult", "txtKeywords"})
        EXPECT_EQ(root->findChild<QPlainTextEdit*>(box)->verticalScrollBarPolicy(),
                  Qt::ScrollBarAlwaysOn)
            << box;
    EXPECT_FALSE(root->findChild<QLabel*>("picStone(1)")->pixmap().isNull());
}

TEST_F(RunesUi, TheDialogStandsInForTheHiddenWindowUntilItCloses) {
    for (const char* c : {"cmdSubjects(2)", "optTestSubjects(0)", "cmdTestNext(0)",
                          "chkTestType(0)", "cmdTestNext(1)", "optTestLevel(1)", "cmdTestNext(2)"})
        Click("frmLearnRunesMain", c);
    ASSERT_TRUE(host->WindowOf("frmLearnRunesMeaningTest"));
    EXPECT_EQ(Unbound("frmLearnRunesMeaningTest"), QStringList());
    EXPECT_TRUE(qobject_cast<QMdiSubWindow*>(Frame("frmLearnRunesMeaningTest")));
    EXPECT_TRUE(Frame("frmLearnRunesMeaningTest")->isVisible());
    EXPECT_FALSE(Frame("frmLearnRunesMain")->isVisible()) << "the Runes window is out of view";
    QWidget* dialog = host->WindowOf("frmLearnRunesMeaningTest");
    EXPECT_TRUE(dialog->findChild<QWidget*>("chkMeaning(7)")->isVisible());

    // The title bar's close button in mid-test.
    Frame("frmLearnRunesMeaningTest")->close();
    QApplication::processEvents();
    EXPECT_EQ(app->Find("frmLearnRunesMeaningTest"), nullptr);
    ASSERT_TRUE(Frame("frmLearnRunesMain"));
    EXPECT_TRUE(Frame("frmLearnRunesMain")->isVisible()) << "the Runes window comes back";
}

} // namespace
