#include "Theme.h"

#include "FlatScrollBars.h"

#include <QApplication>
#include <QWidget>

namespace quillane::ui::theme {

namespace {

struct Accent {
    const char* subject;
    const char* colour; // headings, primary buttons, frame titles
    const char* hover;
    const char* paper; // the window's background
};

const Accent kAccents[] = {
    {"astrology", "#2b2a6b", "#3b3a85", "#fbf8f1"},
    {"numerology", "#3b2f63", "#4a3d78", "#fbf8f0"},
    {"tarot", "#6b2436", "#84324a", "#fbf7f2"},
    {"runes", "#3b3a52", "#4d4b6b", "#f4f0e6"},
};

// Rules that every window shares.
const char* const kBase = R"(
QLabel[role="link"] { color: #1f4fa8; font-size: 8.5pt; }
QLabel[role="intro"] { font-size: 10.5pt; }
QLabel[role="hint"] { color: #5b5670; font-style: italic; }
QLabel[role="value"] { font-size: 11pt; }
QLabel[role="sub"] { color: #7a5c12; font-size: 11pt; font-weight: 600; }
QLabel[role="glyph"], QLabel[role="stone"] { background: #ffffff; border: 1px solid #d8d0bc; border-radius: 6px; }
QFrame[role="card"], QScrollArea[role="card"] { background: #ffffff; border: 1px solid #d8d0bc; border-radius: 8px; }
QScrollArea[role="card"] > QWidget > QWidget { background: #ffffff; }
QScrollArea[role="plain"], QScrollArea[role="plain"] > QWidget,
QScrollArea[role="plain"] > QWidget > QWidget { background: transparent; }
QFrame[role="choice"] { background: #fffdf8; border: 1px solid #d8d0bc; border-radius: 4px; }
QFrame[role="rule"] { background: #c9b26a; border: none; }
QFrame#fraFullBrand { border-top: 1px solid #d8d0bc; }
QPlainTextEdit, QTextEdit, QLineEdit, QTreeWidget {
    background: #ffffff; color: #1f1d29; border: 1px solid #d8d0bc; border-radius: 4px;
    selection-background-color: #c9b26a; selection-color: #1f1d29;
}
QLineEdit { min-height: 22px; padding: 0 6px; }
QComboBox { min-height: 22px; padding: 1px 8px; background: #ffffff; color: #1f1d29;
            border: 1px solid #c8bd9c; border-radius: 4px; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right;
                       width: 18px; border: none; }
QComboBox::down-arrow { image: url(:/kit/chevron-down.svg); width: 10px; height: 10px; }
QComboBox QAbstractItemView { background: #ffffff; color: #1f1d29; selection-background-color: #efe3bd; }
QPushButton {
    color: #2b2838; background: #f3ecd8; border: 1px solid #b59f5b; border-radius: 5px;
    padding: 5px 16px; min-width: 72px; min-height: 20px;
}
QPushButton:hover { background: #f8f1dd; border-color: #8a7530; }
QPushButton:pressed { background: #e6dcc0; }
QPushButton:disabled { color: #9a96a8; border-color: #d8d0bc; }
QRadioButton, QCheckBox { spacing: 8px; }
QPushButton:focus { border: 2px solid #c98a1b; }
QPlainTextEdit:focus, QTextEdit:focus, QLineEdit:focus, QTreeWidget:focus, QComboBox:focus {
    border-color: #c98a1b;
}
QGroupBox { font-weight: 600; border: 1px solid #c8c2b0; border-radius: 4px;
            margin-top: 10px; padding: 8px 6px 6px 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; }
QGroupBox QCheckBox, QGroupBox QRadioButton, QGroupBox QLabel { font-weight: normal; }
QTabWidget::pane { border: 1px solid #d8d0bc; border-radius: 4px; top: -1px; }
QTabBar::tab { background: #efe8d4; border: 1px solid #d8d0bc; padding: 5px 10px; margin-right: 2px; }
QTabBar::tab:selected { background: #ffffff; }
QTabBar::tab:disabled { color: #a8a2b4; }
)";

// Rules in the subject's accent, given to the subject's window itself;
// ACCENT, HOVER and PAPER are filled in for each subject. A window's own
// sheet is matched against its widgets alone: in the application's sheet,
// each accent rule looked for its subject up every widget's ancestors.
const char* const kAccented = R"(
*[subject], QStackedWidget > QWidget { background: PAPER; }
QLabel[role="heading"] { color: ACCENT; font-size: 15pt; font-weight: 600; }
QLabel[role="title"] { color: ACCENT; font-size: 19pt; font-weight: 600; }
QLabel[role="caption"] { color: ACCENT; font-weight: 600; }
QLabel[role="prompt"] { color: ACCENT; font-size: 10.5pt; font-style: italic; }
QGroupBox { color: ACCENT; }
QPushButton[role="primary"] { background: ACCENT; color: #ffffff; border-color: ACCENT; }
QPushButton[role="primary"]:hover { background: HOVER; }
QPushButton[role="primary"]:disabled { background: #b4b2c8; border-color: #b4b2c8; }
QPushButton[role="primary"]:focus { border: 2px solid #c98a1b; }
QPushButton[role="subject"] { background: ACCENT; color: #f3ecd8; border-color: ACCENT; font-weight: 600; }
QPushButton[role="subject"]:hover { background: HOVER; }
QPushButton[role="subject"]:focus { border: 2px solid #c98a1b; }
)";

// The launcher keeps its night sky whatever the desktop's palette.
const char* const kLauncher = R"(
QMainWindow#frmMDI, QWidget#picMain, QMdiArea { background: #000000; }
QWidget#PicCoBrand { background: #0b0b1a; border-top: 1px solid #5a4a1c; }
QToolButton[role="launch"] {
    color: #f3ecd8; background: rgba(27, 26, 61, 0.85); border: 1px solid #8a7530;
    border-radius: 8px; padding: 4px 14px; font-size: 10.5pt; font-weight: 600;
}
QToolButton[role="launch"]:hover { background: #2a2860; }
QToolButton[role="launch"][current="true"] {
    background: #34307a; color: #f6dc8c; border: 2px solid #e8c766; padding: 3px 13px;
}
QToolButton[role="launch"]:focus { border: 2px dashed #f3ecd8; padding: 3px 13px; }
QToolButton[role="launch"]:pressed { background: #141330; }
QWidget#picMain QLabel, QWidget#PicCoBrand QLabel { background: transparent; }
QLabel[role="welcome"] { color: #e8c766; font-size: 30pt; font-weight: 300; }
QLabel[role="welcomeIntro"] { color: #f3ecd8; font-size: 13pt; }
QLabel[role="welcomeHeading"] { color: #c9b98f; font-size: 12pt; font-style: italic; }
QLabel[role="launchLabel"] { color: #e8c766; font-size: 17pt; padding: 4px; }
QLabel[role="launchLabel"][underline="true"] { text-decoration: underline; color: #f6dc8c; }
QLabel[role="small"] { color: #c9c2ad; font-size: 9pt; }
QWidget#PicCoBrand QLabel[role="link"] { color: #e8c766; font-size: 9.5pt; }
QPushButton#cmdMdiExit { color: #f3ecd8; background: #1b1a3d; border: 1px solid #8a7530; }
QPushButton#cmdMdiExit:hover, QPushButton#cmdMdiExit:focus { border-color: #e8c766; }
QLabel#Label2 { font-size: 15pt; font-weight: 600; color: #1b1a3d; }
QDialog#frmAbout QLabel[role="link"] { font-size: 9.5pt; text-decoration: underline; }
)";

} // namespace

QPalette Palette() {
    QPalette p;
    const QColor paper("#fbf8f1"), ink("#2a2838"), base("#ffffff"), muted("#9a96a8");
    p.setColor(QPalette::Window, paper);
    p.setColor(QPalette::WindowText, ink);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, QColor("#f5f0e2"));
    p.setColor(QPalette::Text, QColor("#1f1d29"));
    p.setColor(QPalette::Button, QColor("#f3ecd8"));
    p.setColor(QPalette::ButtonText, ink);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::Highlight, QColor("#3b3a85"));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::ToolTipBase, QColor("#fffbe8"));
    p.setColor(QPalette::ToolTipText, ink);
    p.setColor(QPalette::PlaceholderText, muted);
    p.setColor(QPalette::Link, QColor("#1f4fa8"));
    p.setColor(QPalette::Light, Qt::white);
    p.setColor(QPalette::Midlight, QColor("#ece5d2"));
    p.setColor(QPalette::Mid, QColor("#c8c2b0"));
    p.setColor(QPalette::Dark, QColor("#8a846f"));
    p.setColor(QPalette::Shadow, QColor("#4a4638"));
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, muted);
    return p;
}

QString StyleSheet() {
    return QString(kBase) + kLauncher;
}

QString SubjectSheet(const char* subject) {
    for (const Accent& a : kAccents)
        if (qstrcmp(a.subject, subject) == 0)
            return QString(kAccented)
                .replace("ACCENT", a.colour)
                .replace("HOVER", a.hover)
                .replace("PAPER", a.paper);
    return {};
}

void Apply(QApplication& app) {
    QApplication::setPalette(Palette());
    // Latin text is laid out without the font's shaping rules (kerning,
    // ligatures); scripts that need them keep them. At the program's sizes the
    // difference does not show, and shaping was the largest part of laying
    // out a window's texts.
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
    QApplication::setStyle(new kit::FlatScrollBars);
    app.setStyleSheet(StyleSheet());
}

void SetSubject(QWidget* body, const char* subject) {
    body->setProperty("subject", subject);
    body->setAttribute(Qt::WA_StyledBackground);
    body->setStyleSheet(SubjectSheet(subject));
}

} // namespace quillane::ui::theme
