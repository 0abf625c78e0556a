// The Numerology window: six panels stacked in one place, each with its
// caption as a heading, laid out by hand.
#include "Binder.h"
#include "ClickForwarder.h"
#include "WindowKit.h"
#include "Windows.h"

#include <QEvent>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

namespace quillane::ui {

namespace {

const char* const kStyle = R"(
QWidget#numerologyBody { background: #fbf8f0; }
QStackedWidget > QWidget { background: #fbf8f0; }
QLabel[role="panelHeading"] { color: #3b2f63; font-size: 15pt; font-weight: 600; }
QFrame[role="rule"] { background: #c9b26a; border: none; }
QLabel[role="intro"] { color: #2b2838; font-size: 11pt; }
QLabel[role="prompt"] { color: #3b2f63; font-size: 10.5pt; font-style: italic; }
QLabel#lblLearnSubject { color: #3b2f63; font-size: 14pt; font-weight: 600; }
QWidget#questionBar { background: #efe8d4; border: 1px solid #d8ccaa; border-radius: 6px; }
QLabel#lblQuestionNo { color: #5b5470; font-size: 10pt; }
QLabel#lblSubjectName { color: #3b2f63; font-size: 13pt; font-weight: 600; }
QRadioButton, QCheckBox { color: #2b2838; font-size: 10.5pt; spacing: 8px; }
QPlainTextEdit, QTextEdit {
    background: #ffffff; border: 1px solid #d8ccaa; border-radius: 4px; color: #1f1d29;
}
QPushButton {
    color: #2b2838; background: #f3ecd8; border: 1px solid #b59f5b; border-radius: 5px;
    padding: 5px 16px; min-width: 72px;
}
QPushButton:hover { background: #f8f1dd; border-color: #8a7530; }
QPushButton:pressed { background: #e6dcc0; }
QPushButton[role="primary"] { background: #3b2f63; color: #fbf8f0; border-color: #3b2f63; }
QPushButton[role="primary"]:hover { background: #4a3d78; }
)";

// The text of a control of the live form; the window may outlast the form by
// a moment while it closes, so the form is looked up anew each time.
QString CaptionOf(Application& app, const std::string& form, const std::string& path) {
    Form* live = app.Find(form);
    Control* control = live ? live->Find(path) : nullptr;
    return control ? Binder::LabelText(control->Caption()) : QString();
}

// A stacked panel: a heading that shows the panel's caption above its content.
// A caption is set just before or just after the panel comes to the front, so
// the heading follows once the event that switched the stack has run.
QWidget* CaptionedPanel(int index, QVBoxLayout*& content) {
    auto* panel = kit::Panel(QString("fraOption(%1)").arg(index));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(18, 14, 18, 12);
    column->setSpacing(10);
    auto* heading = new QLabel;
    heading->setObjectName(QString("heading%1").arg(index));
    heading->setProperty("role", "panelHeading");
    column->addWidget(heading);
    auto* rule = new QFrame;
    rule->setObjectName(QString("rule%1").arg(index));
    rule->setProperty("role", "rule");
    rule->setFixedHeight(2);
    column->addWidget(rule);
    content = new QVBoxLayout;
    content->setSpacing(10);
    column->addLayout(content, 1);
    return panel;
}

// Keeps every panel heading at its panel's caption.
void FollowCaptions(Form& form, QStackedWidget* stack) {
    Application& app = form.App();
    const std::string name = form.Name();
    QPointer<QStackedWidget> guard(stack);
    auto sync = [&app, name, guard] {
        if (!guard)
            return;
        for (int i = 0; i < guard->count(); ++i) {
            auto* heading = guard->findChild<QLabel*>(QString("heading%1").arg(i));
            auto* rule = guard->findChild<QFrame*>(QString("rule%1").arg(i));
            if (!heading || !rule)
                continue;
            const QString caption = CaptionOf(app, name, "fraOption(" + std::to_string(i) + ")");
            heading->setText(caption);
            heading->setVisible(!caption.isEmpty());
            rule->setVisible(!caption.isEmpty());
        }
    };
    QObject::connect(stack, &QStackedWidget::currentChanged, stack, sync, Qt::QueuedConnection);
    sync();
}

QHBoxLayout* ButtonRow(std::initializer_list<QWidget*> left,
                       std::initializer_list<QWidget*> right) {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (QWidget* w : left)
        row->addWidget(w);
    row->addStretch();
    for (QWidget* w : right)
        row->addWidget(w);
    return row;
}

QPushButton* Primary(const QString& path) {
    auto* button = kit::Button(path);
    button->setProperty("role", "primary");
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QLabel* Text(const QString& path, const char* role) {
    auto* label = kit::Label(path);
    label->setProperty("role", role);
    return label;
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
    auto* choices = new QVBoxLayout;
    choices->setContentsMargins(24, 4, 0, 4);
    choices->addWidget(kit::Option("optMain(0)"));
    choices->addWidget(kit::Option("optMain(1)"));
    c->addLayout(choices);
    c->addStretch();
    c->addLayout(ButtonRow({}, {Primary("cmdNext")}));
    return panel;
}

QWidget* OptionsPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(1, c);
    c->addWidget(Text("lblCaption(4)", "prompt"));
    auto* choices = new QVBoxLayout;
    choices->setContentsMargins(24, 4, 0, 4);
    choices->addWidget(kit::Option("optOption(0)"));
    choices->addWidget(kit::Option("optOption(1)"));
    c->addLayout(choices);
    c->addStretch();
    c->addLayout(ButtonRow({kit::Button("cmdBack2")}, {Primary("cmdNext2")}));
    return panel;
}

// The study text. The calculation charts are laid out with blanks for a
// fixed pitch, so the whole text is set in a monospaced face.
QWidget* StudyPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(2, c);
    c->addWidget(kit::Label("lblLearnSubject"));
    auto* text = kit::RichText("RTBLearn");
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
        auto* option = kit::Option(QString("optChoice(%1)").arg(i));
        option->setCursor(Qt::PointingHandCursor);
        auto* text = kit::TextBox(QString("txtOption(%1)").arg(i));
        text->setReadOnly(true);
        text->setFixedHeight(68);
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
    auto* bar = new QWidget;
    bar->setObjectName("questionBar");
    bar->setAttribute(Qt::WA_StyledBackground);
    auto* barRow = new QHBoxLayout(bar);
    barRow->setContentsMargins(12, 8, 12, 8);
    barRow->setSpacing(16);
    barRow->addWidget(kit::Label("lblQuestionNo", false));
    barRow->addWidget(kit::Label("lblSubjectName"), 1);
    barRow->addWidget(Primary("cmdNextQuestion"));
    c->addWidget(bar);
    return panel;
}

QWidget* ResultPanel() {
    QVBoxLayout* c = nullptr;
    QWidget* panel = CaptionedPanel(5, c);
    auto* report = kit::RichText("RTBTestResult");
    QFont font = report->font();
    font.setPointSizeF(10);
    report->document()->setDefaultFont(font);
    c->addWidget(report, 1);
    c->addLayout(ButtonRow({kit::Button("cmdPrint")}, {Primary("cmdGoToMain")}));
    return panel;
}

// The link labels below the panels wrap; the window is sized before they
// get their texts, so their height is reserved here from the form's captions,
// and they no longer ride over the bottom of the panels.
void KeepLinksInView(Form& form, QWidget* window, int width) {
    auto* links = window->findChild<QFrame*>("fraFullBrand");
    if (!links)
        return;
    window->ensurePolished();
    for (auto* label : links->findChildren<QLabel*>()) {
        label->ensurePolished();
        if (Control* c = form.Find(label->objectName().toStdString()))
            label->setText(Binder::LabelText(c->Caption()));
    }
    if (links->layout())
        links->setMinimumHeight(links->layout()->totalHeightForWidth(width));
}

} // namespace

QWidget* BuildNumerologyWindow(Form& form) {
    auto* body = new QWidget;
    body->setObjectName("numerologyBody");
    body->setAttribute(Qt::WA_StyledBackground);
    body->setStyleSheet(kStyle);
    body->setMinimumSize(880, 560);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    auto* stack = kit::Stack({StartPanel(), OptionsPanel(), StudyPanel(), SubjectPanel(),
                              QuestionPanel(form), ResultPanel()});
    stack->setObjectName("numerologyPanels");
    column->addWidget(stack);
    FollowCaptions(form, stack);
    QWidget* window = BuildSubjectShell(form, body);
    KeepLinksInView(form, window, body->minimumWidth());
    return window;
}

} // namespace quillane::ui
