#pragma once
// The Numerology window.
#include "shell/SubjectWindow.h"

namespace quillane {

class frmLearnNumerologyMain : public SubjectWindow {
public:
    explicit frmLearnNumerologyMain(Application& app);

    Control& mnuFile;
    Control& mnuExit;
};

} // namespace quillane
