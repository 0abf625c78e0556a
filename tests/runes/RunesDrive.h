#pragma once
// Driver sessions of the Runes window: a scratch program folder for the goal
// notes, the window opened from the launcher, the first answers dropped.
#include "DriveSession.h"

#include <string>
#include <vector>

namespace quillane::testing {

class RunesSession {
public:
    // Runs the launcher, opens the Runes window, then the commands; answers
    // one line per command given here.
    std::vector<std::string> Run(std::vector<std::string> commands,
                                 std::vector<std::string> options = {}) {
        commands.insert(commands.begin(), {"start", "click frmMDI.cmdSelectOption(3)"});
        options.insert(options.end(), {"--program-dir", programDir, "--user-dir", user.Str(),
                                       "--today", "2026-11-20"});
        auto answers = Drive(options, commands);
        answers.erase(answers.begin(), answers.begin() + 2);
        return answers;
    }
    ScratchDir program, user;
    std::string programDir = program.Str();
};

inline std::string Quoted(const std::string& s) {
    return "\"" + s + "\"";
}

} // namespace quillane::testing
