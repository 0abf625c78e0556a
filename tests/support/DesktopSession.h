#pragma once
// The real desktop program inside a test: the launcher and its windows on the
// offscreen platform, with the driver's recording services, started as a
// start of the process would.
#include "DriveSession.h"
#include "app/Composition.h"
#include "drive/DrivePlatform.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"
#include "ui/kit/Accessibility.h"
#include "ui/kit/Keyboard.h"
#include "ui/kit/Theme.h"

#include <QApplication>
#include <QMainWindow>
#include <memory>

namespace quillane::testing {

inline void EnsureQApplication() {
    static int argc = 1;
    static char name[] = "quillane-test";
    static char* argv[] = {name, nullptr};
    if (!QApplication::instance()) {
        auto* app = new QApplication(argc, argv);
        ui::theme::Apply(*app);
        ui::kit::InstallKeyboard(*app);
        ui::kit::InstallAccessibility(*app);
    }
}

class DesktopSession {
public:
    explicit DesktopSession(Date today = Date(2026, 4, 1), long long seed = 7,
                            IPrinter* printerOverride = nullptr)
        : platform([&] {
              drive::DriverOptions o; // the program's and the user's files in one folder
              o.programDir = o.userDir = dir.Str();
              o.today = today;
              o.seed = seed;
              return o;
          }()) {
        EnsureQApplication();
        Services s = platform.Wired();
        if (printerOverride)
            s.printer = printerOverride;
        program = std::make_unique<app::Program>(s);
        app = &program->App();
        host = std::make_unique<ui::FormHost>(*app);
        app::RegisterWindows(*host);
        app->SetHost(host.get());
        app->Dispatch([this] { StartUp(*app); });
    }
    ~DesktopSession() {
        app->SetHost(nullptr);
        host.reset();
        program.reset();
    }
    DesktopSession(const DesktopSession&) = delete;

    QMainWindow* MainWindow() const { return host->MainWindow(); }

    ScratchDir dir;
    drive::DrivePlatform platform;
    drive::RecordingMessageBox& messageBox = platform.messageBox;
    drive::RecordingBrowser& browser = platform.browser;
    std::unique_ptr<app::Program> program;
    Application* app = nullptr;
    std::unique_ptr<ui::FormHost> host;
};

} // namespace quillane::testing
