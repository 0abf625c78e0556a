#include "StartUp.h"

#include "frmAbout.h"
#include "frmMDI.h"
#include "modHelp.h"

namespace quillane {

void RegisterShell(Application& app, const LauncherSubjects& subjects) {
    app.RegisterForm("frmMDI",
                     [subjects](Application& a) { return std::make_unique<frmMDI>(a, subjects); });
    app.RegisterForm("frmAbout", [](Application& a) { return std::make_unique<frmAbout>(a); });
    app.SetMainForm("frmMDI");
}

void StartUp(Application& app) {
    if (app.Svc().instanceLock->AnotherInstanceRunning()) {
        app.MsgBox("Application is already running", MsgButtons::Ok, MsgIcon::Information);
        ExitApplication(app);
        return;
    }
    Randomize();
    modHelp::CheckForUpdateReminder(app);
    app.Show("frmMDI");
}

void ExitApplication(Application& app) {
    for (Form* form : app.LoadedForms())
        if (form->Name() != app.MainForm())
            app.Unload(form->Name());
    app.Unload(app.MainForm());
    app.End();
}

} // namespace quillane
