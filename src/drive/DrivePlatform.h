#pragma once
// Everything the driver's program sees of the platform: recording services,
// the settings store and the start-at-logon entry in the user folder, the
// program's folder, and a clock that the script sets.
#include "RecordingServices.h"
#include "platform/Autostart.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"

#include <optional>
#include <string>

namespace quillane::drive {

struct DriverOptions {
    std::string programDir;
    std::string userDir;
    std::optional<Date> today;
    std::optional<long long> seed;
    std::string args;
    bool otherInstance = false;
    bool noPrinter = false;
    bool noTray = false;
    ScriptedAutostart::Failure autostartFails = ScriptedAutostart::Failure::None;
};

struct DrivePlatform {
    explicit DrivePlatform(const DriverOptions& options);
    DrivePlatform(const DrivePlatform&) = delete;
    // The services to give the program.
    Services Wired();

    DriverOptions options;
    RecordingMessageBox messageBox;
    RecordingBrowser browser;
    RecordingPrinter printer;
    QueuedSaveDialog saveDialog;
    DriverClock clock;
    InvariantLocale locale;
    IniSettingsStore settings;
    ProgramFolder folder;
    FixedInstanceLock instanceLock;
    RecordingTray tray;
    XdgAutostart entries;
    ScriptedAutostart autostart;
    ImageDecoder pictures;
};

} // namespace quillane::drive
