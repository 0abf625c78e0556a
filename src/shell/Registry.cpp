#include "StartUp.h"
#include "astrology/RegisterAstrology.h"
#include "frmAbout.h"
#include "frmMDI.h"
#include "numerology/RegisterNumerology.h"
#include "runes/RegisterRunes.h"
#include "tarot/RegisterTarot.h"

namespace quillane {

void RegisterProgram(Application& app) {
    app.RegisterForm("frmMDI", [](Application& a) { return std::make_unique<frmMDI>(a); });
    app.RegisterForm("frmAbout", [](Application& a) { return std::make_unique<frmAbout>(a); });
    RegisterAstrology(app);
    RegisterNumerology(app);
    RegisterTarot(app);
    RegisterRunes(app);
}

} // namespace quillane
