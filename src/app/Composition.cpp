#include "Composition.h"

#include "astrology/RegisterAstrology.h"
#include "cards/modImageDB.h"
#include "numerology/RegisterNumerology.h"
#include "runes/RegisterRunes.h"
#include "shell/StartUp.h"
#include "shell/frmMDI.h"
#include "tarot/RegisterTarot.h"
#include "ui/astrology/AstrologyWindows.h"
#include "ui/binding/FormHost.h"
#include "ui/numerology/NumerologyWindows.h"
#include "ui/runes/RunesWindows.h"
#include "ui/shell/ShellWindows.h"
#include "ui/tarot/TarotWindows.h"

namespace quillane::app {

void RegisterProgram(Application& app) {
    RegisterShell(app, LauncherSubjects{{"frmLearnAstrologyMain", "frmLearnNumerologyMain",
                                         "frmLearnTarotMain", "frmLearnRunesMain"},
                                        {"frmLearnRunesMeaningTest"}});
    RegisterAstrology(app);
    RegisterNumerology(app);
    RegisterTarot(app);
    RegisterRunes(app);
}

Program::Program(const Services& services) : app_(services) {
    RegisterProgram(app_);
    TheGenerator().SetClock([clock = services.clock] { return clock->Timer(); });
    modImageDB::SetDecoder(services.pictures);
}

Program::~Program() {
    modImageDB::SetDecoder(nullptr);
    TheGenerator().SetClock(nullptr);
}

void RegisterWindows(ui::FormHost& host) {
    ui::RegisterShellWindows(host);
    ui::RegisterAstrologyWindows(host);
    ui::RegisterNumerologyWindows(host);
    ui::RegisterTarotWindows(host);
    ui::RegisterRunesWindows(host);
}

} // namespace quillane::app
