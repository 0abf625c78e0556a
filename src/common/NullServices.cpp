// The services a program has before anything is plugged in: nothing shown,
// nothing kept beyond the process, answers as a cancelled dialog or an absent
// device would give them.
#include "Services.h"

#include <chrono>
#include <cstdio>
#include <map>
#include <tuple>

namespace quillane {

namespace {

class NullMessageBox : public IMessageBox {
public:
    MsgAnswer Show(const std::string&, const std::string&, MsgIcon, MsgButtons buttons) override {
        return buttons == MsgButtons::YesNo ? MsgAnswer::No : MsgAnswer::Ok;
    }
};

class NullBrowser : public IBrowser {
public:
    void Open(const std::string&) override {}
};

class NullPrinter : public IPrinter {
public:
    bool Print(const std::vector<TextRun>&) override { return false; }
};

class NullSaveDialog : public ISaveDialog {
public:
    std::optional<std::string> GetSaveFileName(const std::string&) override { return {}; }
};

// The system clock through the standard library, in UTC.
class StandardClock : public IClock {
public:
    Date Today() override {
        using namespace std::chrono;
        const auto days = floor<std::chrono::days>(system_clock::now());
        return Date::FromSerial(long(days.time_since_epoch().count()));
    }
    double Timer() override {
        using namespace std::chrono;
        const auto now = system_clock::now().time_since_epoch();
        const auto sinceMidnight = now - floor<days>(now);
        return duration<double>(sinceMidnight).count();
    }
};

class InMemorySettings : public ISettingsStore {
public:
    std::optional<std::string> Read(const std::string& a, const std::string& s,
                                    const std::string& k) override {
        auto it = values_.find({a, s, k});
        return it == values_.end() ? std::nullopt : std::optional<std::string>(it->second);
    }
    void Write(const std::string& a, const std::string& s, const std::string& k,
               const std::string& v) override {
        values_[{a, s, k}] = v;
    }

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

class CurrentFolder : public IProgramFolder {
public:
    std::string ProgramDir() override { return "."; }
    std::string FilesDir() override { return "."; }
    std::string ExeName() override { return "quillane"; }
    std::string CommandLine() override { return ""; }
};

class NoOtherInstance : public IInstanceLock {
public:
    bool AnotherInstanceRunning() override { return false; }
};

class NoTray : public ITray {
public:
    bool Available() override { return false; }
    void Add(const std::string&, std::function<void(int)>) override {}
    void Remove() override {}
};

class NoAutostart : public IAutostart {
public:
    std::optional<std::string> Read(const std::string&) override { return {}; }
    SystemError Open() override { return {}; }
    SystemError Write(const std::string&, const std::string&) override { return {}; }
    void Remove(const std::string&) override {}
};

class NoEvents : public IEventPump {
public:
    void DoEvents() override {}
};

class NoDecoder : public IPictureDecoder {
public:
    bool CanDecode(const std::vector<unsigned char>&) override { return false; }
};

class FullHdScreen : public IScreen {
public:
    int WidthTwips() override { return 1920 * 15; }
    int HeightTwips() override { return 1080 * 15; }
};

} // namespace

std::string InvariantLocale::ShortDate(const Date& date) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%d/%d/%04d", date.Month(), date.Day(), date.Year());
    return buf;
}

std::optional<Date> InvariantLocale::ParseShortDate(const std::string& text) {
    int m = 0, d = 0, y = 0;
    char tail = 0;
    if (std::sscanf(text.c_str(), "%d/%d/%d%c", &m, &d, &y, &tail) != 3)
        return std::nullopt;
    Date date(y, m, d);
    if (!date.Valid())
        return std::nullopt;
    return date;
}

std::string InvariantLocale::MonthName(int month) {
    static const char* const kMonths[12] = {"January",   "February", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "October",  "November", "December"};
    return month >= 1 && month <= 12 ? kMonths[month - 1] : "";
}

Services::Services() {
    static NullMessageBox messageBoxes;
    static NullBrowser browsers;
    static NullPrinter printers;
    static NullSaveDialog saveDialogs;
    static StandardClock clocks;
    static InvariantLocale locales;
    static InMemorySettings store;
    static CurrentFolder folders;
    static NoOtherInstance locks;
    static NoTray trays;
    static NoAutostart autostarts;
    static NoEvents events_;
    static NoDecoder decoders;
    static FullHdScreen screens;
    messageBox = &messageBoxes;
    browser = &browsers;
    printer = &printers;
    saveDialog = &saveDialogs;
    clock = &clocks;
    locale = &locales;
    settings = &store;
    folder = &folders;
    instanceLock = &locks;
    tray = &trays;
    autostart = &autostarts;
    events = &events_;
    pictures = &decoders;
    screen = &screens;
}

} // namespace quillane
