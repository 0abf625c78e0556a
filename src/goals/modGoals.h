#pragma once
// modGoals: the personal goals of the Tarot window, as records in file order.
// A goal's index in tGoals is its identity on the screen.
#include "common/Date.h"
#include "common/Json.h"
#include "common/VBArray.h"

#include <cstdint>
#include <string>

namespace quillane::modGoals {

struct GoalRecord {
    std::string strGoalName;
    Date dtStartDate;
    Date dtEndDate;
    std::string strGoalDesc;
    std::int16_t blnAchieved = 0;
    std::int16_t intPercent = 0;
};

// Not initialised while there are no goals.
extern VBArray<GoalRecord> tGoals;

// The goal file's name in the program's files folder.
inline constexpr const char* kGoalFile = "goals.txt";

// The records as the driver shows them: an array of objects keyed by field.
Json Variables();

} // namespace quillane::modGoals
