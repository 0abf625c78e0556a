// Quillane: the desktop program.
#include "Composition.h"
#include "WarmStart.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"
#include "ui/kit/Accessibility.h"
#include "ui/kit/Keyboard.h"
#include "ui/kit/ProgramIcon.h"
#include "ui/kit/Theme.h"
#include "ui/shell/QtServices.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <cstdio>

int main(int argc, char** argv) {
#if defined(Q_OS_LINUX)
    // Without a display Qt would abort with advice about reinstalling.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        std::fputs("quillane: there is no display to show its windows on "
                   "(neither DISPLAY nor WAYLAND_DISPLAY is set).\n",
                   stderr);
        return 1;
    }
#endif
    std::jthread fonts = quillane::app::ReadFontConfiguration();
    QApplication qt(argc, argv);
    const std::jthread bus = quillane::app::ConnectSessionBus();
    QApplication::setApplicationName("Quillane");
    // The desktop entry's name: Wayland desktops match the window to its entry
    // and icon by it.
    QGuiApplication::setDesktopFileName("net.zenthora.quillane");
    QApplication::setWindowIcon(quillane::ui::kit::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    quillane::ui::theme::Apply(qt);
    quillane::ui::kit::InstallKeyboard(qt);
    quillane::ui::kit::InstallAccessibility(qt);

    using namespace quillane;
    ui::DesktopPlatform platform(QApplication::applicationDirPath(),
                                 QFileInfo(QApplication::applicationFilePath()).completeBaseName(),
                                 QApplication::arguments().mid(1));
    app::Program program(platform.Wired());
    Application& app = program.App();
    ui::FormHost host(app);
    app::RegisterWindows(host);
    app.SetHost(&host);

    if (fonts.joinable())
        fonts.join();
    app.Dispatch([&] { StartUp(app); });
    if (app.Ended())
        return 0;
    platform.messageBox.SetParent(host.MainWindow());
    return QApplication::exec();
}
