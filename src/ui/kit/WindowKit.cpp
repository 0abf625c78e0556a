#include "WindowKit.h"

#include "Theme.h"
#include "WrappedHeights.h"

#include <QFrame>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <type_traits>

namespace quillane::ui::kit {

QLabel* Label(const QString& path, const char* role, bool wrap) {
    auto* label = Named(wrap ? new WrappedLabel : new QLabel, path);
    label->setWordWrap(wrap);
    if (role)
        Role(label, role);
    return label;
}

QLabel* Link(const QString& path) {
    auto* label = Label(path, "link");
    label->setCursor(Qt::PointingHandCursor);
    return label;
}

QPushButton* Button(const QString& path, bool primary) {
    auto* button = Named(new QPushButton, path);
    if (primary)
        Role(button, "primary");
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QCheckBox* Check(const QString& path) {
    return Named(new QCheckBox, path);
}

QRadioButton* Option(const QString& path) {
    auto* option = Named(new QRadioButton, path);
    option->setCursor(Qt::PointingHandCursor);
    return option;
}

QComboBox* DropDown(const QString& path, QWidget* in) {
    return Named(new QComboBox(in), path);
}

namespace {

// Fills a widget's background before the style sheet paints it. A styled
// background leaves a widget see-through to Qt, so any change inside it made
// Qt paint every widget beneath, up to the window, first. The style sheet
// turns the fill off as it polishes the widget; it is turned on after.
template <class W> class Opaque : public W {
public:
    using W::W;

protected:
    bool event(QEvent* event) override {
        const bool done = W::event(event);
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange) {
            if constexpr (std::is_base_of_v<QAbstractScrollArea, W>)
                this->viewport()->setAutoFillBackground(true);
            else
                this->setAutoFillBackground(true);
        }
        return done;
    }
};

} // namespace

QPlainTextEdit* TextBox(const QString& path, bool readOnly, QWidget* in) {
    auto* box = Named(new Opaque<QPlainTextEdit>(in), path);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Tab goes on to the next control, as from any other; it types nothing.
    box->setTabChangesFocus(true);
    // The scroll bar fills its own groove (FlatScrollBars), so a step that
    // changes its range does not repaint the box's frame beneath it.
    box->verticalScrollBar()->setAttribute(Qt::WA_OpaquePaintEvent);
    box->setReadOnly(readOnly);
    return box;
}

QTextEdit* RichText(const QString& path) {
    auto* view = Named(new QTextEdit, path);
    view->setReadOnly(true);
    return view;
}

QLabel* Picture(const QString& path, QSize size, const char* role) {
    auto* label = Named(new QLabel, path);
    label->setFixedSize(size);
    label->setAlignment(Qt::AlignCenter);
    if (role)
        Role(label, role);
    return label;
}

QWidget* Panel(const QString& path, QWidget* in) {
    return Named(new Opaque<QWidget>(in), path);
}

QGroupBox* Frame(const QString& path, QWidget* in) {
    return Named(new QGroupBox(in), path);
}

QStackedWidget* Stack(QBoxLayout* place, std::initializer_list<QWidget*> panels, int stretch) {
    auto* stack = new QStackedWidget;
    place->addWidget(stack, stretch);
    for (QWidget* panel : panels)
        stack->addWidget(panel);
    return stack;
}

QStackedWidget* Stack(QBoxLayout* place, std::initializer_list<PanelMaker> panels, int stretch) {
    QStackedWidget* stack = Stack(place, std::initializer_list<QWidget*>{}, stretch);
    for (const PanelMaker& make : panels)
        stack->addWidget(make(stack));
    return stack;
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

QFrame* Rule() {
    auto* rule = Role(new QFrame, "rule");
    rule->setFixedHeight(2);
    return rule;
}

CaptionedPanel::CaptionedPanel(const QString& path) {
    setObjectName(path);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 14, 18, 12);
    column->setSpacing(10);
    heading_ = Label(path + ".heading", "heading");
    column->addWidget(heading_);
    rule_ = Rule();
    column->addWidget(rule_);
    content_ = new QVBoxLayout;
    content_->setSpacing(10);
    column->addLayout(content_, 1);
    SetCaption({});
}

void CaptionedPanel::SetCaption(const QString& caption) {
    heading_->setText(caption);
    heading_->setVisible(!caption.isEmpty());
    rule_->setVisible(!caption.isEmpty());
}

BareOption::BareOption(const QString& path) {
    setObjectName(path);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int w = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option, this);
    const int h = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, this);
    setFixedSize(w + 6, h + 6);
    setCursor(Qt::PointingHandCursor);
}

