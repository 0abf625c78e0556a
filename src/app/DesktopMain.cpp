// Quillane: the desktop program.
#include "Composition.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"
#include "ui/kit/Accessibility.h"
#include "ui/kit/Keyboard.h"
#include "ui/kit/Theme.h"
#include "ui/shell/QtServices.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName("Quillane");
    QApplication::setWindowIcon(QIcon(":/icons/quillane.svg"));
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

    app.Dispatch([&] { StartUp(app); });
    if (app.Ended())
        return 0;
    platform.messageBox.SetParent(host.MainWindow());
    return QApplication::exec();
}
