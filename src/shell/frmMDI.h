#pragma once
// The launcher: the program's one top-level window, which opens the subjects.
#include "common/Form.h"

namespace quillane {

class frmMDI : public Form {
public:
    explicit frmMDI(Application& app);

    void Form_Load() override; // MDIForm_Load
    void Form_Unload(int& Cancel) override;

    // The subjects by button index: window name.
    static const char* const kSubjectWindows[4];

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
    void CloseAllSubjects();
    void lblCaption_MouseMove(int Index);
    void picMain_MouseMove();
};

} // namespace quillane
