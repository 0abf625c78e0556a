#include "frmLearnRunesMain.h"

#include "shell/modHelp.h"

namespace quillane {

frmLearnRunesMain::frmLearnRunesMain(Application& app)
    : SubjectWindow(app, "frmLearnRunesMain", "Quillane Learn Runes"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuCalculate(Add(ControlKind::Menu, "mnuCalculate", &mnuFile)),
      mnuSep3(Add(ControlKind::Menu, "mnuSep3", &mnuFile)),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuFile)) {
    mnuFile.SetCaption("&File");
    // A dead entry, hidden from the start and never shown.
    mnuCalculate.SetCaption("Get My Tibetan &Astrology Result");
    mnuCalculate.SetVisible(false);
    mnuSep3.SetCaption("-");
    mnuSep3.SetVisible(false);
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(*this);
    Find("mnuMakeMoney")->SetVisible(false);
    modHelp::AddSubjectLinks(*this, "Label14");
    Me().Move(0, 0, 11520, 8640);
    mnuExit.Click = [this] { CloseWindow(); };
}

} // namespace quillane
