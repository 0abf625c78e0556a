#include "Driver.h"

#include "Inspect.h"
#include "WholeNumber.h"
#include "common/Errors.h"
#include "common/ListView.h"
#include "common/TabStrip.h"
#include "shell/StartUp.h"

#include <algorithm>
#include <cstdint>

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

// An error answer repeats what it was given; its control characters are
// escaped, so that it stays one whole line.
std::string Error(const std::string& message) {
    return "error: " + EscapeControls(message);
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

Driver::Driver(Application& app, DrivePlatform& platform) : app_(&app), platform_(platform) {
    if (platform.options.seed)
        TheGenerator().Reset(std::uint64_t(*platform.options.seed) * 0x9E3779B97F4A7C15ULL + 1);
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
    DrivePlatform& p = platform_;
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
    if (command == "click" || command == "hover" || command == "set" || command == "close")
        app_->ClosePopup();
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
        return Dump(args[0]);
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
        auto entry = p.entries.Read(p.folder.ExeName());
        return entry ? JsonQuote(*entry) : "null";
    }
    if (command == "tray") {
        want(0);
        return Json(Json::Object{{"icon", p.tray.icon}, {"tip", p.tray.tip}}).Dump();
    }
    if (command == "trayevent" || command == "traymenu") {
        want(1);
        running();
        return Tray(args, command == "traymenu");
    }
    return Error("unknown command: " + command);
}

std::string Driver::Setting(const std::vector<std::string>& args) {
    const std::string app = "quillane";
    if (args.size() == 1) {
        auto value = platform_.settings.Read(app, "Settings", ToStoreBytes(args[0]));
        return value ? JsonQuote(FromStoreBytes(*value)) : "null";
    }
    if (args.size() == 2) {
        platform_.settings.Write(app, "Settings", ToStoreBytes(args[0]), ToStoreBytes(args[1]));
        return "ok";
    }
    return Error("setting KEY [VALUE]");
}

namespace {

// "ListItems(3)" -> 3; nothing for anything else.
std::optional<int> ItemNumber(const std::string& part) {
    const std::string head = "ListItems(";
    if (part.rfind(head, 0) != 0 || part.back() != ')')
        return std::nullopt;
    return WholeNumber(std::string_view(part).substr(head.size(), part.size() - head.size() - 1));
}

std::optional<bool> Flag(const std::string& value) {
    if (value == "true" || value == "1")
        return true;
    if (value == "false" || value == "0")
        return false;
    return std::nullopt;
}

} // namespace

Driver::Target Driver::Resolve(const std::vector<std::string>& parts, std::size_t tail) {
    Target t;
    t.form = parts.size() >= 2 ? app_->Find(parts[0]) : nullptr;
    if (!t.form) {
        t.error = parts.size() >= 2 && app_->IsFormName(parts[0]) ? Error("hidden")
                                                                  : Error("unknown control");
        return t;
    }
    // The longest leading run of names that is a control; the rest is the
    // property or the item. A control's path has a name or two
    // ("dtpDay.cboDay"), and only that many are tried: a long path costs no
    // more than reading it.
    std::size_t names = 1;
    for (const auto& c : t.form->Controls()) {
        const std::string path = c->Path();
        names = std::max(names, 1 + std::size_t(std::count(path.begin(), path.end(), '.')));
    }
    for (std::size_t k = std::min(parts.size() - tail, 1 + names); k >= 2; --k)
        if (Control* c = t.form->Find(Join(parts, 1, k))) {
            t.control = c;
            t.rest.assign(parts.begin() + std::ptrdiff_t(k), parts.end());
            return t;
        }
    t.error = Error("unknown control");
    return t;
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
    const Target t = Resolve(parts, 1);
    if (!t.control)
        return Error("unknown: " + path);
    auto value = GetProperty(*t.control, Join(t.rest, 0, t.rest.size()));
    return value ? value->Dump() : Error("no such property: " + path);
}

