#pragma once
// The services that need a screen: message boxes, the browser, the printer,
// the save dialog, the clock and the screen's size.
#include "common/Services.h"
#include "platform/Autostart.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"

#include <QStringList>
#include <memory>

class QPrinter;
class QSystemTrayIcon;
class QWidget;

namespace quillane::ui {

class QtMessageBox : public IMessageBox {
public:
    MsgAnswer Show(const std::string& text, const std::string& title, MsgIcon icon,
                   MsgButtons buttons) override;
    void SetParent(QWidget* parent) { parent_ = parent; }

private:
    QWidget* parent_ = nullptr;
};

class DesktopBrowser : public IBrowser {
public:
    void Open(const std::string& address) override;
};

// Prints to the default printer with no dialog; failures are silent.
class DefaultPrinter : public IPrinter {
public:
    bool Print(const std::vector<TextRun>& document) override;
};

// Lays the runs out as one flowing document and prints it on the given
// printer (a real one, or a PDF file). False when the printer failed.
bool PrintDocument(QPrinter& printer, const std::vector<TextRun>& document);

class FileSaveDialog : public ISaveDialog {
public:
    std::optional<std::string> GetSaveFileName(const std::string& filter) override;
};

class SystemClock : public IClock {
public:
    Date Today() override;
    double Timer() override;
};

class PrimaryScreen : public IScreen {
public:
    int WidthTwips() override;
    int HeightTwips() override;
};

// The icon in the desktop's notification area.
class SystemTray : public ITray {
public:
    SystemTray();
    ~SystemTray() override;
    bool Available() override;
    void Add(const std::string& tip, std::function<void(int)> onMouse) override;
    void Remove() override;

private:
    std::unique_ptr<QSystemTrayIcon> icon_;
};

// Every service of the desktop program, wired once.
struct DesktopPlatform {
    // exe: the program's file name without extension; arguments: its command line.
    DesktopPlatform(const QString& programDir, const QString& exe, const QStringList& arguments);
    DesktopPlatform(const DesktopPlatform&) = delete;
    Services Wired();

    QtMessageBox messageBox;
    DesktopBrowser browser;
    DefaultPrinter printer;
    FileSaveDialog saveDialog;
    SystemClock clock;
    SystemLocale locale;
    IniSettingsStore settings;
    ProgramFolder folder;
    LockFileInstance instanceLock;
    SystemTray tray;
    XdgAutostart autostart;
    QtEventPump events;
    ImageDecoder pictures;
    PrimaryScreen screen;
};

} // namespace quillane::ui
