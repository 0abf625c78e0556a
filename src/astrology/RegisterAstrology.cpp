#include "RegisterAstrology.h"

#include "frmLearnAstrologyMain.h"

namespace quillane {

void RegisterAstrology(Application& app) {
    app.RegisterForm("frmLearnAstrologyMain",
                     [](Application& a) { return std::make_unique<frmLearnAstrologyMain>(a); });
}

} // namespace quillane
