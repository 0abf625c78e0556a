// Quillane: the desktop program.
#include "FormHost.h"
#include "QtServices.h"
#include "Windows.h"
#include "cards/modImageDB.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName("Quillane");
    QApplication::setWindowIcon(QIcon(":/icons/quillane.svg"));
    QApplication::setQuitOnLastWindowClosed(false);

    using namespace quillane;
    QStringList arguments = QApplication::arguments().mid(1);
    const QString exe = QFileInfo(QApplication::applicationFilePath()).completeBaseName();

    ui::QtMessageBox messageBox;
    ui::DesktopBrowser browser;
    ui::DefaultPrinter printer;
    ui::FileSaveDialog saveDialog;
    ui::SystemClock clock;
    SystemLocale locale;
    IniSettingsStore settings(IniSettingsStore::DefaultFolder());
    ProgramFolder folder(QApplication::applicationDirPath(), exe, arguments.join(' '));
    LockFileInstance instanceLock(exe);
    ImageDecoder pictures;
    ui::PrimaryScreen screen;

    Services services;
    services.messageBox = &messageBox;
    services.browser = &browser;
    services.printer = &printer;
    services.saveDialog = &saveDialog;
    services.clock = &clock;
    services.locale = &locale;
    services.settings = &settings;
    services.folder = &folder;
    services.instanceLock = &instanceLock;
    services.pictures = &pictures;
    services.screen = &screen;

    modImageDB::SetDecoder(&pictures);
    Application app(services);
    RegisterProgram(app);
    TheGenerator().SetClock([&clock] { return clock.Timer(); });
    ui::FormHost host(app);
    ui::RegisterWindows(host);
    app.SetHost(&host);

    app.Dispatch([&] { StartUp(app); });
    if (app.Ended())
        return 0;
    messageBox.SetParent(host.MainWindow());
    const int status = QApplication::exec();
    modImageDB::SetDecoder(nullptr);
    return status;
}
