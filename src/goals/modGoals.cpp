#include "modGoals.h"

namespace quillane::modGoals {

VBArray<GoalRecord> tGoals;

Json Variables() {
    if (!tGoals.IsInitialised())
        return Json::Object{{"tGoals", Json()}};
    Json::Array goals;
    for (const GoalRecord& g : tGoals.Items())
        goals.emplace_back(Json::Object{{"strGoalName", g.strGoalName},
                                        {"dtStartDate", g.dtStartDate.Iso()},
                                        {"dtEndDate", g.dtEndDate.Iso()},
                                        {"strGoalDesc", g.strGoalDesc},
                                        {"blnAchieved", g.blnAchieved != 0},
                                        {"intPercent", Json(g.intPercent)}});
    return Json::Object{{"tGoals", Json(std::move(goals))}};
}

} // namespace quillane::modGoals
