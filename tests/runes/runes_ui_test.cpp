// The Runes window and the meaning test dialog on the offscreen platform:
// every control has its widget, pictures have their size, and the dialog
// stands over the launcher while the Runes window is out of view.
#include "DriveSession.h"
#include "drive/Inspect.h"
#include "drive/RecordingServices.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/binding/Binder.h"
#include "ui/binding/FormHost.h"

#include "DesktopSession.h"
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <map>
#include <set>

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
};

TEST_F(RunesUi, PicturesAndTextBoxesHaveTheirSizeAndScrollBars) {
    ASSERT_TRUE(host->WindowOf("frmLearnRunesMain"));
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

// A step of the walk sets on the widgets only the properties that changed,
// and draws a stone's picture once at its size.
TEST_F(RunesUi, AStepOfTheWalkSetsOnlyWhatChanged) {
    Click("frmLearnRunesMain", "cmdMemorize");
    ui::Binder* binder = host->BinderOf("frmLearnRunesMain");
    ui::PictureCache& pictures = ui::SharedPictures();
    Click("frmLearnRunesMain", "cmdNext"); // every picture of the walk has been drawn once now
    Click("frmLearnRunesMain", "cmdBack");
    // Every property the driver can see, control by control.
    auto state = [this] {
        std::map<std::string, std::string> values;
        for (const auto& c : app->Find("frmLearnRunesMain")->Controls()) {
            const Json dump = drive::DumpControl(*c);
            for (const auto& [name, value] : dump.AsObject())
                values[c->Path() + "." + name] = value.Dump();
        }
        return values;
    };
    const auto before = state();
    const long drawn = pictures.Drawn(), sets = binder->Refreshes();
    std::set<std::string> refreshed;
    long notices = 0;
    binder->SetRefreshListener([&](const Control& c, Prop) {
        refreshed.insert(c.Path());
        ++notices;
    });
    Click("frmLearnRunesMain", "cmdNext");
    std::set<std::string> changed;
    for (const auto& [property, value] : state())
        if (before.at(property) != value)
            changed.insert(property.substr(0, property.rfind('.')));
    EXPECT_GE(changed.size(), 8u) << "the next stone's name, pictures and texts";
    EXPECT_EQ(refreshed, changed);
    EXPECT_EQ(binder->Refreshes() - sets, notices) << "one widget property set a change";
    EXPECT_EQ(pictures.Drawn(), drawn) << "a stone seen before is not drawn again";
}

} // namespace
