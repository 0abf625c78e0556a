#include "RegisterRunes.h"

#include "frmLearnRunesMain.h"

namespace quillane {

void RegisterRunes(Application& app) {
    app.RegisterForm("frmLearnRunesMain",
                     [](Application& a) { return std::make_unique<frmLearnRunesMain>(a); });
}

} // namespace quillane
