// The start-up choice on the Settings tab, and the tray: a start at logon
// with "/STARTUP" can put the window in the notification area.
#include "frmLearnTarotMain.h"

#include "common/Numbers.h"
#include "shell/modSettings.h"

namespace quillane {

namespace {
constexpr const char* kTrayTip = "Recent";
} // namespace

void frmLearnTarotMain::BuildTray() {
    picHook.SetVisible(false);
    mnuPopUp.SetCaption("PopUp");
    mnuPopUp.SetVisible(false);
    mnuShow.SetCaption("Show");
    mnuExit.SetCaption("Exit");
    optRun.Click = [this] { optRun_Click(); };
    optDontRun.Click = [this] { optDontRun_Click(); };
    chkSysTray.Click = [this] { chkSysTray_Click(); };
    mnuShow.Click = [this] { mnuShow_Click(); };
    mnuExit.Click = [this] { mnuExit_Click(); };
}

bool frmLearnTarotMain::IsRunAtStartup(const std::string& valueName) {
    return App().Svc().autostart->Read(valueName).has_value();
}

void frmLearnTarotMain::SetRunAtStartup(const std::string& valueName, const std::string& folder,
                                        bool enable) {
    IAutostart& entries = *App().Svc().autostart;
    if (const SystemError failed = entries.Open()) {
        App().MsgBox("Error " + std::to_string(failed.code) + " opening key\r\n" +
                         failed.description,
                     MsgButtons::Ok, MsgIcon::None);
        return;
    }
    if (!enable) {
        entries.Remove(valueName);
        return;
    }
    const std::string command = "\"" + folder + "/" + valueName + "\" /STARTUP";
    if (const SystemError failed = entries.Write(valueName, command))
        App().MsgBox("Error " + std::to_string(failed.code) + " setting key\r\n" +
                         failed.description,
                     MsgButtons::Ok, MsgIcon::None);
}

void frmLearnTarotMain::optRun_Click() {
    SetRunAtStartup(App().Svc().folder->ExeName(), App().Svc().folder->ProgramDir(), true);
    chkSysTray.SetEnabled(true);
}

void frmLearnTarotMain::optDontRun_Click() {
    SetRunAtStartup(App().Svc().folder->ExeName(), App().Svc().folder->ProgramDir(), false);
    chkSysTray.SetEnabled(false);
    chkSysTray.SetValue(0);
}

void frmLearnTarotMain::chkSysTray_Click() {
    modSettings::SaveSetting(App(), modSettings::AppName(App()), "Settings", "RunAtSysTray",
                             chkSysTray.Value() == 1 ? "True" : "False");
}

void frmLearnTarotMain::MinimizeToTray() {
    Application& app = App();
    ITray& tray = *app.Svc().tray;
    if (!tray.Available()) {
        // Without a notification area the window is only minimised, so it
        // can always be reached.
        Me().SetWindowState(WindowState::Minimized);
        return;
    }
    // The icon may outlive the window: its messages find the window by name.
    const std::string form = Name();
    tray.Add(kTrayTip, [&app, form](int message) {
        app.Dispatch([&app, form, message] {
            auto* window = dynamic_cast<frmLearnTarotMain*>(app.Find(form));
            if (!window)
                return;
            if (message == kTrayLeftDoubleClick)
                window->mnuShow_Click();
            else if (message == kTrayRightButtonUp)
                app.PopupMenu(*window, window->mnuPopUp, &window->mnuShow);
        });
    });
    Me().SetWindowState(WindowState::Minimized);
    Me().SetVisible(false);
    HideWhileLoading();
}

void frmLearnTarotMain::RemoveTrayIcon() {
    App().Svc().tray->Remove();
}

void frmLearnTarotMain::mnuShow_Click() {
    App().Show(Name());
    Me().SetWindowState(WindowState::Normal);
    RemoveTrayIcon();
}

void frmLearnTarotMain::mnuExit_Click() {
    CloseWindow();
}

} // namespace quillane
