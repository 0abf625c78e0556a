// The Numerology window: six panels stacked in one place, each with its
// caption as a heading, laid out by hand.
#include "NumerologyWindows.h"
#include "ui/binding/ClickForwarder.h"
#include "ui/kit/WindowKit.h"

#include <QEvent>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

namespace quillane::ui {

namespace {

// A stacked panel whose caption stands as its heading.
QWidget* CaptionedPanel(int index, QVBoxLayout*& content) {
    auto* panel = new kit::CaptionedPanel(kit::Path("fraOption", index));
    content = panel->Content();
    return panel;
}

QPushButton* Primary(const QString& path) {
    return kit::Button(path, true);
}

QLabel* Text(const QString& path, const char* role) {
    return kit::Label(path, role);
}

using kit::ButtonRow;

// A pair of options, indented below their prompt; some get their captions
// only when their panel comes to the front.
void TwoChoices(QVBoxLayout* content, const char* name, bool byContent = false) {
    auto* choices = new QVBoxLayout;
    choices->setContentsMargins(24, 4, 0, 4);
    for (int i = 0; i <= 1; ++i) {
        auto* option = kit::Option(kit::Path(name, i));
        option->setProperty("namedByContent", byContent);
        choices->addWidget(option);
    }
    content->addLayout(choices);
    content->addStretch();
}

// The start panel: what the program offers and the choice of learning or testing.
QWidget* StartPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(0, c);
    c->addSpacing(6);
    for (int i = 0; i <= 2; ++i)
        c->addWidget(Text(QString("lblCaption(%1)").arg(i), "intro"));
    c->addSpacing(12);
    c->addWidget(Text("lblCaption(3)", "prompt"));
    TwoChoices(c, "optMain");
    c->addLayout(ButtonRow({}, {Primary("cmdNext")}));
    return panel;
}

QWidget* OptionsPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(1, c);
    c->addWidget(Text("lblCaption(4)", "prompt"));
    TwoChoices(c, "optOption", true);
    c->addLayout(ButtonRow({kit::Button("cmdBack2")}, {Primary("cmdNext2")}));
    return panel;
}

// The study text. The calculation charts are laid out with blanks for a
// fixed pitch, so the whole text is set in a monospaced face.
QWidget* StudyPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(2, c);
    c->addWidget(kit::Label("lblLearnSubject", "caption"));
    auto* text = kit::RichText("RTBLearn");
    text->setAccessibleName("Study text");
    QFont mono("DejaVu Sans Mono");
    mono.setStyleHint(QFont::Monospace);
    mono.setFixedPitch(true);
    if (!QFontInfo(mono).fixedPitch())
        mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mono.setPointSizeF(9.5);
    text->setFont(mono);
    text->document()->setDefaultFont(mono);
    text->setLineWrapMode(QTextEdit::WidgetWidth);
    c->addWidget(text, 1);
    c->addLayout(ButtonRow({kit::Button("cmdBackLearn"), kit::Button("cmdNextLearn")},
                           {kit::Button("cmdBackToMain")}));
    return panel;
}

// The subjects in three columns of five, in index order down each column.
QWidget* SubjectPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(3, c);
    c->addWidget(Text("lblCaption(5)", "prompt"));
    auto* grid = new QGridLayout;
    grid->setContentsMargins(12, 6, 0, 0);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    for (int i = 0; i <= 14; ++i)
        grid->addWidget(kit::Check(QString("chkSubject(%1)").arg(i)), i % 5, i / 5, Qt::AlignLeft);
    for (int col = 0; col < 3; ++col)
        grid->setColumnStretch(col, 1);
    c->addLayout(grid);
    c->addStretch();
    c->addLayout(ButtonRow({kit::Button("cmdBack3")}, {Primary("cmdNext3")}));
    return panel;
}

// Five choices, each an option beside the text it picks; the number asked
// about stands at the bottom, as the panel's instruction says.
QWidget* QuestionPanel(Form& form) {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(4, c);
    c->addWidget(Text("lblCaption(6)", "prompt"));
    auto* choices = new QGridLayout;
    choices->setHorizontalSpacing(8);
    choices->setVerticalSpacing(8);
    for (int i = 0; i <= 4; ++i) {
        auto* option = kit::NamedByContent(kit::Option(QString("optChoice(%1)").arg(i)));
        auto* text = kit::TextBox(QString("txtOption(%1)").arg(i), true);
        text->setAccessibleName(QString("Choice %1").arg(i + 1));
        // The option's own caption is empty: it is known by its text.
        QObject::connect(text, &QPlainTextEdit::textChanged, option,
                         [option, text] { option->setAccessibleName(text->toPlainText()); });
        text->setFixedHeight(54);
        text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
        text->viewport()->setCursor(Qt::PointingHandCursor);
        text->viewport()->installEventFilter(
            new ClickForwarder(form, QString("txtOption(%1)").arg(i).toStdString(), text));
        choices->addWidget(option, i, 0, Qt::AlignTop | Qt::AlignHCenter);
        choices->addWidget(text, i, 1);
    }
    choices->setColumnStretch(1, 1);
    c->addLayout(choices);
    c->addStretch();
    auto* bar = kit::Role(new QFrame, "card");
    bar->setObjectName("questionBar");
    auto* barRow = new QHBoxLayout(bar);
    barRow->setContentsMargins(12, 8, 12, 8);
    barRow->setSpacing(16);
    barRow->addWidget(kit::Label("lblQuestionNo", "hint", false));
    barRow->addWidget(kit::Label("lblSubjectName", "caption"), 1);
    barRow->addWidget(Primary("cmdNextQuestion"));
    c->addWidget(bar);
    return panel;
}

QWidget* ResultPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(5, c);
    auto* report = kit::RichText("RTBTestResult");
    report->setAccessibleName("Test report");
    QFont font = report->font();
    font.setPointSizeF(10);
    report->document()->setDefaultFont(font);
    c->addWidget(report, 1);
    // The page that goes to the printer; the program keeps it hidden.
    auto* printed = kit::RichText("RTB1");
    printed->setAccessibleName("Printed report");
    printed->hide();
    c->addWidget(printed);
    c->addLayout(ButtonRow({kit::Button("cmdPrint")}, {Primary("cmdGoToMain")}));
    return panel;
}

} // namespace

QWidget* BuildNumerologyWindow(Form& form) {
    auto* body = new QWidget;
    body->setObjectName("numerologyBody");
    body->setMinimumSize(900, 430);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    auto* stack = kit::Stack({StartPanel(), OptionsPanel(), StudyPanel(), SubjectPanel(),
                              QuestionPanel(form), ResultPanel()});
    stack->setObjectName("numerologyPanels");
    column->addWidget(stack);
    return kit::SubjectShell(form, body, "numerology", "Label14");
}

void RegisterNumerologyWindows(FormHost& host) {
    host.RegisterWindow("frmLearnNumerologyMain", BuildNumerologyWindow);
}

} // namespace quillane::ui
