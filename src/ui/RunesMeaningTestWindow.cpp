// The meaning test dialog: the stone on the left, the framed choices (long
// paragraphs, wrapped) in a scrolling column on the right.
#include "WindowKit.h"
#include "Windows.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

namespace quillane::ui {

using namespace kit;

namespace {

const char* const kStyle = R"(
QWidget#frmLearnRunesMeaningTest { background: #f4f0e6; }
QLabel#lblMeaningTestQuestion { font-size: 13pt; font-weight: 600; color: #3b3a52; }
QLabel#lblMeaningTestCaption { font-weight: 600; color: #3b3a52; }
QLabel#lblMeaningTestStoneName { font-size: 16pt; font-weight: 600; color: #3b3a52; }
QLabel#picMeaningTest { background: #e8e2d2; border: 1px solid #c8c2b0; }
QFrame[role="choice"] { background: #fbf9f3; border: 1px solid #c8c2b0; border-radius: 4px; }
QScrollArea, QWidget#choices { background: transparent; }
)";

// A check box whose caption is a paragraph: the text wraps under itself
// beside the box, and the whole area takes the click.
class WrapCheck : public QCheckBox {
public:
    explicit WrapCheck(const QString& path) {
        setObjectName(path);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override {
        const QRect text = fontMetrics().boundingRect(QRect(0, 0, TextWidth(width), 100000),
                                                      Qt::TextWordWrap, text_());
        return std::max(text.height(), Indicator().height()) + 4;
    }
    QSize sizeHint() const override { return {420, heightForWidth(420)}; }
    // The height follows the width the layout gives.
    QSize minimumSizeHint() const override { return {200, Indicator().height() + 4}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        option.rect = QRect(QPoint(0, 2), Indicator());
        painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                       QPalette::WindowText));
        painter.drawText(QRect(TextLeft(), 2, TextWidth(width()), height() - 2),
                         Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, text_());
    }
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }

private:
    QString text_() const { return text(); }
    QSize Indicator() const {
        return {style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this)};
    }
    int TextLeft() const {
        return Indicator().width() +
               style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this) + 2;
    }
    int TextWidth(int width) const { return std::max(40, width - TextLeft()); }
};

} // namespace

QWidget* BuildRunesMeaningTestWindow(Form& form) {
    auto* window = new QWidget;
    window->setObjectName(QString::fromStdString(form.Name()));
    window->setAttribute(Qt::WA_StyledBackground);
    window->setStyleSheet(kStyle);
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(16, 14, 16, 12);
    column->addWidget(Label("lblMeaningTestQuestion"));
    column->addWidget(Label("lblMeaningTestCaption"));

    auto* row = new QHBoxLayout;
    auto* stone = new QVBoxLayout;
    stone->addWidget(Label("lblMeaningTestStoneName"), 0, Qt::AlignHCenter);
    stone->addWidget(Picture("picMeaningTest", QSize(113, 151)), 0, Qt::AlignHCenter);
    stone->addStretch();
    row->addLayout(stone);
    row->addSpacing(16);

    auto* choices = new QWidget;
    choices->setObjectName("choices");
    auto* list = new QVBoxLayout(choices);
    list->setContentsMargins(0, 0, 6, 0);
    for (int i = 0; i <= 7; ++i) {
        auto* frame = new QFrame;
        frame->setObjectName(QString("shaMeaning(%1)").arg(i));
        frame->setProperty("role", "choice");
        auto* inside = new QVBoxLayout(frame);
        inside->setContentsMargins(8, 6, 8, 6);
        inside->addWidget(new WrapCheck(QString("chkMeaning(%1)").arg(i)));
        list->addWidget(frame);
    }
    list->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(choices);
    row->addWidget(scroll, 1);
    column->addLayout(row, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Button("cmdNextQuestion1"));
    column->addLayout(buttons);
    window->setMinimumSize(820, 600);
    return window;
}

} // namespace quillane::ui
