#include "QtServices.h"

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTextCursor>
#include <QTextDocument>
#include <QTime>
#include <QUrl>

namespace quillane::ui {

MsgAnswer QtMessageBox::Show(const std::string& text, const std::string& title, MsgIcon icon,
                             MsgButtons buttons) {
    QMessageBox box(parent_);
    box.setWindowTitle(QString::fromStdString(title));
    // A lone carriage return separates lines in the program's messages.
    box.setText(QString::fromStdString(text).replace("\r\n", "\n").replace('\r', '\n'));
    switch (icon) {
    case MsgIcon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case MsgIcon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case MsgIcon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case MsgIcon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    default:
        box.setIcon(QMessageBox::NoIcon);
    }
    if (buttons == MsgButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        return box.exec() == QMessageBox::Yes ? MsgAnswer::Yes : MsgAnswer::No;
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return MsgAnswer::Ok;
}

void DesktopBrowser::Open(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

bool DefaultPrinter::Print(const std::vector<TextRun>& document) {
    if (QPrinterInfo::defaultPrinter().isNull())
        return false;
    QPrinter printer(QPrinterInfo::defaultPrinter());
    return PrintDocument(printer, document);
}

bool PrintDocument(QPrinter& printer, const std::vector<TextRun>& document) {
    QTextDocument doc;
    QFont font = doc.defaultFont();
    font.setPointSizeF(10);
    doc.setDefaultFont(font);
    QTextCursor cursor(&doc);
    for (const auto& run : document) {
        QTextCharFormat format;
        format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
        if (run.pointSize > 0)
            format.setFontPointSize(run.pointSize);
        cursor.insertText(QString::fromStdString(run.text).replace("\r\n", "\n"), format);
    }
    // The text is laid out at the screen's resolution in pages of the
    // printer's printable area, with a margin of a centimetre, and drawn
    // scaled to the printer. The page carries what was sent and nothing more:
    // no page numbers.
    const QScreen* screen = QGuiApplication::primaryScreen();
    const qreal screenDpi = screen ? screen->logicalDotsPerInch() : 96.0;
    const qreal scale = printer.resolution() / screenDpi;
    const QRectF area = printer.pageRect(QPrinter::DevicePixel);
    const QSizeF page(area.width() / scale, area.height() / scale);
    doc.setDocumentMargin(screenDpi / 2.54);
    doc.setPageSize(page);
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    painter.scale(scale, scale);
    for (int index = 0; index < doc.pageCount(); ++index) {
        if (index > 0 && !printer.newPage())
            return false;
        painter.save();
        painter.translate(0, -index * page.height());
        doc.drawContents(&painter, QRectF(QPointF(0, index * page.height()), page));
        painter.restore();
    }
    painter.end();
    return printer.printerState() != QPrinter::Error;
}

std::optional<std::string> FileSaveDialog::GetSaveFileName(const std::string& filter) {
    const QString name = QFileDialog::getSaveFileName(QApplication::activeWindow(), QString(),
                                                      QString(), QString::fromStdString(filter));
    if (name.isEmpty())
        return std::nullopt;
    return name.toStdString();
}

Date SystemClock::Today() {
    const QDate d = QDate::currentDate();
    return Date(d.year(), d.month(), d.day());
}

double SystemClock::Timer() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

namespace {
// Twips per device-independent pixel at the screen's logical resolution.
double TwipsPerPixel(QScreen* screen) {
    return 1440.0 / (screen ? screen->logicalDotsPerInch() : 96.0);
}
} // namespace

int PrimaryScreen::WidthTwips() {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? int(screen->geometry().width() * TwipsPerPixel(screen)) : 28800;
}

int PrimaryScreen::HeightTwips() {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? int(screen->geometry().height() * TwipsPerPixel(screen)) : 16200;
}

SystemTray::SystemTray() = default;
SystemTray::~SystemTray() = default;

bool SystemTray::Available() {
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void SystemTray::Add(const std::string& tip, std::function<void(int)> onMouse) {
    icon_ = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    icon_->setToolTip(QString::fromStdString(tip));
    QObject::connect(icon_.get(), &QSystemTrayIcon::activated,
                     [onMouse](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::DoubleClick)
                             onMouse(kTrayLeftDoubleClick);
                         else if (reason == QSystemTrayIcon::Context)
                             onMouse(kTrayRightButtonUp);
                     });
    icon_->show();
}

void SystemTray::Remove() {
    icon_.reset();
}

DesktopPlatform::DesktopPlatform(const QString& programDir, const QString& exe,
                                 const QStringList& arguments)
    : settings(IniSettingsStore::DefaultFolder()), folder(programDir, exe, arguments.join(' ')),
      instanceLock(exe), autostart(XdgAutostart::DefaultFolder()) {}

Services DesktopPlatform::Wired() {
    return WireServices(*this);
}

} // namespace quillane::ui
