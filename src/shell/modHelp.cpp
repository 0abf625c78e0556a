#include "modHelp.h"

#include "modSettings.h"

namespace quillane::modHelp {

namespace {
void Open(Application& app, const std::string& address) {
    app.Svc().browser->Open(address);
}
} // namespace

void OpenOnlineHelp(Application& app) {
    Open(app, std::string(kProductSite) + "/quillane-help.html");
}
void OpenHomePage(Application& app) {
    Open(app, std::string(kMakerSite) + "/");
}
void OpenUpdatePage(Application& app) {
    Open(app, std::string(kProductSite) + "/download-quillane.html");
}
void OpenFullBrandPage(Application& app) {
    Open(app, std::string(kMakerSite) + "/fully-branded.html");
}
void OpenCoBrandPage(Application& app) {
    Open(app, std::string(kMakerSite) + "/co-brand.html");
}

void AddHelpMenu(Form& form, const HelpMenuNames& names) {
    Application& app = form.App();
    Control& help = form.Add(ControlKind::Menu, "mnuHelp");
    help.SetCaption("&Help");
    auto entry = [&](const std::string& name, const std::string& caption,
                     std::function<void()> action) {
        Control& item = form.Add(ControlKind::Menu, name, &help);
        item.SetCaption(caption);
        item.Click = std::move(action);
        return &item;
    };
    entry("mnuOnline", "&Online Help", [&app] { OpenOnlineHelp(app); });
    entry("mnuVisit", "&Visit Us Online", [&app] { OpenHomePage(app); });
    entry(names.separator1, "-", nullptr);
    entry("mnuUpdate", names.updateCaption, [&app] { OpenUpdatePage(app); });
    entry(names.separator2, "-", nullptr);
    entry("mnuAbout", "&About Software", [&app] { app.Show("frmAbout", true); });
    entry(names.makeMoney, "Make Money &Online", [&app] { OpenFullBrandPage(app); });
}

void AddSubjectLinks(Form& form, const std::string& forumLabel, Control* container) {
    Application& app = form.App();
    Control& cobrand = form.Add(ControlKind::Label, "lblCobrand", container);
    cobrand.SetCaption(kCoBrandText);
    cobrand.Click = [&app] { OpenCoBrandPage(app); };
    Control& fullBrand = form.Add(ControlKind::Label, "lblFullBrand", container);
    fullBrand.SetCaption(kFullBrandText);
    fullBrand.Click = [&app] { OpenFullBrandPage(app); };
    Control& forum = form.Add(ControlKind::Label, forumLabel);
    forum.SetCaption(kForumText);
    forum.Click = [&app] { OpenHomePage(app); };
}

void CheckForUpdateReminder(Application& app) {
    using namespace modSettings;
    const std::string key = EncodeSettingText("Duration");
    const std::string stored =
        DecodeSettingText(GetSetting(app, AppName(app), "Settings", key, ""));
    const Date today = app.Svc().clock->Today();
    auto writeToday = [&] {
        SaveSetting(app, AppName(app), "Settings", key,
                    EncodeSettingText(app.Svc().locale->ShortDate(today)));
    };
    if (stored.empty()) {
        writeToday();
        return;
    }
    const auto last = app.Svc().locale->ParseShortDate(stored);
    if (!last) {
        // A date that cannot be read back counts as a first run.
        writeToday();
        return;
    }
    const long days = Date::DaysBetween(*last, today);
    if (days >= -14 && days <= 14)
        return;
    const MsgAnswer answer = app.MsgBox(
        "There maybe an update to this software available\rDo you want to check for an update?",
        MsgButtons::YesNo, MsgIcon::Information);
    writeToday();
    if (answer == MsgAnswer::Yes)
        OpenUpdatePage(app);
}

} // namespace quillane::modHelp
