#include "Driver.h"

#include "Inspect.h"
#include "cards/modImageDB.h"
#include "common/Errors.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"

#include <QDate>
#include <QString>

namespace quillane::drive {

namespace {

// Text from the JSON side to the store's bytes and back: a character U+0080
// to U+00FF stands for the single byte of that code.
std::string ToStoreBytes(const std::string& utf8) {
    const QString s = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    for (QChar c : s)
        if (c.unicode() > 0xFF)
            return utf8;
    return s.toLatin1().toStdString();
}
std::string FromStoreBytes(const std::string& bytes) {
    return QString::fromLatin1(bytes.data(), qsizetype(bytes.size())).toUtf8().toStdString();
}

std::string Error(const std::string& message) {
    return "error: " + message;
}

// "frmX.a.b(2).Caption" -> {"frmX", "a", "b(2)", "Caption"}
std::vector<std::string> SplitPath(const std::string& path) {
    std::vector<std::string> parts;
    std::string current;
    int depth = 0;
    for (char c : path) {
        if (c == '(')
            ++depth;
        if (c == ')')
            --depth;
        if (c == '.' && depth == 0) {
            parts.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    parts.push_back(current);
    return parts;
}

std::string Join(const std::vector<std::string>& parts, std::size_t from, std::size_t to) {
    std::string out;
    for (std::size_t i = from; i < to; ++i)
        out += (i > from ? "." : "") + parts[i];
    return out;
}

} // namespace

std::optional<std::vector<std::string>> SplitWords(const std::string& line) {
    std::vector<std::string> words;
    std::size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t'))
            ++i;
        if (i >= line.size())
            break;
        if (line[i] == '"') {
            std::size_t j = i + 1;
            while (j < line.size() && line[j] != '"')
                j += line[j] == '\\' ? 2 : 1;
            if (j >= line.size())
                return std::nullopt;
            auto literal = Json::Parse(line.substr(i, j - i + 1));
            if (!literal || !literal->IsString())
                return std::nullopt;
            words.push_back(literal->AsString());
            i = j + 1;
        } else {
            std::size_t j = i;
            while (j < line.size() && line[j] != ' ' && line[j] != '\t')
                ++j;
            words.push_back(line.substr(i, j - i));
            i = j;
        }
    }
    return words;
}

struct Driver::Platform {
    RecordingMessageBox messageBox;
    RecordingBrowser browser;
    RecordingPrinter printer;
    QueuedSaveDialog saveDialog;
    DriverClock clock;
    DriverLocale locale;
    IniSettingsStore settings;
    ProgramFolder folder;
    FixedInstanceLock instanceLock;
    RecordingTray tray;
    ImageDecoder pictures;
    FixedScreen screen;

    explicit Platform(const DriverOptions& o)
        : printer(!o.noPrinter), clock(o.today.value_or(Today()), o.seed),
          settings(QString::fromStdString(o.userDir)),
          folder(QString::fromStdString(o.programDir), "quillane", QString::fromStdString(o.args)),
          instanceLock(o.otherInstance), tray(!o.noTray) {}

