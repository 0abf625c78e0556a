#pragma once
// The goal file's notation: one line a goal, six fields separated by commas,
// CRLF after each line:
//
//     "Weekly reading",#2009-03-01#,#2009-03-08#,"Study the Cups",#FALSE#,40
//
// A quoted string ends at the next double quote wherever it stands (commas
// and line breaks inside are kept; a quote typed into a name ends it early,
// and what follows up to the next comma is passed over). Dates stand between
// # signs as year-month-day, booleans as #TRUE# or #FALSE#.
#include "modGoals.h"

#include <optional>
#include <string>
#include <vector>

namespace quillane::modGoals {

struct ParsedGoals {
    std::vector<GoalRecord> goals; // the goals read before any failure
    // Where reading stopped, when it did not reach the end: the line (from 1)
    // and what was wrong there.
    std::optional<int> failedLine;
    std::string failure;
};

ParsedGoals ParseGoals(const std::string& text);
// The file's text for the goals, leaving out the one at `except` (-1: none).
std::string FormatGoals(const std::vector<GoalRecord>& goals, long except = -1);

} // namespace quillane::modGoals
