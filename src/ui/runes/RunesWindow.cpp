// The Runes window: the row of subject buttons above six stacked panels.
#include "RunesWindows.h"
#include "ui/kit/WindowKit.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillane::ui {

using namespace kit;

namespace {

// A panel's column: its content lines up with the row of subject buttons.
QVBoxLayout* Column(QWidget* panel, int top = 8) {
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, top, 0, 0);
    return column;
}

QPlainTextEdit* Box(const QString& path, int height, QWidget* in) {
    auto* box = TextBox(path, false, in);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box->setMinimumHeight(height);
    return box;
}

QWidget* SettingsPanel(QWidget* in) {
    auto* panel = Panel("picSettings", in);
    auto* column = Column(panel);
    column->addWidget(Label("Label2(0)", "heading"));
    column->addWidget(Label("lblLabel(0)"));
    column->addWidget(Label("Label2(1)", "caption"));

    auto* groups = Frame("Frame2");
    auto* groupGrid = new QGridLayout(groups);
    groupGrid->setColumnStretch(1, 1);
    for (int i = 0; i <= 2; ++i) {
        groupGrid->addWidget(Check(Path("chkGroups", i)), i, 0, Qt::AlignTop);
        groupGrid->addWidget(Label(Path("lblLabel", i + 1)), i, 1);
    }
    column->addWidget(groups);

    auto* row = new QHBoxLayout;
    auto* objects = Frame("Frame3");
    auto* objectColumn = new QVBoxLayout(objects);
    for (int i = 0; i <= 1; ++i)
        objectColumn->addWidget(Check(Path("chkObjects", i)));
    objectColumn->addStretch();
    auto* meanings = Frame("Frame1");
    auto* meaningColumn = new QVBoxLayout(meanings);
    for (int i = 0; i <= 2; ++i)
        meaningColumn->addWidget(Check(Path("chkMeanings", i)));
    row->addWidget(objects, 1);
    row->addWidget(meanings, 1);
    column->addLayout(row);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Button("cmdSaveSettings"));
    buttons->addWidget(Button("cmdMemorize"));
    column->addStretch();
    column->addLayout(buttons);
    return panel;
}

