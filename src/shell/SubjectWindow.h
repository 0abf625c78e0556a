#pragma once
// What every subject window shares: it is a child of the launcher, and closing
// it brings the launcher's welcome panel back.
#include "common/Application.h"
#include "common/Form.h"

namespace quillane {

class SubjectWindow : public Form {
public:
    SubjectWindow(Application& app, const std::string& name, const std::string& caption)
        : Form(app, name) {
        SetMdiChild(true);
        Me().SetCaption(caption);
    }

    void Form_Unload(int& Cancel) override {
        (void)Cancel;
        ReturnToLauncher();
    }

protected:
    void ReturnToLauncher() {
        if (Form* launcher = App().Find("frmMDI"))
            if (Control* welcome = launcher->Find("picMain"))
                welcome->SetVisible(true);
    }
    void CloseWindow() { App().Unload(Name()); }
};

} // namespace quillane
