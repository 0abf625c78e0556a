#pragma once
// The Tarot window.
#include "shell/SubjectWindow.h"

namespace quillane {

class frmLearnTarotMain : public SubjectWindow {
public:
    explicit frmLearnTarotMain(Application& app);

    void Form_Load() override;

    Control& mnuFile;
    Control& mnuExit1;
    ControlArray cmdNav;
};

} // namespace quillane
