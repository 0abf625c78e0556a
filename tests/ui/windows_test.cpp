// The subject windows on the offscreen platform: panels and headings follow
// the forms, a press on a choice's text picks the choice, reports open at
// their top with bold headings, and a step of a walk sets on the widgets only
// what changed.
#include "DesktopSession.h"
#include "drive/Inspect.h"
#include "numerology/modLearnNumerologyState.h"
#include "ui/binding/Binder.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

using namespace quillane;

namespace {

const char* const kAstrology = "frmLearnAstrologyMain";
const char* const kNumerology = "frmLearnNumerologyMain";
const char* const kRunes = "frmLearnRunesMain";

struct Windows : ::testing::Test, quillane::testing::DesktopSession {
    Windows() { modLearnNumerology::ClearTestState(); }
    template <class W = QWidget> W* Widget(const std::string& name) const {
        W* w = host->MainWindow()->findChild<W*>(QString::fromStdString(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    void Press(std::initializer_list<std::string> names) {
        for (const std::string& name : names) {
            QWidget* w = Widget(name);
            if (auto* text = qobject_cast<QPlainTextEdit*>(w))
                w = text->viewport();
            QTest::mouseClick(w, Qt::LeftButton);
            QCoreApplication::processEvents();
        }
    }
    Control& Model(const char* form, const std::string& path) const {
        return *app->Find(form)->Find(path);
    }
    // The panel in front of the stack that holds the named panel.
    std::string Front(const std::string& panel) const {
        auto* stack = qobject_cast<QStackedWidget*>(Widget(panel)->parentWidget());
        return stack ? stack->currentWidget()->objectName().toStdString() : "";
    }
    void Click(const char* form, const std::string& control) {
        app->Dispatch([&] { Model(form, control).UserClick(); });
    }
};

// Where a character of the first block that starts with the text stands, in
// pixels from the left.
double XOf(QTextEdit* view, const QString& blockStart, QChar c) {
    for (QTextBlock b = view->document()->firstBlock(); b.isValid(); b = b.next())
        if (b.text().startsWith(blockStart))
            return b.layout()->lineAt(0).cursorToX(b.text().indexOf(c));
    ADD_FAILURE() << "no line " << blockStart.toStdString();
    return -1;
}

// The test of each window, from the launcher to its report: a press on a
// choice's text picks that choice alone, and the report's heading is bold.
TEST_F(Windows, AChoicesTextPicksItAndTheReportsHeadingIsBold) {
    const struct {
        const char *form, *start, *text, *option, *report;
        int questions;
    } windows[] = {
        {kAstrology, "cmdSelectOption(0) optOption(1) cmdNext", "txtAnswer_Choice(",
         "optAnswer_Choice(", "RTB", 12},
        {kNumerology, "cmdSelectOption(1) optMain(1) cmdNext optOption(0) cmdNext2", "txtOption(",
         "optChoice(", "RTBTestResult", 10},
    };
    for (const auto& w : windows) {
        SCOPED_TRACE(w.form);
        std::istringstream start(w.start);
        for (std::string name; start >> name;)
            Press({name});
        for (const char* i : {"3", "0"}) {
            EXPECT_TRUE(Widget<QPlainTextEdit>(w.text + std::string(i) + ")")->isReadOnly());
            Press({w.text + std::string(i) + ")"});
            EXPECT_TRUE(Widget<QRadioButton>(w.option + std::string(i) + ")")->isChecked());
            EXPECT_TRUE(Model(w.form, w.option + std::string(i) + ")").Selected());
        }
        EXPECT_FALSE(Widget<QRadioButton>(w.option + std::string("3)"))->isChecked());
        Press({w.option + std::string("0)")}); // the chosen option once more
        EXPECT_TRUE(Widget<QRadioButton>(w.option + std::string("0)"))->isChecked());
        for (int q = 0; q < w.questions; ++q)
            Press({w.option + std::string("0)"), "cmdNextQuestion"});
        auto* report = Widget<QTextEdit>(w.report);
        EXPECT_TRUE(report->isVisible());
        const QTextBlock first = report->document()->firstBlock();
        EXPECT_TRUE(
            Model(w.form, w.report).BoldText().front().starts_with(first.text().toStdString()));
        EXPECT_EQ(first.begin().fragment().charFormat().fontWeight(), QFont::Bold);
        if (w.form == kNumerology) { // the result panel's caption, set once it is in front
            EXPECT_EQ(Widget<QLabel>("fraOption(5).heading")->text(), "Test Result: Significance");
            EXPECT_EQ(report->verticalScrollBar()->value(), 0) << "the report opens at its top";
        }
        EXPECT_TRUE(report->toPlainText().endsWith(
            QString(" Correct out of %1 Questions").arg(w.questions)));
        app->Dispatch([&] { app->Unload(w.form); });
    }
}

TEST_F(Windows, AstrologyBrowsingShowsTheGlyphAndALongValueThatWraps) {
    Press({"cmdSelectOption(0)"});
    EXPECT_EQ(Front("Frame1"), "Frame1");
    auto* sub = Widget<QComboBox>("cboLearnOptionSub");
    EXPECT_EQ(sub->count(), 16);
    EXPECT_FALSE(Widget("cboTestOptionMain")->isEnabled());
    app->Dispatch([this] { Model(kAstrology, "cboLearnOptionSub").SetListIndex(5); });
    EXPECT_EQ(sub->currentIndex(), 5) << "the drop-down shows the model's item";
    Press({"cmdNext", "cmdNextDesc", "cmdNextDesc", "cmdNextDesc", "cmdNextDesc"});
    EXPECT_EQ(Front("Frame1"), "Frame2");
    auto* value = Widget<QLabel>("lblLabel(3)");
    EXPECT_EQ(value->text().size(), 1000) << "Leo's paragraph, whole";
    EXPECT_TRUE(value->wordWrap());
    EXPECT_NE(qobject_cast<QScrollArea*>(value->parentWidget()->parentWidget()), nullptr);
    // The height it keeps for a width is the one Qt works out, before and
    // after the text changes.
    EXPECT_EQ(value->heightForWidth(300), value->QLabel::heightForWidth(300));
    Press({"cmdBackDesc"});
    EXPECT_EQ(value->heightForWidth(300), value->QLabel::heightForWidth(300));
    auto* glyph = Widget<QLabel>("picAstro");
    ASSERT_FALSE(glyph->pixmap().isNull());
    EXPECT_GE(glyph->pixmap().deviceIndependentSize().width(), 96);
}

TEST_F(Windows, NumerologyPanelsHeadingsChartsAndSubjectColumnsFollowTheForm) {
    Press({"cmdSelectOption(1)"});
    EXPECT_EQ(Front("fraOption(0)"), "fraOption(0)");
    EXPECT_TRUE(Widget<QLabel>("fraOption(0).heading")->isHidden()) << "the start has no caption";
    Press({"optMain(0)", "cmdNext"});
    EXPECT_EQ(Widget<QLabel>("fraOption(1).heading")->text(), "Learn Options");
    Press({"optOption(0)", "cmdNext2", "cmdNextLearn"});
    auto* study = Widget<QTextEdit>("RTBLearn");
    EXPECT_TRUE(QFontInfo(study->document()->defaultFont()).fixedPitch());
    // Destiny's chart: each letter under its number.
    for (const auto& [digit, letter] : {std::pair{'1', 'A'}, {'5', 'E'}, {'9', 'I'}})
        EXPECT_DOUBLE_EQ(XOf(study, "1  2", digit), XOf(study, "A  B", letter));
    EXPECT_DOUBLE_EQ(XOf(study, "J  K", 'N'), XOf(study, "S  T", 'W'));
    Press({"cmdBackToMain", "cmdNext", "optOption(1)", "cmdNext2"});
    // The subjects stand in three columns of five.
    auto pos = [this](int i) {
        return Widget("chkSubject(" + std::to_string(i) + ")")->mapTo(host->MainWindow(), QPoint());
    };
    for (int i = 0; i <= 14; ++i) {
        EXPECT_EQ(pos(i).x(), pos(i / 5 * 5).x()) << i << " stands in its column";
        EXPECT_EQ(pos(i).y(), pos(i % 5).y()) << i << " stands in its row";
    }
    EXPECT_TRUE(pos(0).x() < pos(5).x() && pos(5).x() < pos(10).x() && pos(0).y() < pos(1).y());
}
// A step of the walk sets on the widgets only the properties that changed,
// and draws a stone's picture once at its size.
TEST_F(Windows, RunesAStepOfTheWalkSetsOnlyWhatChanged) {
    Press({"cmdSelectOption(3)"});
    Click(kRunes, "cmdMemorize");
    ui::Binder* binder = host->BinderOf(kRunes);
    ui::PictureCache& pictures = ui::SharedPictures();
    Click(kRunes, "cmdNext"); // every picture of the walk has been drawn once now
    Click(kRunes, "cmdBack");
    // Every property the driver can see, control by control.
    auto state = [this] {
        std::map<std::string, std::string> values;
        for (const auto& c : app->Find(kRunes)->Controls()) {
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
    std::map<std::string, int> perControl;
    binder->SetRefreshListener([&](const Control& c, Prop) {
        refreshed.insert(c.Path());
        ++perControl[c.Path()];
        ++notices;
    });
    // As a click does: the texts reach the widgets when the action ends.
    binder->Act([&] { Model(kRunes, "cmdNext").UserClick(); });
    std::set<std::string> changed;
    for (const auto& [property, value] : state())
        if (before.at(property) != value)
            changed.insert(property.substr(0, property.rfind('.')));
    EXPECT_GE(changed.size(), 8u) << "the next stone's name, pictures and texts";
    EXPECT_EQ(refreshed, changed);
    EXPECT_EQ(binder->Refreshes() - sets, notices) << "one widget property set a change";
    EXPECT_EQ(perControl["txtKeywords"] + perControl["txtAlternativeNames"], 2)
        << "a text built up piece by piece is shown once";
    EXPECT_EQ(pictures.Drawn(), drawn) << "a stone seen before is not drawn again";

    // An action that waits for events (a message box, `DoEvents`) shows the
    // texts it has given so far, before anything is painted.
    auto* keywords = Widget<QPlainTextEdit>("txtKeywords");
    std::string shown;
    binder->Act([&] {
        Model(kRunes, "txtKeywords").SetText("Held");
        QCoreApplication::processEvents();
        shown = keywords->toPlainText().toStdString();
    });
    EXPECT_EQ(shown, "Held");
    // Tab leaves a text box, as any other control; it types nothing.
    QTest::keyClick(keywords, Qt::Key_Tab);
    EXPECT_EQ(keywords->toPlainText().toStdString(), "Held");
    // Scroll bars have no arrow buttons: a click at either end of the groove
    // turns a page.
    QScrollBar* bar = keywords->verticalScrollBar();
    std::string many;
    for (int i = 0; i < 60; ++i)
        many += "Wealth, ";
    Model(kRunes, "txtKeywords").SetText(many);
    ASSERT_GT(bar->maximum(), bar->pageStep());
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 2));
    EXPECT_GE(bar->value(), bar->pageStep());
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, 1));
    EXPECT_EQ(bar->value(), 0);
}

} // namespace
