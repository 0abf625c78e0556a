// The meaning test dialog: the stone on the left, the framed choices (long
// paragraphs, wrapped) in a scrolling column on the right.
#include "RunesWindows.h"
#include "ui/kit/Theme.h"
#include "ui/kit/WindowKit.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

namespace quillane::ui {

using namespace kit;

QWidget* BuildRunesMeaningTestWindow(Form& form) {
    auto* window = new QWidget;
    window->setObjectName(QString::fromStdString(form.Name()));
    theme::SetSubject(window, "runes");
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(16, 14, 16, 12);
    column->addWidget(Label("lblMeaningTestQuestion", "heading"));
    column->addWidget(Label("lblMeaningTestCaption", "caption"));

    auto* row = new QHBoxLayout;
    auto* stone = new QVBoxLayout;
    stone->addWidget(Label("lblMeaningTestStoneName", "title"), 0, Qt::AlignHCenter);
    stone->addWidget(Picture("picMeaningTest", QSize(113, 151), "stone"), 0, Qt::AlignHCenter);
    stone->addStretch();
    row->addLayout(stone);
    row->addSpacing(16);

    auto* choices = new QWidget;
    choices->setObjectName("choices");
    choices->setAutoFillBackground(false);
    auto* list = new QVBoxLayout(choices);
    list->setContentsMargins(0, 0, 6, 0);
    for (int i = 0; i <= 7; ++i) {
        auto* frame = new QFrame;
        frame->setObjectName(QString("shaMeaning(%1)").arg(i));
        frame->setProperty("role", "choice");
        auto* inside = new QVBoxLayout(frame);
        inside->setContentsMargins(8, 6, 8, 6);
        inside->addWidget(NamedByContent(new WrapCheck(QString("chkMeaning(%1)").arg(i))));
        list->addWidget(frame);
    }
    list->addStretch();
    auto* scroll = Role(new QScrollArea, "plain");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(choices);
    row->addWidget(scroll, 1);
    column->addLayout(row, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Button("cmdNextQuestion1", true));
    column->addLayout(buttons);
    window->setMinimumSize(820, 480);
    return window;
}

} // namespace quillane::ui
