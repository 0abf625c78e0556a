#include "StartUp.h"
#include "astrology/frmLearnAstrologyMain.h"
#include "frmAbout.h"
#include "frmMDI.h"
#include "numerology/frmLearnNumerologyMain.h"
#include "runes/frmLearnRunesMain.h"
#include "tarot/frmLearnTarotMain.h"

namespace quillane {

namespace {
template <class F> void Register(Application& app, const char* name) {
    app.RegisterForm(name, [](Application& a) { return std::make_unique<F>(a); });
}
} // namespace

void RegisterProgram(Application& app) {
    Register<frmMDI>(app, "frmMDI");
    Register<frmAbout>(app, "frmAbout");
    Register<frmLearnAstrologyMain>(app, "frmLearnAstrologyMain");
    Register<frmLearnNumerologyMain>(app, "frmLearnNumerologyMain");
    Register<frmLearnTarotMain>(app, "frmLearnTarotMain");
    Register<frmLearnRunesMain>(app, "frmLearnRunesMain");
}

} // namespace quillane