void BareOption::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.rect = rect().adjusted(3, 3, -3, -3);
    painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, option);
}

namespace {
template <class Button> constexpr bool kIsCheck = std::is_same_v<Button, QCheckBox>;
} // namespace

TabPages::TabPages(const QString& path) {
    setObjectName(path);
}

QStackedWidget* TabPages::Pages() const {
    return findChild<QStackedWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget* TabPages::NewPage() {
    return Panel(QString(), Pages());
}

TabPages::Layout TabPages::Current() const {
    const QStackedWidget* pages = Pages();
    return {size(), tabBar()->sizeHint(), pages->sizeHint(), pages->minimumSizeHint()};
}

bool TabPages::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        // The same sizes give the same places: nothing to lay out or repaint.
        const Layout now = Current();
        if (now == laidOut_ && isVisible())
            return true;
        laidOut_ = now;
    }
    return QTabWidget::event(event);
}

template <class Button> Wrapping<Button>::Wrapping(const QString& path) {
    this->setObjectName(path);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    this->setSizePolicy(policy);
}

template <class Button> QSize Wrapping<Button>::Indicator() const {
    QStyle* style = this->style();
    if constexpr (kIsCheck<Button>)
        return {style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                style->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this)};
    else
        return {style->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this),
                style->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this)};
}

template <class Button> int Wrapping<Button>::TextLeft() const {
    const auto spacing =
        kIsCheck<Button> ? QStyle::PM_CheckBoxLabelSpacing : QStyle::PM_RadioButtonLabelSpacing;
    return Indicator().width() + this->style()->pixelMetric(spacing, nullptr, this) + 2;
}

template <class Button> int Wrapping<Button>::heightForWidth(int width) const {
    const int indicator = Indicator().height();
    return heights_.At(width, this->text(), this->font(), {indicator, TextLeft()},
                       [this, indicator](int w) {
                           const QRect text = this->fontMetrics().boundingRect(
                               QRect(0, 0, TextWidth(w), 100000), Qt::TextWordWrap, this->text());
                           return std::max(text.height(), indicator) + 4;
                       });
}

template <class Button> void Wrapping<Button>::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    option.rect = QRect(QPoint(0, 2), Indicator());
    painter.drawPrimitive(
        kIsCheck<Button> ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton, option);
    painter.setPen(this->palette().color(this->isEnabled() ? QPalette::Active : QPalette::Disabled,
                                         QPalette::WindowText));
    painter.drawText(QRect(TextLeft(), 2, TextWidth(this->width()), this->height() - 2),
                     Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, this->text());
    if (this->hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

template class Wrapping<QCheckBox>;
template class Wrapping<QRadioButton>;

QWidget* SubjectShell(Form& form, QWidget* frame, QWidget* body, const char* subject,
                      const char* forumLabel) {
    auto* window = new QWidget(frame);
    window->setObjectName(QString::fromStdString(form.Name()));
    theme::SetSubject(window, subject);
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(14, 14, 14, 10);
    column->addWidget(body, 1);

    // The links that stand below the panels in every state, the exit button
    // beside them.
    auto* links = new QFrame;
    links->setObjectName("fraFullBrand");
    auto* linkColumn = new QVBoxLayout(links);
    linkColumn->setContentsMargins(0, 8, 0, 0);
    for (const char* link : {"lblCobrand", "lblFullBrand", forumLabel})
        linkColumn->addWidget(Link(link));
    // The foot stands in the window before its button is measured below.
    auto* foot = new QHBoxLayout;
    column->addLayout(foot);
    foot->addWidget(links, 1);
    int linkWidth = body->minimumWidth();
    if (form.Find("cmdNav(1)")) {
        QPushButton* exit = Button("cmdNav(1)");
        foot->addWidget(exit, 0, Qt::AlignBottom);
        linkWidth -= exit->sizeHint().width() + foot->spacing();
    }
    // The links wrap, and the window is sized before they get their texts:
    // their height at the narrowest width is reserved from the form's
    // captions, so they never ride over the panels.
    for (auto* label : links->findChildren<QLabel*>()) {
        label->ensurePolished();
        if (Control* c = form.Find(label->objectName().toStdString()))
            label->setText(LabelText(c->Caption()));
    }
    links->setMinimumHeight(linkColumn->totalHeightForWidth(linkWidth));
    return window;
}

} // namespace quillane::ui::kit
