#pragma once
// The seams between the program's logic and the platform. The logic gets these
// injected and never calls the platform directly; the desktop program
// implements them on Qt, the driver with recording versions.
#include "Date.h"
#include "TextRun.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillane {

enum class MsgIcon { None, Information, Critical, Exclamation, Question };
enum class MsgButtons { Ok, YesNo };
enum class MsgAnswer { Ok, Yes, No };

class IMessageBox {
public:
    virtual ~IMessageBox() = default;
    virtual MsgAnswer Show(const std::string& text, const std::string& title, MsgIcon icon,
                           MsgButtons buttons) = 0;
};

class IBrowser {
public:
    virtual ~IBrowser() = default;
    virtual void Open(const std::string& address) = 0;
};

class IPrinter {
public:
    virtual ~IPrinter() = default;
    // Sends the document to the default printer without a dialog; false when
    // it could not be printed. Callers ignore failures.
    virtual bool Print(const std::vector<TextRun>& document) = 0;
};

class ISaveDialog {
public:
    virtual ~ISaveDialog() = default;
    // The chosen file name, or nothing when cancelled. Asks before overwriting.
    virtual std::optional<std::string> GetSaveFileName(const std::string& filter) = 0;
};

class IClock {
public:
    virtual ~IClock() = default;
    virtual Date Today() = 0;
    // Seconds since midnight, the reading that seeds the generator.
    virtual double Timer() = 0;
};

// The system's date conventions.
class ILocale {
public:
    virtual ~ILocale() = default;
    virtual std::string ShortDate(const Date& date) = 0;
    virtual std::optional<Date> ParseShortDate(const std::string& text) = 0;
    virtual std::string MonthName(int month) = 0; // 1..12
};

// Dates as M/d/yyyy and English month names, the same on every machine.
class InvariantLocale : public ILocale {
public:
    std::string ShortDate(const Date& date) override;
    std::optional<Date> ParseShortDate(const std::string& text) override;
    std::string MonthName(int month) override;
};

// The per-user store of strings by application, section and key. Strings are
// byte strings; the store keeps them byte for byte.
class ISettingsStore {
public:
    virtual ~ISettingsStore() = default;
    virtual std::optional<std::string> Read(const std::string& application,
                                            const std::string& section, const std::string& key) = 0;
    virtual void Write(const std::string& application, const std::string& section,
                       const std::string& key, const std::string& value) = 0;
};

// Where the program is and how it was started.
class IProgramFolder {
public:
    virtual ~IProgramFolder() = default;
    // The program's own folder, without a trailing separator.
    virtual std::string ProgramDir() = 0;
    // The folder for the program's plain files: the program's folder when it
    // can be written, else the user's data folder for the program.
    virtual std::string FilesDir() = 0;
    // The program's file name without its extension.
    virtual std::string ExeName() = 0;
    // The command line after the program's name.
    virtual std::string CommandLine() = 0;
};

class IInstanceLock {
public:
    virtual ~IInstanceLock() = default;
    // True when another instance of this program runs for this user.
    virtual bool AnotherInstanceRunning() = 0;
};

// Mouse messages of the tray icon, by the numbers the program tests.
enum TrayMessage : int { kTrayLeftDoubleClick = 515, kTrayRightButtonUp = 517 };

// One icon in the desktop's notification area.
class ITray {
public:
    virtual ~ITray() = default;
    // Whether the desktop has a notification area at all.
    virtual bool Available() = 0;
    // Shows the icon with its tip; its mouse messages go to the handler.
    virtual void Add(const std::string& tip, std::function<void(int message)> onMouse) = 0;
    virtual void Remove() = 0;
};

// What a failed operation of the system reports.
struct SystemError {
    long code = 0; // 0: no failure
    std::string description;
    explicit operator bool() const { return code != 0; }
};

// One named entry of the current user's start-at-logon programs.
class IAutostart {
public:
    virtual ~IAutostart() = default;
    // The entry's command, or nothing when there is none or its place can't be opened.
    virtual std::optional<std::string> Read(const std::string& name) = 0;
    // Opens (or creates) the place of the entries for writing.
    virtual SystemError Open() = 0;
    virtual SystemError Write(const std::string& name, const std::string& command) = 0;
    // Deletes the entry; nothing happens when there is none.
    virtual void Remove(const std::string& name) = 0;
};

// Lets the events that are waiting run, inside a long loop of a handler.
class IEventPump {
public:
    virtual ~IEventPump() = default;
    virtual void DoEvents() = 0;
};

class IPictureDecoder {
public:
    virtual ~IPictureDecoder() = default;
    // True when the bytes are a complete picture file that can be shown.
    virtual bool CanDecode(const std::vector<unsigned char>& bytes) = 0;
};

// The screen, in twips (1/1440 inch), as the launcher lays itself out by it.
class IScreen {
public:
    virtual ~IScreen() = default;
    virtual int WidthTwips() = 0;
    virtual int HeightTwips() = 0;
};

// Every service the logic is given. Each starts as a null object (one that
// records nothing, shows nothing and answers as a cancelled or absent thing
// would), so the logic never tests for a missing service.
struct Services {
    Services();
    IMessageBox* messageBox;
    IBrowser* browser;
    IPrinter* printer;
    ISaveDialog* saveDialog;
    IClock* clock;
    ILocale* locale;
    ISettingsStore* settings;
    IProgramFolder* folder;
    IInstanceLock* instanceLock;
    ITray* tray;
    IAutostart* autostart;
    IEventPump* events;
    IPictureDecoder* pictures;
    IScreen* screen;
};

// The services of a platform's bundle: each member named as a field of
// Services serves as that service; the fields it has no member for keep
// their null objects.
template <class Platform> Services WireServices(Platform& platform) {
    Services wired;
    if constexpr (requires { platform.messageBox; })
        wired.messageBox = &platform.messageBox;
    if constexpr (requires { platform.browser; })
        wired.browser = &platform.browser;
    if constexpr (requires { platform.printer; })
        wired.printer = &platform.printer;
    if constexpr (requires { platform.saveDialog; })
        wired.saveDialog = &platform.saveDialog;
    if constexpr (requires { platform.clock; })
        wired.clock = &platform.clock;
    if constexpr (requires { platform.locale; })
        wired.locale = &platform.locale;
    if constexpr (requires { platform.settings; })
        wired.settings = &platform.settings;
    if constexpr (requires { platform.folder; })
        wired.folder = &platform.folder;
    if constexpr (requires { platform.instanceLock; })
        wired.instanceLock = &platform.instanceLock;
    if constexpr (requires { platform.tray; })
        wired.tray = &platform.tray;
    if constexpr (requires { platform.autostart; })
        wired.autostart = &platform.autostart;
    if constexpr (requires { platform.events; })
        wired.events = &platform.events;
    if constexpr (requires { platform.pictures; })
        wired.pictures = &platform.pictures;
    if constexpr (requires { platform.screen; })
        wired.screen = &platform.screen;
    return wired;
}

} // namespace quillane
