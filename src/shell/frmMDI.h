#pragma once
// The launcher: the program's one top-level window, which opens the subjects.
#include "common/Form.h"

#include <array>
#include <string>
#include <vector>

namespace quillane {

// The windows the launcher opens, by button index, and the dialogs that
// belong to them; opening a subject closes them all first.
struct LauncherSubjects {
    std::array<std::string, 4> windows;
    std::vector<std::string> dialogs;
};

class frmMDI : public Form {
public:
    frmMDI(Application& app, LauncherSubjects subjects);

    void Form_Load() override; // MDIForm_Load
    void Form_Unload(int& Cancel) override;

    Control& mnuFile;
    Control& mnuExit;
    Control& Picture1;
    Control& picButtonContainer;
    ControlArray cmdSelectOption;
    Control& Picture2;
    Control& Picture3;
    Control& Picture4;
    Control& Picture5;
    Control& picMain;
    ControlArray lblCaption;
    Control& PicCoBrand;
    Control& cmdMdiExit;
    Control& Label7;
    Control& Picture6;
    Control& lblZenthoraBanner;

    void LayOutLauncher();
    void OpenSubjectByButton(int Index);
    void OpenSubjectByLabel(int Index);
    void ShowSubject(const std::string& window);

private:
    LauncherSubjects subjects_;
    void CloseAllSubjects();
    void lblCaption_MouseMove(int Index);
    void picMain_MouseMove();
};

} // namespace quillane
