#pragma once
// The Runes window.
#include "shell/SubjectWindow.h"

namespace quillane {

class frmLearnRunesMain : public SubjectWindow {
public:
    explicit frmLearnRunesMain(Application& app);

    Control& mnuFile;
    Control& mnuCalculate;
    Control& mnuSep3;
    Control& mnuExit;
};

} // namespace quillane