std::string Driver::Act(const std::string& verb, const std::string& path) {
    const Target t = Resolve(SplitPath(path), 0);
    if (!t.control)
        return t.error == Error("unknown control") ? Error("unknown: " + path) : t.error;
    Control* c = t.control;
    if (auto why = c->Unreachable(); !why.empty())
        return Error(why);
    if (!t.rest.empty()) {
        // A list item: FORM.ListView1.ListItems(N)
        auto* list = dynamic_cast<ListView*>(c);
        const auto n = t.rest.size() == 1 ? ItemNumber(t.rest[0]) : std::nullopt;
        if (!list || !n || verb != "click")
            return Error("unknown: " + path);
        if (*n < 1 || *n > list->Count())
            return Error("bad value: " + t.rest[0]);
        app_->Dispatch([&] { list->UserClickItem(*n); });
        return "ok";
    }
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
    const Target t = Resolve(parts, 1);
    if (!t.control)
        return t.error == Error("unknown control") ? Error("unknown: " + path) : t.error;
    Control* c = t.control;
    if (auto why = c->Unreachable(); !why.empty())
        return Error(why);
    const std::string property = Join(t.rest, 0, t.rest.size());
    if (property == "Text" &&
        (c->Kind() == ControlKind::TextBox || c->Kind() == ControlKind::RichTextBox)) {
        if (c->Locked())
            return Error("locked");
        app_->Dispatch([&] { c->SetText(value); });
        return "ok";
    }
    if (property == "ListIndex" && c->Kind() == ControlKind::ComboBox) {
        const auto index = WholeNumber(value);
        if (!index || *index < 0 || *index >= c->ListCount())
            return Error("bad value: " + value);
        app_->Dispatch([&] { c->UserPick(*index); });
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
    if (auto* tabs = dynamic_cast<TabStrip*>(c); tabs && property == "Tab") {
        const int tab = WholeNumber(value).value_or(-1);
        if (tab < 0 || tab >= tabs->Tabs())
            return Error("bad value: " + value);
        if (!tabs->TabEnabled(tab))
            return Error("disabled");
        app_->Dispatch([&] {
            tabs->SetFocus();
            tabs->SetTab(tab);
        });
        return "ok";
    }
    if (auto* list = dynamic_cast<ListView*>(c);
        list && t.rest.size() == 2 && t.rest[1] == "Checked") {
        const auto n = ItemNumber(t.rest[0]);
        const auto checked = Flag(value);
        if (!n || *n < 1 || *n > list->Count() || !checked)
            return Error("bad value: " + (checked ? t.rest[0] : value));
        if (!list->Checkboxes())
            return Error("hidden");
        app_->Dispatch([&] { list->UserCheckItem(*n, *checked); });
        return "ok";
    }
    return Error("cannot set " + path);
}

std::string Driver::Tray(const std::vector<std::string>& args, bool menu) {
    if (!menu) {
        const auto message = WholeNumber(args[0]);
        if (!message)
            return Error("bad value: " + args[0]);
        app_->ClosePopup();
        app_->Dispatch([&] { platform_.tray.Mouse(*message); });
        const auto& popup = app_->OpenPopup();
        if (!popup)
            return "null";
        return Json(Json::Object{{"menu", popup->menu->Path()},
                                 {"default", popup->defaultEntry ? Json(popup->defaultEntry->Path())
                                                                 : Json()}})
            .Dump();
    }
    const auto popup = app_->OpenPopup();
    if (!popup)
        return Error("no menu");
    Form* form = app_->Find(popup->form);
    Control* entry = form ? form->Find(args[0]) : nullptr;
    if (!entry || entry->Container() != popup->menu)
        return Error("unknown: " + args[0]);
    if (!entry->Enabled() || !entry->Visible())
        return Error(entry->Enabled() ? "hidden" : "disabled");
    app_->ClosePopup();
    app_->Dispatch([&] { entry->UserClick(); });
    return "ok";
}

std::string Driver::Dump(const std::string& name) {
    if (!app_->IsFormName(name))
        return Error("unknown: " + name);
    Form* form = app_->Find(name);
    Json::Object all;
    if (form)
        all.emplace_back("Caption", form->Me().Caption());
    all.emplace_back("Visible", form && form->Me().Visible());
    all.emplace_back("Loaded", form != nullptr);
    if (form)
        for (const auto& c : form->Controls())
            all.emplace_back(form->Name() + "." + c->Path(), DumpControl(*c));
    return Json(std::move(all)).Dump();
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
