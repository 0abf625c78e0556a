#include "RegisterTarot.h"

#include "frmLearnTarotMain.h"
#include "goals/modGoals.h"

namespace quillane {

void RegisterTarot(Application& app) {
    app.RegisterForm("frmLearnTarotMain",
                     [](Application& a) { return std::make_unique<frmLearnTarotMain>(a); });
    app.RegisterModule("modGoals", [] { return modGoals::Variables(); });
}

} // namespace quillane
