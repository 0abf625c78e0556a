#include "RegisterTarot.h"

#include "frmLearnTarotMain.h"

namespace quillane {

void RegisterTarot(Application& app) {
    app.RegisterForm("frmLearnTarotMain",
                     [](Application& a) { return std::make_unique<frmLearnTarotMain>(a); });
}

} // namespace quillane
