// The Numerology window on the offscreen platform: its panels follow the
// form, the headings follow the panels' captions, a press on a choice's text
// picks the choice, the study text is set in a fixed pitch.
#include "DriveSession.h"
#include "drive/RecordingServices.h"
#include "numerology/modLearnNumerologyState.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"

#include "DesktopSession.h"
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct NumerologyUi : ::testing::Test, quillane::testing::DesktopSession {
    void SetUp() override {
        modLearnNumerology::ClearTestState();
        Click<QAbstractButton>("cmdSelectOption(1)");
    }

    QWidget* Window() const { return host->WindowOf("frmLearnNumerologyMain"); }
    template <class W> W* Widget(const QString& name) const {
        QWidget* root = name.startsWith("cmdSelectOption") ? host->MainWindow() : Window();
        W* w = root ? root->findChild<W*>(name) : nullptr;
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    template <class W> void Click(const QString& name) {
        if (W* w = Widget<W>(name))
            QTest::mouseClick(w, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    QWidget* FrontPanel() const {
        auto* stack = Window()->findChild<QStackedWidget*>("numerologyPanels");
        return stack ? stack->currentWidget() : nullptr;
    }
};

} // namespace

namespace {

// Where a character of the first block that starts with the text stands, in
// pixels from the left.
double XOf(QTextEdit* view, const QString& blockStart, QChar c) {
    for (QTextBlock b = view->document()->firstBlock(); b.isValid(); b = b.next())
        if (b.text().startsWith(blockStart))
            return b.layout()->lineAt(0).cursorToX(b.text().indexOf(c));
    ADD_FAILURE() << "no line " << blockStart.toStdString();
    return -1;
}

} // namespace

TEST_F(NumerologyUi, ThePanelsAndTheirHeadingsFollowTheForm) {
    EXPECT_EQ(FrontPanel()->objectName(), "fraOption(0)");
    EXPECT_TRUE(Widget<QLabel>("fraOption(0).heading")->isHidden())
        << "the start panel has no caption";
    Click<QRadioButton>("optMain(1)");
    Click<QAbstractButton>("cmdNext");
    EXPECT_EQ(FrontPanel()->objectName(), "fraOption(1)");
    EXPECT_EQ(Widget<QLabel>("fraOption(1).heading")->text(), "Test Options");
    EXPECT_EQ(Widget<QRadioButton>("optOption(1)")->text(), "Test By Interpretation of Numbers");
    Click<QRadioButton>("optOption(0)");
    Click<QAbstractButton>("cmdNext2");
    EXPECT_EQ(Widget<QLabel>("fraOption(4).heading")->text(), "Test By Significance");
    for (int i = 0; i < 10; ++i) {
        Click<QRadioButton>("optChoice(" + QString::number(i % 5) + ")");
        Click<QAbstractButton>("cmdNextQuestion");
    }
    EXPECT_EQ(FrontPanel()->objectName(), "fraOption(5)");
    // The result panel's caption is set after it came to the front.
    EXPECT_EQ(Widget<QLabel>("fraOption(5).heading")->text(), "Test Result: Significance");
    auto* report = Widget<QTextEdit>("RTBTestResult");
    EXPECT_EQ(report->verticalScrollBar()->value(), 0) << "the report opens at its top";
    const QTextBlock first = report->document()->firstBlock();
    EXPECT_TRUE(first.charFormat().fontWeight() >= QFont::Bold ||
                first.begin().fragment().charFormat().fontWeight() >= QFont::Bold);
    EXPECT_EQ(first.text().toStdString() + "\r\n",
              app->Find("frmLearnNumerologyMain")->Find("RTBTestResult")->BoldText().front());
}

TEST_F(NumerologyUi, TheCalculationChartsLineUpInTheStudyText) {
    Click<QRadioButton>("optMain(0)");
    Click<QAbstractButton>("cmdNext");
    Click<QRadioButton>("optOption(0)");
    Click<QAbstractButton>("cmdNext2");
    Click<QAbstractButton>("cmdNextLearn");
    auto* study = Widget<QTextEdit>("RTBLearn");
    EXPECT_TRUE(QFontInfo(study->document()->defaultFont()).fixedPitch());
    // Destiny's chart: each letter under its number.
    const QList<QPair<QChar, QChar>> columns = {{'1', 'A'}, {'5', 'E'}, {'9', 'I'}};
    for (const auto& [digit, letter] : columns)
        EXPECT_DOUBLE_EQ(XOf(study, "1  2", digit), XOf(study, "A  B", letter));
    EXPECT_DOUBLE_EQ(XOf(study, "J  K", 'N'), XOf(study, "S  T", 'W'));
}

TEST_F(NumerologyUi, TheSubjectsStandInThreeColumnsOfFive) {
    Click<QRadioButton>("optMain(0)");
    Click<QAbstractButton>("cmdNext");
    Click<QRadioButton>("optOption(1)");
    Click<QAbstractButton>("cmdNext2");
    auto pos = [this](int i) {
        auto* box = Widget<QCheckBox>("chkSubject(" + QString::number(i) + ")");
        return box->mapTo(Window(), QPoint(0, 0));
    };
    for (int i = 0; i <= 14; ++i) {
        EXPECT_EQ(pos(i).x(), pos(i / 5 * 5).x()) << i << " stands in its column";
        EXPECT_EQ(pos(i).y(), pos(i % 5).y()) << i << " stands in its row";
        EXPECT_FALSE(Widget<QCheckBox>("chkSubject(" + QString::number(i) + ")")->text().isEmpty());
    }
    EXPECT_LT(pos(0).x(), pos(5).x());
    EXPECT_LT(pos(5).x(), pos(10).x());
    EXPECT_LT(pos(0).y(), pos(1).y());
}

TEST_F(NumerologyUi, APressOnAChoiceTextPicksTheChoice) {
    Click<QRadioButton>("optMain(1)");
    Click<QAbstractButton>("cmdNext");
    Click<QRadioButton>("optOption(0)");
    Click<QAbstractButton>("cmdNext2");
    for (int i : {3, 0}) {
        auto* text = Widget<QPlainTextEdit>("txtOption(" + QString::number(i) + ")");
        EXPECT_TRUE(text->isReadOnly());
        QTest::mouseClick(text->viewport(), Qt::LeftButton);
        QCoreApplication::processEvents();
        EXPECT_TRUE(Widget<QRadioButton>("optChoice(" + QString::number(i) + ")")->isChecked());
        EXPECT_TRUE(app->Find("frmLearnNumerologyMain")
                        ->Find("optChoice(" + std::to_string(i) + ")")
                        ->Selected());
    }
    EXPECT_FALSE(Widget<QRadioButton>("optChoice(3)")->isChecked()) << "one choice at a time";
}

TEST_F(NumerologyUi, ALongTestEndsInItsReportOnScreen) {
    Click<QRadioButton>("optMain(1)");
    Click<QAbstractButton>("cmdNext");
    Click<QRadioButton>("optOption(1)");
    Click<QAbstractButton>("cmdNext2");
    for (int i = 0; i <= 14; ++i)
        Click<QCheckBox>("chkSubject(" + QString::number(i) + ")");
    Click<QAbstractButton>("cmdNext3");
    EXPECT_EQ(Widget<QLabel>("lblQuestionNo")->text(), "Question 1 of 75");
    for (int k = 0; k < 75; ++k) {
        Click<QRadioButton>("optChoice(2)");
        Click<QAbstractButton>("cmdNextQuestion");
    }
    auto* report = Widget<QTextEdit>("RTBTestResult");
    EXPECT_TRUE(report->isVisible());
    EXPECT_TRUE(report->toPlainText().endsWith(" Correct out of 75 Questions"));
    EXPECT_EQ(report->toPlainText().count("Your Choice: "), 75);
}