QWidget* MemorizePanel(QWidget* in) {
    auto* panel = Panel("picMemorizeStones", in);
    auto* column = Column(panel);
    column->addWidget(Label("lblStoneName", "title"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(14);
    for (int i = 0; i <= 2; ++i) {
        auto* caption = Label(Path("lblMeaningCaption", i), "caption");
        grid->addWidget(caption, 0, i);
        grid->addWidget(Picture(Path("picStone", i), QSize(113, 151), "stone"), 1, i,
                        Qt::AlignHCenter);
        auto* meaning = Box(Path("txtMeaning", i), 84, panel);
        caption->setBuddy(meaning);
        grid->addWidget(meaning, 2, i);
        grid->setColumnStretch(i, 1);
    }
    column->addLayout(grid, 1);
    // The keywords and other names, with the walk's buttons at their end.
    auto* names = new QGridLayout;
    names->addWidget(Label("lblMeaningCaption(3)", "caption"), 0, 0);
    names->addWidget(Label("lblMeaningCaption(4)", "caption"), 0, 1);
    for (int i = 0; i <= 1; ++i) {
        auto* box = Box(i == 0 ? "txtKeywords" : "txtAlternativeNames", 48, panel);
        box->setAccessibleName(i == 0 ? "Keywords" : "Also known as");
        box->setMaximumHeight(48);
        names->addWidget(box, 1, i);
        names->setColumnStretch(i, 1);
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Button("cmdBack"));
    buttons->addWidget(Button("cmdNext"));
    names->addLayout(buttons, 1, 2, Qt::AlignBottom);
    column->addLayout(names);
    return panel;
}

// A choice of the wizard: its framed explanation beside it.
void Choice(QVBoxLayout* column, QWidget* choice, const QString& frame, const QString& label) {
    auto* box = Frame(frame);
    auto* inside = new QVBoxLayout(box);
    inside->addWidget(Label(label));
    auto* row = new QHBoxLayout;
    choice->setMinimumWidth(170);
    row->addWidget(choice, 0, Qt::AlignTop);
    row->addWidget(box, 1);
    column->addLayout(row);
}

QWidget* Step(const QString& path, QVBoxLayout*& column) {
    auto* step = Panel(path);
    column = Column(step, 0);
    return step;
}

void StepButtons(QVBoxLayout* column, std::initializer_list<QString> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const QString& b : buttons)
        row->addWidget(Button(b));
    column->addStretch();
    column->addLayout(row);
}

QWidget* TestSetUpPanel(QWidget* in) {
    auto* panel = Panel("picTestSetUp", in);
    auto* outer = Column(panel);
    QVBoxLayout* c = nullptr;
    auto* subjects = Step("fraTestSubjects", c);
    c->addWidget(Label("lblCaptions(2)", "heading"));
    Choice(c, Option("optTestSubjects(0)"), "fraCaptions(0)", "lblCaptions(0)");
    Choice(c, Option("optTestSubjects(1)"), "fraCaptions(1)", "lblCaptions(1)");
    StepButtons(c, {"cmdTestNext(0)"});
    auto* type = Step("fraTestType", c);
    c->addWidget(Label("lblCaptions(8)", "heading"));
    Choice(c, Check("chkTestType(0)"), "fraCaptions(4)", "lblCaptions(6)");
    Choice(c, Check("chkTestType(1)"), "fraCaptions(5)", "lblCaptions(7)");
    Choice(c, Check("chkTestType(2)"), "fraCaptions(6)", "lblCaptions(9)");
    StepButtons(c, {"cmdTestBack(0)", "cmdTestNext(1)"});
    auto* level = Step("fraTestLevel", c);
    c->addWidget(Label("lblCaptions(5)", "heading"));
    Choice(c, Option("optTestLevel(0)"), "fraCaptions(2)", "lblCaptions(3)");
    Choice(c, Option("optTestLevel(1)"), "fraCaptions(3)", "lblCaptions(4)");
    StepButtons(c, {"cmdTestBack(1)", "cmdTestNext(2)"});
    Stack(outer, {subjects, type, level});
    return panel;
}

QWidget* GoalsPanel(QWidget* in) {
    auto* panel = Panel("picGoals", in);
    auto* column = Column(panel);
    for (int goal = 1; goal <= 2; ++goal) {
        const QString n = QString::number(goal);
        column->addWidget(Check("chkGoal" + n));
        auto* note = Box("txtGoal" + n, 70, panel);
        note->setAccessibleName("Goal note " + n);
        column->addWidget(note, 1);
        auto* row = new QHBoxLayout;
        row->addStretch();
        row->addWidget(Button("cmdGoal" + n));
        column->addLayout(row);
    }
    return panel;
}

QWidget* KeywordPanel(QWidget* in) {
    auto* panel = Panel("picTestKeywords", in);
    auto* column = Column(panel);
    column->addWidget(Label("lblIndex", "heading"));
    column->addWidget(Label("lblCaption", "caption"));
    auto* row = new QHBoxLayout;
    auto* stone = new QVBoxLayout;
    stone->addWidget(Label("lblTestStone", "title"), 0, Qt::AlignHCenter);
    stone->addWidget(Picture("picTest", QSize(113, 151), "stone"), 0, Qt::AlignHCenter);
    stone->addStretch();
    row->addLayout(stone);
    row->addSpacing(30);
    // One column of choices: five at Beginner, eight at Advanced.
    auto* choices = new QVBoxLayout;
    choices->setSpacing(10);
    for (int i = 0; i <= 7; ++i)
        choices->addWidget(NamedByContent(Check(Path("chkKeywords", i))));
    choices->addStretch();
    row->addLayout(choices, 1);
    column->addLayout(row, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Button("cmdNextQuestion"));
    column->addLayout(buttons);
    return panel;
}

QWidget* ResultPanel(QWidget* in) {
    auto* panel = Panel("picTestResult", in);
    auto* column = Column(panel);
    column->addWidget(Label("Label1", "heading"));
    auto* result = Box("txtResult", 200, panel);
    result->setAccessibleName("Test report");
    // The report's columns line up only in a fixed-pitch font.
    result->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    result->setLineWrapMode(QPlainTextEdit::NoWrap);
    column->addWidget(result, 1);
    return panel;
}

} // namespace

QWidget* BuildRunesWindow(Form& form, QWidget* frame) {
    auto* body = new QWidget;
    body->setObjectName("runesBody");
    body->setMinimumSize(900, 430);
    QWidget* window = SubjectShell(form, frame, body, "runes", "Label14");
    auto* column = Column(body, 0);
    auto* subjects = new QHBoxLayout;
    for (int i = 0; i <= 3; ++i) {
        auto* button = Button(Path("cmdSubjects", i));
        button->setProperty("role", "subject");
        subjects->addWidget(button);
    }
    subjects->addStretch();
    column->addLayout(subjects);
    Stack(column,
          {SettingsPanel, MemorizePanel, TestSetUpPanel, GoalsPanel, KeywordPanel, ResultPanel}, 1);
    return window;
}

void RegisterRunesWindows(FormHost& host) {
    host.RegisterWindow("frmLearnRunesMain", BuildRunesWindow);
    host.RegisterWindow("frmLearnRunesMeaningTest", BuildRunesMeaningTestWindow);
}

} // namespace quillane::ui
