#include "RegisterNumerology.h"

#include "frmLearnNumerologyMain.h"
#include "modLearnNumerologyState.h"

namespace quillane {

void RegisterNumerology(Application& app) {
    app.RegisterForm("frmLearnNumerologyMain",
                     [](Application& a) { return std::make_unique<frmLearnNumerologyMain>(a); });
    app.RegisterModule("modLearnNumerology", [] { return modLearnNumerology::ModuleVariables(); });
}

} // namespace quillane
