#include "ShellWindows.h"
#include "ui/binding/Pictures.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QSvgRenderer>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillane::ui {

namespace {

// A panel that draws an SVG stretched over its whole area.
// Drawn once for each size the panel takes, not at every paint.
class SvgBackground : public QWidget {
public:
    SvgBackground(const QString& resource, QWidget* parent = nullptr)
        : QWidget(parent), resource_(resource) {}

protected:
    void paintEvent(QPaintEvent*) override {
        const qreal ratio = devicePixelRatioF();
        if (drawn_.size() != size() * ratio) {
            drawn_ = QPixmap(size() * ratio);
            drawn_.fill(Qt::transparent);
            QPainter onto(&drawn_);
            QSvgRenderer(resource_).render(&onto, QRectF(QPointF(0, 0), size() * ratio));
            drawn_.setDevicePixelRatio(ratio);
        }
        QPainter(this).drawPixmap(0, 0, drawn_);
    }

private:
    QString resource_;
    QPixmap drawn_;
};

// Hides the bar's decorations while the window is too narrow for them, so the
// subject buttons keep their room on a small screen.
class NarrowWindowTrim : public QObject {
public:
    NarrowWindowTrim(QWidget* window, QList<QWidget*> decorations, int wideEnough)
        : QObject(window), decorations_(std::move(decorations)), wideEnough_(wideEnough) {
        window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            const bool wide = static_cast<QWidget*>(watched)->width() >= wideEnough_;
            for (QWidget* decoration : decorations_)
                decoration->setVisible(wide);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QList<QWidget*> decorations_;
    int wideEnough_;
};

// Shows the client area exactly while the welcome panel is hidden.
class ClientAreaFollower : public QObject {
public:
    ClientAreaFollower(QWidget* clientArea, QObject* parent)
        : QObject(parent), clientArea_(clientArea) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!event->spontaneous() &&
            (event->type() == QEvent::Show || event->type() == QEvent::Hide))
            clientArea_->setVisible(event->type() == QEvent::Hide);
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* clientArea_;
};

// The launcher's bar follows the subject that is open: its button is marked
// as the current one. A subject window's caption names its subject as its
// button does ("Quillane Learn Tarot Software", "Learn Tarot"); the Runes
// meaning dialog belongs to the Runes.
// F6 and Shift+F6 move the keyboard between the open subject and the bar: to
// the open subject's button, and back to the control the subject window had.
class SubjectBar : public QObject {
public:
    SubjectBar(QMdiArea* mdi, QList<QToolButton*> buttons)
        : QObject(mdi), mdi_(mdi), buttons_(std::move(buttons)) {
        connect(mdi, &QMdiArea::subWindowActivated, this, &SubjectBar::MarkOpenSubject);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && mdi_->isAncestorOf(now))
                lastInSubject_ = now;
        });
    }

    void MarkOpenSubject() {
        const QMdiSubWindow* open = OpenChild();
        for (QToolButton* button : buttons_) {
            const bool current = open && open->windowTitle().contains(button->text());
            if (button->property("current").toBool() == current)
                continue;
            button->setProperty("current", current);
            button->style()->unpolish(button);
            button->style()->polish(button);
        }
    }

    void SwitchPane() {
        QMdiSubWindow* open = OpenChild();
        const QWidget* focus = QApplication::focusWidget();
        if (open && !(focus && open->isAncestorOf(focus))) {
            if (lastInSubject_ && open->isAncestorOf(lastInSubject_) && lastInSubject_->isVisible())
                lastInSubject_->setFocus(Qt::ShortcutFocusReason);
            else
                open->widget()->setFocus(Qt::ShortcutFocusReason);
            return;
        }
        QToolButton* target = buttons_.first();
        for (QToolButton* button : buttons_)
            if (button->property("current").toBool())
                target = button;
        target->setFocus(Qt::ShortcutFocusReason);
    }

private:
    QMdiSubWindow* OpenChild() const {
        for (QMdiSubWindow* child : mdi_->subWindowList())
            if (child->isVisible())
                return child;
        return nullptr;
    }

    QMdiArea* mdi_;
    QList<QToolButton*> buttons_;
    QPointer<QWidget> lastInSubject_;
};

QLabel* Picture(const QString& name, const QString& resource, QSize size) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setFixedSize(size);
    label->setPixmap(RenderSvg(resource, size, label->devicePixelRatioF()));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel* Label(const QString& name, const char* role) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setProperty("role", role);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

const char kInitials[4] = {'A', 'N', 'T', 'R'};

const char* const kEmblems[4] = {":/launcher/emblem-astrology.svg",
                                 ":/launcher/emblem-numerology.svg", ":/launcher/emblem-tarot.svg",
                                 ":/launcher/emblem-runes.svg"};

} // namespace

