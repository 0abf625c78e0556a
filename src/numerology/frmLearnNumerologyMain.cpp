#include "frmLearnNumerologyMain.h"

#include "shell/modHelp.h"

namespace quillane {

frmLearnNumerologyMain::frmLearnNumerologyMain(Application& app)
    : SubjectWindow(app, "frmLearnNumerologyMain", "Quillane Learn Numerology"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuFile)) {
    mnuFile.SetCaption("&File");
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(*this);
    modHelp::AddSubjectLinks(*this, "Label14");
    Me().Move(0, 0, 11520, 8640);
    mnuExit.Click = [this] { CloseWindow(); };
}

} // namespace quillane
