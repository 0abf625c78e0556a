// The real Astrology window on the offscreen platform: its panels follow the
// form, a click in a choice's text picks that choice, and the report keeps its
// bold runs and size.
#include "DriveSession.h"
#include "drive/RecordingServices.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"

#include "DesktopSession.h"
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct AstrologyUi : ::testing::Test, quillane::testing::DesktopSession {
    void SetUp() override {
        QTest::mouseClick(Widget<QAbstractButton>("cmdSelectOption(0)"), Qt::LeftButton);
    }

    template <class W> W* Widget(const char* name) const {
        return host->MainWindow()->findChild<W*>(name);
    }
    Control& Model(const char* path) const {
        return *app->Find("frmLearnAstrologyMain")->Find(path);
    }
    QWidget* Front() const {
        return qobject_cast<QStackedWidget*>(Widget<QWidget>("Frame1")->parentWidget())
            ->currentWidget();
    }
    void Click(const char* name) const {
        QTest::mouseClick(Widget<QAbstractButton>(name), Qt::LeftButton);
    }
};

} // namespace

TEST_F(AstrologyUi, BrowsingShowsTheGlyphAndALongValueThatWraps) {
    ASSERT_NE(Widget<QWidget>("Frame1"), nullptr);
    EXPECT_EQ(Front()->objectName(), "Frame1");
    auto* sub = Widget<QComboBox>("cboLearnOptionSub");
    EXPECT_EQ(sub->count(), 16);
    EXPECT_FALSE(Widget<QComboBox>("cboTestOptionMain")->isEnabled());
    app->Dispatch([this] { Model("cboLearnOptionSub").SetListIndex(5); });
    EXPECT_EQ(sub->currentIndex(), 5) << "the drop-down shows the model's item";
    Click("cmdNext");
    EXPECT_EQ(Front()->objectName(), "Frame2");
    for (int i = 0; i < 4; ++i)
        Click("cmdNextDesc");
    auto* value = Widget<QLabel>("lblLabel(3)");
    EXPECT_EQ(value->text().size(), 1000) << "Leo's paragraph, whole";
    EXPECT_TRUE(value->wordWrap());
    EXPECT_NE(qobject_cast<QScrollArea*>(value->parentWidget()->parentWidget()), nullptr);
    auto* glyph = Widget<QLabel>("picAstro");
    ASSERT_FALSE(glyph->pixmap().isNull());
    EXPECT_GE(glyph->pixmap().deviceIndependentSize().width(), 96);
}

TEST_F(AstrologyUi, AClickInAChoicesTextPicksItAndTheReportIsBold) {
    Click("optOption(1)");
    EXPECT_TRUE(Widget<QComboBox>("cboTestOptionMain")->isEnabled());
    EXPECT_FALSE(Widget<QComboBox>("cboLearnOptionMain")->isEnabled());
    Click("cmdNext");
    EXPECT_EQ(Front()->objectName(), "Frame3");
    auto* box = Widget<QPlainTextEdit>("txtAnswer_Choice(3)");
    EXPECT_TRUE(box->isReadOnly());
    EXPECT_EQ(box->toPlainText().toStdString(), Model("optAnswer_Choice(3)").Caption());
    QTest::mouseClick(box->viewport(), Qt::LeftButton);
    EXPECT_TRUE(Model("optAnswer_Choice(3)").Selected());
    EXPECT_TRUE(Widget<QRadioButton>("optAnswer_Choice(3)")->isChecked());
    EXPECT_FALSE(Widget<QRadioButton>("optAnswer_Choice(0)")->isChecked());
    Click("optAnswer_Choice(3)"); // the chosen option once more
    EXPECT_TRUE(Widget<QRadioButton>("optAnswer_Choice(3)")->isChecked());
    EXPECT_TRUE(Model("optAnswer_Choice(3)").Selected());
    for (int q = 0; q < 12; ++q)
        Click("cmdNextQuestion");
    EXPECT_EQ(Front()->objectName(), "Frame4");
    auto* report = Widget<QTextEdit>("RTB");
    const QTextBlock first = report->document()->firstBlock();
    EXPECT_EQ(first.text(), "Quillane Learn Astrology Result");
    const QTextCharFormat format = first.begin().fragment().charFormat();
    EXPECT_EQ(format.fontWeight(), QFont::Bold);
    EXPECT_DOUBLE_EQ(format.fontPointSize(), 12);
    EXPECT_TRUE(report->toPlainText().endsWith(" Correct out of 12 Questions"));
    Click("cmdBackToMain(1)");
    EXPECT_EQ(Front()->objectName(), "Frame1");
}
