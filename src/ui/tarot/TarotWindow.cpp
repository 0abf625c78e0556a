// The Tarot window: five tabs, the links below them and the exit button.
#include "TarotWindows.h"
#include "ui/kit/WindowKit.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLineEdit>
#include <QLocale>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QTreeWidget>

namespace quillane::ui {

namespace {

using namespace kit;

// The size of a card's picture on the screen: the deck's proportions.
constexpr QSize kCardSize(132, 228);

QWidget* Page(TabPages* tabs, QVBoxLayout*& column) {
    QWidget* page = tabs->NewPage();
    column = new QVBoxLayout(page);
    column->setContentsMargins(12, 8, 12, 8);
    column->setSpacing(6);
    return page;
}

// The date picker: day, month and year side by side, at a fixed size that
// shows the longest of each list (a month's name in the user's language)
// whole, although the program fills the lists only later.
QWidget* DatePicker(const QString& path, QWidget* in) {
    auto* picker = Panel(path, in);
    auto* row = new QHBoxLayout(picker);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    const QString which = path.contains("Starting") ? "Starting" : "Ending";
    QStringList months;
    for (int month = 1; month <= 12; ++month)
        months << QLocale::system().standaloneMonthName(month);
    struct Part {
        const char* list;
        const char* name;
        QStringList longest;
    };
    for (const Part& part : {Part{"cboDate", " day", {"00"}}, Part{"cboMonth", " month", months},
                             Part{"cboYear", " year", {"0000"}}}) {
        auto* combo = DropDown(part.list, picker);
        combo->setAccessibleName(which + part.name);
        combo->setMaxVisibleItems(12);
        QSize text;
        for (const QString& entry : part.longest)
            text = text.expandedTo(combo->fontMetrics().size(Qt::TextSingleLine, entry));
        // The style adds the frame, the padding and the arrow.
        QStyleOptionComboBox option;
        option.initFrom(combo);
        combo->setMinimumWidth(
            combo->style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, combo).width());
        row->addWidget(combo, part.longest.size() > 1 ? 2 : 1);
    }
    picker->setFixedWidth(std::max(260, picker->minimumSizeHint().width()));
    return picker;
}

// The goals in a list on the left, the goal in view on the right.
QWidget* GoalsPage(TabPages* tabs) {
    QVBoxLayout* column = nullptr;
    QWidget* page = Page(tabs, column);
    // Two lines at the window's width; the tab reserves them.
    auto* intro = Label("Label10", "hint");
    intro->setMinimumHeight(2 * intro->fontMetrics().lineSpacing() + 6);
    column->addWidget(intro);
    auto* row = new QHBoxLayout;
    row->setSpacing(14);

    auto* list = new QVBoxLayout;
    list->setSpacing(6);
    auto* views = new QStackedWidget(page);
    for (int i = 1; i >= 0; --i) {
        auto* view = Button(Path("optGoals", i));
        view->setCheckable(true);
        views->addWidget(view);
    }
    views->setFixedHeight(views->sizeHint().height());
    list->addWidget(views);
    auto* goals = Named(new QTreeWidget(page), "ListView1");
    goals->setAccessibleName("Goals");
    goals->setMinimumWidth(220);
    goals->setMinimumHeight(100);
    list->addWidget(goals, 1);
    list->addWidget(Button("cmdNewGoal"));
    list->addWidget(Button("cmdMarkAchived"));
    list->addWidget(Button("cmdDeleteGoals"));
    row->addLayout(list, 2);

    auto* goal = new QGridLayout;
    goal->setVerticalSpacing(6);
    goal->addWidget(Label("Label15", "caption"), 0, 0);
    auto* name = Named(new QLineEdit, "txtGoalName");
    name->setAccessibleName("Name of goal");
    goal->addWidget(name, 0, 1, 1, 3);
    goal->addWidget(Label("Label16", "caption"), 1, 0, Qt::AlignTop);
    auto* description = TextBox("txtGoalDesc", false, page);
    description->setAccessibleName("Description of goal");
    description->setMaximumHeight(90);
    goal->addWidget(description, 1, 1, 1, 3);
    goal->addWidget(Label("Label12", "caption"), 2, 0);
    goal->addWidget(DatePicker("mydtpStartingDate", page), 2, 1);
    goal->addWidget(Label("Label11", "caption"), 3, 0);
    goal->addWidget(DatePicker("mydtpEndingDate", page), 3, 1);
    auto* timer = Frame("Frame3", page);
    auto* figures = new QGridLayout(timer);
    figures->addWidget(Label("Label7"), 0, 0);
    figures->addWidget(Label("lblDayCount", "caption", false), 0, 1);
    figures->addWidget(Label("Label1"), 1, 0);
    figures->addWidget(Label("lblDaysRemaining", "caption", false), 1, 1);
    figures->addWidget(Label("Label13"), 2, 0);
    auto* percent = DropDown("Combo3", timer);
    percent->setAccessibleName("Achieved percentage of goal");
    figures->addWidget(percent, 2, 1);
    figures->setColumnStretch(0, 1);
    goal->addWidget(timer, 2, 2, 2, 2);
    goal->addWidget(Label("lblInfo", "caption", false), 4, 0, 1, 3);
    goal->addWidget(Button("cmdSaveGoals", true), 4, 3, Qt::AlignRight);
    goal->setColumnStretch(3, 1);
    goal->setRowStretch(5, 1);
    row->addLayout(goal, 5);
    column->addLayout(row, 1);
    return page;
}

// Four columns: each choice in its frame, its help text below it.
QWidget* SettingsPage(TabPages* tabs) {
    QVBoxLayout* column = nullptr;
    QWidget* page = Page(tabs, column);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto addColumn = [row](QWidget* frame, std::initializer_list<const char*> help) {
        auto* stack = new QVBoxLayout;
        stack->addWidget(frame);
        for (const char* label : help)
            stack->addWidget(Label(label, "hint"));
        stack->addStretch();
        row->addLayout(stack, 1);
    };

    auto* objectives = Frame("Frame4");
    auto* ticks = new QGridLayout(objectives);
    ticks->setVerticalSpacing(2);
    ticks->addWidget(Check("chkMajor"), 0, 0, 1, 2);
    ticks->addWidget(Check("chkMinor"), 1, 0, 1, 2);
    for (int i = 0; i <= 3; ++i)
        ticks->addWidget(Check(Path("chkGroup", i)), 2 + i, 1);
    ticks->setColumnMinimumWidth(0, 18);
    ticks->addWidget(Check("chkReversed"), 6, 0, 1, 2);
    addColumn(objectives, {"Label18", "Label21"});

    auto* level = Frame("Frame1");
    auto* levels = new QVBoxLayout(level);
    for (int i = 0; i <= 2; ++i)
        levels->addWidget(Option(Path("optDifficulty", i)));
    addColumn(level, {"Label19"});

    auto* type = Frame("Frame2");
    auto* types = new QVBoxLayout(type);
    for (int i = 0; i <= 1; ++i)
        types->addWidget(Option(Path("optTestType", i)));
    addColumn(type, {"Label20"});

    auto* startUp = Frame("fraSystemTray");
    auto* choices = new QVBoxLayout(startUp);
    choices->addWidget(Option("optRun"));
    choices->addWidget(Option("optDontRun"));
    choices->addWidget(Check("chkSysTray"));
    addColumn(startUp, {"Label14"});

    column->addLayout(row, 1);
    column->addLayout(ButtonRow({Button("cmdSaveSettings")},
                                {Button("cmdSetOption"), Button("cmdStartTest2", true)}));
    return page;
}

QWidget* MemorizePage(TabPages* tabs) {
    QVBoxLayout* column = nullptr;
    QWidget* page = Page(tabs, column);
    column->addWidget(Label("lblCardNameMemorize", "heading"));
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    row->addWidget(Picture("picCardMemorize", kCardSize, "stone"), 0, Qt::AlignTop);
    row->addWidget(Picture("picCardMemorizeReversed", kCardSize, "stone"), 0, Qt::AlignTop);
    auto* texts = new QGridLayout;
    texts->setVerticalSpacing(4);
    auto labelled = [texts](const char* label, QWidget* box, int row, int col, int span) {
        auto* caption = Label(label, "caption");
        caption->setBuddy(box);
        texts->addWidget(caption, row, col, 1, span);
        texts->addWidget(box, row + 1, col, 1, span);
    };
    labelled("Label9", TextBox("txtNormalMeaning", true, page), 0, 0, 1);
    labelled("Label17", TextBox("txtReverseMeaning", true, page), 0, 1, 1);
    auto* keywords = TextBox("txtKeywords", true, page);
    keywords->setFixedHeight(52);
    labelled("Label8", keywords, 2, 0, 2);
    row->addLayout(texts, 1);
    column->addLayout(row, 1);
    column->addLayout(
        ButtonRow({Button("cmdPrevious"), Button("cmdNext")}, {Button("cmdStartTest", true)}));
    return page;
}

// The meanings to choose from: long paragraphs, each in its frame, scrolling.
QWidget* DescriptionChoices(QWidget* in) {
    auto* container = Panel("picDescContainer", in);
    auto* outer = new QVBoxLayout(container);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* list = new QWidget;
    auto* choices = new QVBoxLayout(list);
    choices->setContentsMargins(0, 0, 6, 0);
    for (int i = 0; i <= 6; ++i) {
        auto* shape = Role(new QFrame, "choice");
        shape->setObjectName(Path("Shape1", i));
        auto* inside = new QVBoxLayout(shape);
        inside->setContentsMargins(8, 5, 8, 5);
        inside->addWidget(NamedByContent(new WrapOption(Path("optAnswer", i))));
        choices->addWidget(shape);
    }
    choices->addStretch();
    auto* scroll = new QScrollArea(container);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(list);
    outer->addWidget(scroll);
    return container;
}

// Up to twenty keywords in four columns of five.
QWidget* KeywordChoices(QWidget* in) {
    auto* container = Panel("picKeywodContainer", in);
    auto* column = new QVBoxLayout(container);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(Label("lblMaxKeyword", "prompt"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(10);
    for (int i = 0; i <= 19; ++i)
        grid->addWidget(NamedByContent(Check(Path("chkKeywords", i))), i % 5, i / 5);
    column->addLayout(grid);
    column->addStretch();
    return container;
}

QWidget* TestPage(TabPages* tabs) {
    QVBoxLayout* column = nullptr;
    QWidget* page = Page(tabs, column);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    auto* card = new QVBoxLayout;
    card->addWidget(Label("lblCardName", "caption"));
    card->addWidget(Picture("picResult", kCardSize, "stone"), 0, Qt::AlignHCenter);
    card->addWidget(Label("lblIsReversed", "prompt"));
    card->addStretch();
    auto* log = TextBox("Text1", true, page);
    log->setAccessibleName("Cards drawn");
    log->hide();
    card->addWidget(log);
    row->addLayout(card);
    column->addLayout(row, 1);
    Stack(row, {DescriptionChoices, KeywordChoices}, 1);
    column->addLayout(
        ButtonRow({Label("lblQCount", "caption", false), Label("llblQCount", nullptr, false)},
                  {Button("cmdNextQuestion", true)}));
    return page;
}

QWidget* ResultsPage(TabPages* tabs) {
    QVBoxLayout* column = nullptr;
    QWidget* page = Page(tabs, column);
    column->addWidget(Label("lblResultInfo", "caption"));
    auto* report = TextBox("txtResult", false, page);
    report->setAccessibleName("Test report");
    // The report's columns line up only in a fixed-pitch font.
    report->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    report->setLineWrapMode(QPlainTextEdit::NoWrap);
    column->addWidget(report, 1);
    column->addLayout(ButtonRow({}, {Button("Command5", true)}));
    return page;
}

QWidget* BuildTarotWindow(Form& form, QWidget* frame) {
    auto* body = new QWidget;
    body->setObjectName("tarotBody");
    body->setMinimumSize(960, 430);
    QWidget* window = SubjectShell(form, frame, body, "tarot", "Label6");
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    // The invisible control that the tray's messages were once addressed to.
    auto* hook = Picture("picHook", QSize(1, 1));
    hook->hide();
    column->addWidget(hook);
    auto* tabs = new TabPages("SSTab1");
    column->addWidget(tabs);
    for (auto* page : {GoalsPage, SettingsPage, MemorizePage, TestPage, ResultsPage})
        tabs->addTab(page(tabs), QString());
    return window;
}

} // namespace

void RegisterTarotWindows(FormHost& host) {
    host.RegisterWindow("frmLearnTarotMain", BuildTarotWindow);
}

} // namespace quillane::ui