QWidget* BuildLauncher(Form&) {
    auto* window = new QMainWindow;
    window->setObjectName("frmMDI");
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    // The picture bar with the subject buttons, usable while a subject is open.
    auto* bar = new SvgBackground(":/launcher/bar.svg");
    bar->setObjectName("Picture1");
    bar->setFixedHeight(90);
    auto* barRow = new QHBoxLayout(bar);
    barRow->setContentsMargins(12, 6, 12, 9);
    auto* buttons = new QWidget;
    buttons->setObjectName("picButtonContainer");
    auto* buttonRow = new QHBoxLayout(buttons);
    buttonRow->setContentsMargins(0, 0, 0, 0);
    buttonRow->setSpacing(14);
    const QSize decorSize(120, 48);
    QList<QWidget*> decorations;
    auto decoration = [&](const char* name, const char* resource) {
        decorations << Picture(name, resource, decorSize);
        // They give way first when the window is narrow.
        decorations.back()->setMinimumSize(1, decorSize.height());
        decorations.back()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        buttonRow->addWidget(decorations.back());
    };
    decoration("Picture2", ":/launcher/decor-1.svg");
    decoration("Picture3", ":/launcher/decor-2.svg");
    QList<QToolButton*> launchButtons;
    for (int i = 0; i < 4; ++i) {
        auto* button = new QToolButton;
        button->setObjectName(QString("cmdSelectOption(%1)").arg(i));
        button->setProperty("role", "launch");
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIcon(QIcon(kEmblems[i]));
        button->setIconSize(QSize(40, 40));
        button->setMinimumWidth(160);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::StrongFocus);
        // The subjects by the keyboard: Alt and the subject's initial.
        const QKeySequence keys(QString("Alt+%1").arg(kInitials[i]));
        auto* shortcut = new QShortcut(keys, window);
        QObject::connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
        button->setToolTip(QString("%1 opens it; F6 moves between the open subject and this bar")
                               .arg(keys.toString(QKeySequence::NativeText)));
        buttonRow->addWidget(button);
        launchButtons << button;
    }
    decoration("Picture4", ":/launcher/decor-3.svg");
    decoration("Picture5", ":/launcher/decor-4.svg");
    new NarrowWindowTrim(window, decorations, 1300);
    barRow->addStretch();
    barRow->addWidget(buttons);
    barRow->addStretch();
    column->addWidget(bar);

    // The welcome panel.
    auto* welcome = new QWidget;
    welcome->setObjectName("picMain");
    welcome->setAttribute(Qt::WA_StyledBackground);
    auto* texts = new QVBoxLayout(welcome);
    texts->setSpacing(10);
    texts->addStretch(2);
    texts->addWidget(Label("lblCaption(0)", "welcome"));
    auto* intro = Label("lblCaption(1)", "welcomeIntro");
    intro->setWordWrap(true);
    intro->setFixedWidth(760);
    auto* introRow = new QHBoxLayout;
    introRow->addStretch();
    introRow->addWidget(intro);
    introRow->addStretch();
    texts->addLayout(introRow);
    texts->addSpacing(26);
    texts->addWidget(Label("lblCaption(2)", "welcomeHeading"));
    texts->addSpacing(6);
    for (int i = 3; i <= 6; ++i) {
        auto* row = new QHBoxLayout;
        row->addStretch();
        auto* emblem = Picture(QString("emblem%1").arg(i - 3), kEmblems[i - 3], QSize(34, 34));
        row->addWidget(emblem);
        auto* subject = Label(QString("lblCaption(%1)").arg(i), "launchLabel");
        subject->setMinimumWidth(240);
        subject->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        row->addWidget(subject);
        row->addSpacing(34);
        row->addStretch();
        texts->addLayout(row);
    }
    texts->addStretch(3);
    column->addWidget(welcome, 1);

    // The client area that holds the subject windows.
    auto* mdi = new QMdiArea;
    mdi->setObjectName("mdiArea");
    mdi->setBackground(QColor("#000000"));
    mdi->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi->hide();
    column->addWidget(mdi, 1);
    auto* subjects = new SubjectBar(mdi, launchButtons);
    for (const QKeySequence& keys :
         {QKeySequence(Qt::Key_F6), QKeySequence(Qt::SHIFT | Qt::Key_F6)})
        QObject::connect(new QShortcut(keys, window), &QShortcut::activated, subjects,
                         &SubjectBar::SwitchPane);
    // While the welcome panel shows, the client area makes way for it.
    welcome->installEventFilter(new ClientAreaFollower(mdi, welcome));

    // The bottom bar.
    auto* bottom = new QWidget;
    bottom->setObjectName("PicCoBrand");
    bottom->setAttribute(Qt::WA_StyledBackground);
    auto* bottomRow = new QHBoxLayout(bottom);
    bottomRow->setContentsMargins(14, 8, 14, 8);
    bottomRow->setSpacing(18);
    auto* logo = Picture("Picture6", ":/launcher/maker-logo.svg", QSize(160, 40));
    logo->setCursor(Qt::PointingHandCursor);
    bottomRow->addWidget(logo);
    auto* fullBrand = Label("Label7", "small");
    fullBrand->setWordWrap(true);
    fullBrand->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fullBrand->setMaximumWidth(560);
    // The longer text takes the larger share, so neither runs past three
    // lines on a small screen.
    bottomRow->addWidget(fullBrand, 3);
    auto* banner = Label("lblZenthoraBanner", "link");
    banner->setWordWrap(true);
    banner->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    bottomRow->addWidget(banner, 2);
    auto* exit = new QPushButton;
    exit->setObjectName("cmdMdiExit");
    exit->setCursor(Qt::PointingHandCursor);
    bottomRow->addWidget(exit);
    column->addWidget(bottom);

    window->setCentralWidget(central);
    // Ctrl+F4 closes the subject window in front, as its close button does.
    auto* closeChild = new QShortcut(QKeySequence("Ctrl+F4"), window);
    auto closeActive = [mdi] {
        if (QMdiSubWindow* child = mdi->activeSubWindow())
            child->close();
    };
    // The sub-window's own menu has the same keys; either way the child goes.
    QObject::connect(closeChild, &QShortcut::activated, mdi, closeActive);
    QObject::connect(closeChild, &QShortcut::activatedAmbiguously, mdi, closeActive);
    return window;
}

void RegisterShellWindows(FormHost& host) {
    host.RegisterWindow("frmMDI", BuildLauncher);
    host.RegisterWindow("frmAbout", BuildAbout);
}

} // namespace quillane::ui
