#include "RegisterRunes.h"

#include "frmLearnRunesMain.h"
#include "frmLearnRunesMeaningTest.h"
#include "runes/RuneWalk.h"
#include "runes/modLearnRunes.h"
#include "runes/modLearnRunesTest.h"

namespace quillane {

void RegisterRunes(Application& app) {
    // The tables are constants; they stand ready before any window reads them.
    modLearnRunes::LoadRuneTables();
    app.RegisterForm("frmLearnRunesMain",
                     [](Application& a) { return std::make_unique<frmLearnRunesMain>(a); });
    app.RegisterForm("frmLearnRunesMeaningTest",
                     [](Application& a) { return std::make_unique<frmLearnRunesMeaningTest>(a); });
    app.RegisterModule("modLearnRunes", [] { return modLearnRunes::Variables(); });
    app.RegisterModule("modLearnRunesTest", [] { return modLearnRunesTest::Variables(); });
}

} // namespace quillane
