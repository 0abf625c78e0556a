#include "Windows.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillane::ui {

namespace {
QLabel* Link(Form& form, const std::string& name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromStdString(name));
    label->setWordWrap(true);
    label->setProperty("role", "link");
    (void)form;
    return label;
}
} // namespace

QWidget* BuildSubjectShell(Form& form, QWidget* body) {
    auto* window = new QWidget;
    window->setObjectName(QString::fromStdString(form.Name()));
    window->setStyleSheet("QLabel[role=\"link\"] { color: #1f4fa8; font-size: 8.5pt; }"
                          "QFrame#fraFullBrand { border-top: 1px solid #c8c2b0; }");
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(14, 14, 14, 10);
    column->addWidget(body, 1);

    // The links that stand below the panels in every state.
    auto* links = new QFrame;
    links->setObjectName("fraFullBrand");
    auto* linkColumn = new QVBoxLayout(links);
    linkColumn->setContentsMargins(0, 8, 0, 0);
    linkColumn->addWidget(Link(form, "lblCobrand"));
    linkColumn->addWidget(Link(form, "lblFullBrand"));
    for (const char* forum : {"Label61", "Label14", "Label6"})
        if (form.Find(forum))
            linkColumn->addWidget(Link(form, forum));
    column->addWidget(links);
    if (Control* exit = form.Find("cmdNav(1)")) {
        (void)exit;
        auto* button = new QPushButton;
        button->setObjectName("cmdNav(1)");
        column->addWidget(button, 0, Qt::AlignRight);
    }
    return window;
}

void RegisterWindows(FormHost& host) {
    host.RegisterWindow("frmMDI", BuildLauncher);
    host.RegisterWindow("frmAbout", BuildAbout);
    host.RegisterWindow("frmLearnAstrologyMain", BuildAstrologyWindow);
    host.RegisterWindow("frmLearnNumerologyMain", BuildNumerologyWindow);
    host.RegisterWindow("frmLearnTarotMain", BuildTarotWindow);
    host.RegisterWindow("frmLearnRunesMain", BuildRunesWindow);
    host.RegisterWindow("frmLearnRunesMeaningTest", BuildRunesMeaningTestWindow);
}

} // namespace quillane::ui
