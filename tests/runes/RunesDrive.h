#pragma once
// Driver sessions of the Runes window: a scratch program folder for the goal
// notes and a user folder that sessions share, the window opened from the
// launcher first.
#include "DriveSession.h"
#include "common/Json.h"

#include <string>
#include <vector>

namespace quillane::testing {

using quillane::JsonQuote;

// A script on the Runes window: ".cmdNext" is frmLearnRunesMain.cmdNext.
inline Script Runes() {
    return Script("frmLearnRunesMain", {"start", "click frmMDI.cmdSelectOption(3)"});
}

class RunesSession {
public:
    std::vector<std::string> Run(const Script& script, std::vector<std::string> options = {}) {
        options.insert(options.end(), {"--program-dir", programDir, "--user-dir", user.Str(),
                                       "--today", "2026-11-20"});
        return script.Run(options);
    }
    ScratchDir program, user;
    std::string programDir = program.Str();
};

} // namespace quillane::testing
