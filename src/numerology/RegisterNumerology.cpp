#include "RegisterNumerology.h"

#include "frmLearnNumerologyMain.h"

namespace quillane {

void RegisterNumerology(Application& app) {
    app.RegisterForm("frmLearnNumerologyMain",
                     [](Application& a) { return std::make_unique<frmLearnNumerologyMain>(a); });
}

} // namespace quillane
