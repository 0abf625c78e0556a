#include "AstrologyWindows.h"
#include "ui/binding/ClickForwarder.h"
#include "ui/binding/Pictures.h"
#include "ui/kit/WindowKit.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

namespace quillane::ui {

namespace {

using namespace kit;

QLabel* Text(const QString& path, const char* role) {
    auto* label = Label(path, role);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* Command(const QString& path, bool primary = false) {
    return Button(path, primary);
}

// The main and sub heading of a run, with a rule below them.
QVBoxLayout* Headings(QWidget* panel, const QString& mainPath, const QString& subPath) {
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(22, 12, 22, 12);
    column->setSpacing(2);
    column->addWidget(Text(mainPath, "heading"));
    column->addWidget(Text(subPath, "sub"));
    column->addSpacing(6);
    column->addWidget(Rule());
    column->addSpacing(10);
    return column;
}

// The twelve sign glyphs in a row: a quiet decoration of the choice panel.
QWidget* ZodiacStrip() {
    auto* strip = new QWidget;
    strip->setObjectName("zodiacStrip");
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    row->addStretch(1);
    const QSize size(34, 34);
    for (int sign = 0; sign < 12; ++sign) {
        auto* glyph = new QLabel;
        glyph->setFixedSize(size);
        glyph->setPixmap(RenderSvg(QString(":/astrology/sign-%1.svg").arg(sign), size,
                                   glyph->devicePixelRatioF()));
        row->addWidget(glyph);
    }
    row->addStretch(1);
    return strip;
}

QWidget* ChoicePanel(QWidget* in) {
    auto* panel = Panel("Frame1", in);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(30, 20, 30, 16);
    column->setSpacing(10);
    column->addWidget(Text("Label1(0)", "heading"));
    column->addWidget(Text("Label1(1)", "intro"));
    column->addSpacing(8);
    column->addWidget(Text("Label1(2)", "hint"));

    // The lists are made where they stand: one moved into the window builds
    // its pop-up at once.
    auto* card = new QFrame(panel);
    card->setProperty("role", "card");
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(22, 18, 22, 18);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(16);
    const char* const rows[2][3] = {{"optOption(0)", "cboLearnOptionMain", "cboLearnOptionSub"},
                                    {"optOption(1)", "cboTestOptionMain", "cboTestOptionSub"}};
    for (int r = 0; r < 2; ++r) {
        auto* option = Option(rows[r][0]);
        option->setMinimumWidth(140);
        grid->addWidget(option, r, 0);
        auto* main = DropDown(rows[r][1], card);
        main->setAccessibleName(r == 0 ? "What to learn" : "What to be tested on");
        main->setMinimumWidth(190);
        grid->addWidget(main, r, 1);
        auto* sub = DropDown(rows[r][2], card);
        sub->setAccessibleName(r == 0 ? "Which part to learn" : "Which part to be tested on");
        sub->setMinimumWidth(250);
        sub->setMaxVisibleItems(16);
        grid->addWidget(sub, r, 2);
    }
    grid->setColumnStretch(3, 1);
    column->addWidget(card);
    column->addStretch(1);
    column->addWidget(ZodiacStrip());
    column->addStretch(1);

    column->addLayout(ButtonRow({}, {Command("cmdNext", true)}));
    return panel;
}

QWidget* BrowsingPanel(QWidget* in) {
    auto* panel = Panel("Frame2", in);
    auto* column = Headings(panel, "lblLabel(0)", "lblLabel(1)");

    auto* record = new QHBoxLayout;
    record->setSpacing(20);
    auto* glyph = Picture("picAstro", QSize(112, 112));
    glyph->setProperty("role", "glyph");
    record->addWidget(glyph, 0, Qt::AlignTop);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(10);
    texts->addWidget(Text("lblLabel(2)", "title"));
    // The record's value can be a long paragraph: it wraps and scrolls.
    auto* value = Text("lblLabel(3)", "value");
    value->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setContentsMargins(14, 12, 14, 12);
    auto* scroll = new QScrollArea;
    scroll->setProperty("role", "card");
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(value);
    texts->addWidget(scroll, 1);
    record->addLayout(texts, 1);
    column->addLayout(record, 1);

    column->addSpacing(8);
    column->addLayout(ButtonRow({Command("cmdBackToMain(0)")},
                                {Command("cmdBackDesc"), Command("cmdNextDesc", true)}));
    return panel;
}

QWidget* QuestionPanel(Form& form, QWidget* in) {
    auto* panel = Panel("Frame3", in);
    auto* column = Headings(panel, "lblTest(0)", "lblTest(1)");

    // The sign or planet asked on the left, the five choices beside it.
    auto* question = new QHBoxLayout;
    question->setSpacing(18);
    auto* asked = new QVBoxLayout;
    auto* glyph = Picture("picTest", QSize(96, 96));
    glyph->setProperty("role", "glyph");
    asked->addWidget(glyph, 0, Qt::AlignHCenter);
    asked->addWidget(Text("lblTest(2)", "title"));
    asked->addWidget(Text("lblTest(3)", "hint"));
    asked->addStretch(1);
    auto* left = new QWidget;
    left->setFixedWidth(170);
    left->setLayout(asked);
    question->addWidget(left);

    auto* choices = new QGridLayout;
    choices->setHorizontalSpacing(10);
    choices->setVerticalSpacing(6);
    for (int c = 0; c <= 4; ++c) {
        choices->addWidget(
            NamedByContent(new kit::BareOption(QString("optAnswer_Choice(%1)").arg(c))), c, 0,
            Qt::AlignTop);
        const QString path = QString("txtAnswer_Choice(%1)").arg(c);
        auto* box = TextBox(path, true);
        box->setFixedHeight(50);
        box->setAccessibleName(QString("Choice %1").arg(c + 1));
        box->viewport()->setCursor(Qt::PointingHandCursor);
        box->viewport()->installEventFilter(new ClickForwarder(form, path.toStdString(), box));
        choices->addWidget(box, c, 1);
    }
    question->addLayout(choices, 1);
    column->addLayout(question, 1);
    column->addSpacing(8);

    column->addLayout(ButtonRow({}, {Command("cmdNextQuestion", true)}));
    return panel;
}

QWidget* ReportPanel(QWidget* in) {
    auto* panel = Panel("Frame4", in);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(22, 18, 22, 16);
    column->setSpacing(12);
    auto* report = RichText("RTB");
    report->setAccessibleName("Test report");
    report->document()->setDocumentMargin(12);
    column->addWidget(report, 1);
    column->addLayout(ButtonRow({}, {Command("cmdBackToMain(1)", true)}));
    return panel;
}

} // namespace

QWidget* BuildAstrologyWindow(Form& form, QWidget* frame) {
    auto* body = new QWidget;
    body->setObjectName("astrologyBody");
    // Long texts scroll inside the window, which fits a 1366 by 768 screen.
    body->setMinimumSize(900, 430);
    QWidget* window = SubjectShell(form, frame, body, "astrology", "Label61");
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    Stack(layout, {ChoicePanel, BrowsingPanel,
                   [&form](QWidget* in) { return QuestionPanel(form, in); }, ReportPanel});
    return window;
}

void RegisterAstrologyWindows(FormHost& host) {
    host.RegisterWindow("frmLearnAstrologyMain", BuildAstrologyWindow);
}

} // namespace quillane::ui
