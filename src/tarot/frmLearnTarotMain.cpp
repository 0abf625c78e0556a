#include "frmLearnTarotMain.h"

#include "shell/modHelp.h"

namespace quillane {

frmLearnTarotMain::frmLearnTarotMain(Application& app)
    : SubjectWindow(app, "frmLearnTarotMain", "Quillane Learn Tarot Software"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuExit1(Add(ControlKind::Menu, "mnuExit1", &mnuFile)),
      cmdNav(AddArray(ControlKind::CommandButton, "cmdNav", 1, 1)) {
    mnuFile.SetCaption("&File");
    mnuExit1.SetCaption("&Exit");
    modHelp::AddHelpMenu(
        *this, {"mnuHelpSep1", "mnuHelpSep2", "mnuMakeMoney", "Check for Software &Update"});
    modHelp::AddSubjectLinks(*this, "Label6");
    cmdNav(1).SetCaption("Exit");
    Me().Move(0, 0, 11520, 8640);
    mnuExit1.Click = [this] { CloseWindow(); };
    cmdNav.OnClick([this](int) { CloseWindow(); });
}

void frmLearnTarotMain::Form_Load() {
    modHelp::CheckForUpdateReminder(App());
}

} // namespace quillane
