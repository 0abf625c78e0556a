#include "ShellWindows.h"
#include "ui/binding/Pictures.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillane::ui {

QWidget* BuildAbout(Form&) {
    auto* dialog =
        new QDialog(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                                 Qt::MSWindowsFixedSizeDialogHint);
    dialog->setObjectName("frmAbout");
    auto* row = new QHBoxLayout(dialog);
    row->setContentsMargins(20, 20, 20, 16);
    row->setSpacing(18);
    auto* icon = new QLabel;
    icon->setFixedSize(96, 96);
    icon->setPixmap(RenderSvg(":/icons/quillane.svg", QSize(96, 96), icon->devicePixelRatioF()));
    row->addWidget(icon, 0, Qt::AlignTop);

    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    auto label = [&](const char* name, const char* role = nullptr) {
        auto* l = new QLabel;
        l->setObjectName(name);
        l->setWordWrap(true);
        if (role) {
            l->setProperty("role", role);
            l->setCursor(Qt::PointingHandCursor);
        }
        column->addWidget(l);
        return l;
    };
    label("Label2");
    label("Label1");
    label("Label3");
    label("lblCobrand", "link");
    label("lblHomePage", "link");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* ok = new QPushButton;
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    ok->setMinimumWidth(96);
    buttons->addWidget(ok);
    column->addSpacing(6);
    column->addLayout(buttons);
    row->addLayout(column);
    dialog->setFixedWidth(560);
    dialog->layout()->setSizeConstraint(QLayout::SetFixedSize);
    return dialog;
}

} // namespace quillane::ui