    static Date Today() {
        const QDate d = QDate::currentDate();
        return Date(d.year(), d.month(), d.day());
    }
};

Driver::Driver(const DriverOptions& options) : platform_(std::make_unique<Platform>(options)) {
    Platform& p = *platform_;
    Services services;
    services.messageBox = &p.messageBox;
    services.browser = &p.browser;
    services.printer = &p.printer;
    services.saveDialog = &p.saveDialog;
    services.clock = &p.clock;
    services.locale = &p.locale;
    services.settings = &p.settings;
    services.folder = &p.folder;
    services.instanceLock = &p.instanceLock;
    services.tray = &p.tray;
    services.pictures = &p.pictures;
    services.screen = &p.screen;
    modImageDB::SetDecoder(&p.pictures);
    app_ = std::make_unique<Application>(services);
    RegisterProgram(*app_);
    TheGenerator().SetClock([&clock = p.clock] { return clock.Timer(); });
    if (options.seed)
        TheGenerator().Reset(std::uint64_t(*options.seed) * 0x9E3779B97F4A7C15ULL + 1);
}

Driver::~Driver() {
    modImageDB::SetDecoder(nullptr);
}

std::optional<std::string> Driver::Execute(const std::string& raw) {
    std::string line = raw;
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n'))
        line.pop_back();
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#')
        return std::nullopt;
    auto words = SplitWords(line);
    if (!words || words->empty())
        return Error("malformed command");
    const std::string command = words->front();
    words->erase(words->begin());
    try {
        return Run(command, *words);
    } catch (const std::exception& e) {
        return Error(e.what());
    }
}

std::string Driver::Run(const std::string& command, const std::vector<std::string>& args) {
    Platform& p = *platform_;
    auto want = [&](std::size_t n) {
        if (args.size() != n)
            throw std::runtime_error("'" + command + "' takes " + std::to_string(n) +
                                     " argument(s)");
    };
    auto running = [&] {
        if (app_->Ended())
            throw std::runtime_error("program ended");
    };

    if (command == "start") {
        want(0);
        running();
        app_->Dispatch([&] { StartUp(*app_); });
        return "ok";
    }
    if (command == "ended") {
        want(0);
        return app_->Ended() ? "true" : "false";
    }
    if (command == "forms") {
        want(0);
        Json::Array names;
        for (Form* f : app_->LoadedForms())
            names.emplace_back(f->Name());
        return Json(std::move(names)).Dump();
    }
    if (command == "today") {
        want(1);
        auto date = Date::FromIso(args[0]);
        if (!date)
            return Error("bad date: " + args[0]);
        p.clock.SetToday(*date);
        return "ok";
    }
    if (command == "close") {
        want(1);
        running();
        return Close(args[0]);
    }
    if (command == "click" || command == "hover") {
        want(1);
        running();
        return Act(command, args[0]);
    }
    if (command == "set") {
        want(2);
        running();
        return Set(args[0], args[1]);
    }
    if (command == "get") {
        want(1);
        return Get(args[0]);
    }
    if (command == "focus") {
        want(1);
        Form* form = app_->Find(args[0]);
        if (!form)
            return Error("not loaded: " + args[0]);
        return form->Focused() ? JsonQuote(form->Focused()->Path()) : "null";
    }
    if (command == "dump") {
        want(1);
        Form* form = app_->Find(args[0]);
        if (!form)
            return Error("not loaded: " + args[0]);
        Json::Object all;
        all.emplace_back(form->Name(), DumpControl(form->Me()));
        for (const auto& c : form->Controls())
            all.emplace_back(form->Name() + "." + c->Path(), DumpControl(*c));
        return Json(std::move(all)).Dump();
    }
    if (command == "msgbox") {
        want(0);
        return p.messageBox.TakeOldest().Dump();
    }
    if (command == "answer") {
        want(1);
        if (args[0] != "yes" && args[0] != "no")
            return Error("answer yes or answer no");
        p.messageBox.QueueAnswer(args[0] == "yes" ? MsgAnswer::Yes : MsgAnswer::No);
        return "ok";
    }
    if (command == "savefile") {
        want(1);
        p.saveDialog.Queue(args[0].empty() ? std::nullopt : std::optional<std::string>(args[0]));
        return "ok";
    }
    if (command == "printed" || command == "opened") {
        want(0);
        Json::Array items;
        for (const auto& s : command == "printed" ? p.printer.printed : p.browser.opened)
            items.emplace_back(s);
        return Json(std::move(items)).Dump();
    }
    if (command == "setting")
        return Setting(args);
    if (command == "autostart") {
        want(0);
        if (!app_->Svc().autostart)
            return "null";
        auto entry = app_->Svc().autostart->Read("quillane");
        return entry ? JsonQuote(*entry) : "null";
    }
    if (command == "tray") {
        want(0);
        return Json(Json::Object{{"icon", p.tray.icon}, {"tip", p.tray.tip}}).Dump();
    }
    return Error("unknown command: " + command);
}

std::string Driver::Setting(const std::vector<std::string>& args) {
    const std::string app = "quillane";
    if (args.size() == 1) {
        auto value = platform_->settings.Read(app, "Settings", ToStoreBytes(args[0]));
        return value ? JsonQuote(FromStoreBytes(*value)) : "null";
    }
    if (args.size() == 2) {
        platform_->settings.Write(app, "Settings", ToStoreBytes(args[0]), ToStoreBytes(args[1]));
        return "ok";
    }
    return Error("setting KEY [VALUE]");
}

std::string Driver::Get(const std::string& path) {
    const auto parts = SplitPath(path);
    if (parts.size() < 2)
        return Error("unknown: " + path);
    const std::string& owner = parts[0];
    if (!app_->IsFormName(owner)) {
        auto vars = app_->ModuleVariables(owner);
        if (!vars || parts.size() != 2)
            return Error("unknown: " + path);
        const Json* v = vars->Find(parts[1]);
        return v ? v->Dump() : Error("unknown: " + path);
    }
    Form* form = app_->Find(owner);
    if (parts.size() == 2) {
        const std::string& name = parts[1];
        if (name == "Loaded")
            return form ? "true" : "false";
        if (!form) {
            if (name == "Visible")
                return "false";
            return Error("not loaded: " + owner);
        }
        if (auto value = GetProperty(form->Me(), name))
            return value->Dump();
        const Json vars = form->Variables();
        if (const Json* v = vars.Find(name))
            return v->Dump();
        return Error("unknown: " + path);
    }
    if (!form)
        return Error("not loaded: " + owner);
    for (std::size_t k = parts.size() - 1; k >= 2; --k) {
        if (Control* c = form->Find(Join(parts, 1, k))) {
            auto value = GetProperty(*c, Join(parts, k, parts.size()));
            return value ? value->Dump() : Error("no such property: " + path);
        }
    }
    return Error("unknown: " + path);
}

std::string Driver::Act(const std::string& verb, const std::string& path) {
    const auto parts = SplitPath(path);
    Form* form = parts.size() >= 2 ? app_->Find(parts[0]) : nullptr;
    if (!form) {
        if (parts.size() >= 2 && app_->IsFormName(parts[0]))
            return Error("hidden");
        return Error("unknown: " + path);
    }
    Control* c = form->Find(Join(parts, 1, parts.size()));
    if (!c)
        return Error("unknown: " + path);
    if (auto why = c->Unreachable(); !why.empty())
        return Error(why);
    app_->Dispatch([&] {
        if (verb == "click")
            c->UserClick();
        else
            c->UserHover();
    });
    return "ok";
}

std::string Driver::Set(const std::string& path, const std::string& value) {
    const auto parts = SplitPath(path);
    if (parts.size() < 3)
        return Error("unknown: " + path);
    const std::string& property = parts.back();
    Form* form = app_->Find(parts[0]);
    if (!form)
        return app_->IsFormName(parts[0]) ? Error("hidden") : Error("unknown: " + path);
    Control* c = form->Find(Join(parts, 1, parts.size() - 1));
    if (!c)
        return Error("unknown: " + path);
    if (auto why = c->Unreachable(); !why.empty())
        return Error(why);
    if (property == "Text" &&
        (c->Kind() == ControlKind::TextBox || c->Kind() == ControlKind::RichTextBox)) {
        app_->Dispatch([&] { c->SetText(value); });
        return "ok";
    }
    if (property == "ListIndex" && c->Kind() == ControlKind::ComboBox) {
        int index = 0;
        try {
            index = std::stoi(value);
        } catch (...) {
            return Error("bad value: " + value);
        }
        if (index < 0 || index >= c->ListCount())
            return Error("bad value: " + value);
        app_->Dispatch([&] {
            c->SetFocus();
            c->SetListIndex(index);
        });
        return "ok";
    }
    if (property == "Value" && c->Kind() == ControlKind::CheckBox) {
        if (value != "0" && value != "1")
            return Error("bad value: " + value);
        app_->Dispatch([&] {
            c->SetFocus();
            c->SetValue(value == "1" ? 1 : 0);
        });
        return "ok";
    }
    if (property == "Value" && c->Kind() == ControlKind::OptionButton) {
        if (value != "true")
            return Error("bad value: " + value);
        app_->Dispatch([&] { c->UserClick(); });
        return "ok";
    }
    return Error("cannot set " + path);
}

std::string Driver::Close(const std::string& name) {
    if (!app_->IsFormName(name))
        return Error("unknown: " + name);
    if (!app_->Find(name))
        return Error("not loaded: " + name);
    app_->Dispatch([&] { app_->Unload(name); });
    return "ok";
}

} // namespace quillane::drive
