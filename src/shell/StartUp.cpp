#include "StartUp.h"

#include "modHelp.h"

namespace quillane {

void StartUp(Application& app) {
    if (app.Svc().instanceLock && app.Svc().instanceLock->AnotherInstanceRunning()) {
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
        if (form->Name() != "frmMDI")
            app.Unload(form->Name());
    app.Unload("frmMDI");
    app.End();
}

} // namespace quillane
