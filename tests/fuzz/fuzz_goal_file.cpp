// The goal file: whatever its text, reading stops cleanly or reaches the
// end; the goals read, written back, read the same and to the end, unless a
// text of theirs holds a double quote, which the notation can't keep.
#include "Property.h"
#include "goals/GoalFile.h"

#include <cstdint>
#include <string>

using namespace quillane;
using fuzz::Holds;

namespace {
bool SameGoal(const modGoals::GoalRecord& a, const modGoals::GoalRecord& b) {
    return a.strGoalName == b.strGoalName && a.dtStartDate == b.dtStartDate &&
           a.dtEndDate == b.dtEndDate && a.strGoalDesc == b.strGoalDesc &&
           a.blnAchieved == b.blnAchieved && a.intPercent == b.intPercent;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const modGoals::ParsedGoals read = modGoals::ParseGoals(text);
    Holds(read.failedLine.has_value() != read.failure.empty(), "a stop always says why");
    for (const auto& goal : read.goals)
        if (goal.strGoalName.find('"') != std::string::npos ||
            goal.strGoalDesc.find('"') != std::string::npos)
            return 0;
    const modGoals::ParsedGoals again = modGoals::ParseGoals(modGoals::FormatGoals(read.goals));
    Holds(!again.failedLine, "goals written read back to the end");
    Holds(again.goals.size() == read.goals.size(), "as many goals");
    for (std::size_t i = 0; i < read.goals.size(); ++i)
        Holds(SameGoal(again.goals[i], read.goals[i]), "the same goals");
    return 0;
}
