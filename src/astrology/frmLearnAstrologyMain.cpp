#include "frmLearnAstrologyMain.h"

#include "shell/modHelp.h"

namespace quillane {

frmLearnAstrologyMain::frmLearnAstrologyMain(Application& app)
    : SubjectWindow(app, "frmLearnAstrologyMain", "Quillane Learn Astrology"),
      nuFile(Add(ControlKind::Menu, "nuFile")), mnuExit(Add(ControlKind::Menu, "mnuExit", &nuFile)),
      fraFullBrand(Add(ControlKind::Frame, "fraFullBrand")) {
    nuFile.SetCaption("&File");
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(
        *this, {"mnuFileSep1", "mnuFileSep2", "mnuMakeMoney", "&Check for Software Update"});
    modHelp::AddSubjectLinks(*this, "Label61", &fraFullBrand);
    Me().Move(0, 0, 11520, 8640);
    mnuExit.Click = [this] { CloseWindow(); };
}

} // namespace quillane
