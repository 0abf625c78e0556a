#pragma once
// The real desktop program inside a test: the launcher and its windows on the
// offscreen platform, with the driver's recording services, started as a
// start of the process would.
#include "DriveSession.h"
#include "drive/RecordingServices.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/FormHost.h"
#include "ui/Windows.h"

#include <QApplication>
#include <QMainWindow>
#include <memory>

namespace quillane::testing {

inline void EnsureQApplication() {
    static int argc = 1;
    static char name[] = "quillane-test";
    static char* argv[] = {name, nullptr};
    if (!QApplication::instance())
        new QApplication(argc, argv);
}

class DesktopSession {
public:
    explicit DesktopSession(Date today = Date(2026, 4, 1), long long seed = 7,
                            IPrinter* printerOverride = nullptr)
        : clock(today, seed) {
        EnsureQApplication();
        Services s;
        s.messageBox = &messageBox;
        s.browser = &browser;
        s.printer = printerOverride ? printerOverride : &printer;
        s.clock = &clock;
        s.locale = &locale;
        s.settings = &settings;
        s.folder = &folder;
        s.instanceLock = &lock;
        s.screen = &screen;
        app = std::make_unique<Application>(s);
        RegisterProgram(*app);
        host = std::make_unique<ui::FormHost>(*app);
        ui::RegisterWindows(*host);
        app->SetHost(host.get());
        app->Dispatch([this] { StartUp(*app); });
    }
    ~DesktopSession() {
        app->SetHost(nullptr);
        host.reset();
        app.reset();
    }
    DesktopSession(const DesktopSession&) = delete;

    QMainWindow* MainWindow() const { return host->MainWindow(); }

    ScratchDir dir;
    drive::RecordingMessageBox messageBox;
    drive::RecordingBrowser browser;
    drive::RecordingPrinter printer{true};
    drive::DriverClock clock;
    drive::DriverLocale locale;
    IniSettingsStore settings{QString::fromStdString(dir.Str())};
    ProgramFolder folder{QString::fromStdString(dir.Str()), "quillane", ""};
    drive::FixedInstanceLock lock{false};
    drive::FixedScreen screen;
    std::unique_ptr<Application> app;
    std::unique_ptr<ui::FormHost> host;
};

} // namespace quillane::testing
