#pragma once
// The Astrology window.
#include "shell/SubjectWindow.h"

namespace quillane {

class frmLearnAstrologyMain : public SubjectWindow {
public:
    explicit frmLearnAstrologyMain(Application& app);

    Control& nuFile;
    Control& mnuExit;
    Control& fraFullBrand;
};

} // namespace quillane
