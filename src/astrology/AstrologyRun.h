#pragma once
// The state of one browsing or test run of the Astrology window, and the
// rules of the test that need no window: the draws, the order of the
// questions, the choices of a question, the report and its score.
//
// The window owns one RunState for as long as it is open; closing the window
// discards it.
#include "common/Json.h"
#include "common/VBArray.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quillane::astrology {

struct RunState {
    std::int16_t intMainIndex = 0; // 0 signs, 1 planets, 2 houses
    std::int16_t intSubIndex = 0;  // position in the sub-category list
    std::string strMainCaption;
    std::string strSubCaption;
    std::int16_t intCurrent = 0; // record while browsing, question while testing
    VBArray<std::string> strValues;
    VBArray<std::string> strNames;
    VBArray<std::int16_t> intOrder;     // intOrder(q): the row question q asks about
    VBArray<std::string> strCorrect;    // filled by question number
    VBArray<std::string> strUserAnswer; // the text of the choice taken
};

// The highest index of the main category's columns: 12 for signs and houses,
// 10 for planets. It is also the number of records.
long HighestIndex(int mainCategory);

// A draw over 0 to n: the next number of the process-wide generator times n,
// rounded to the nearest whole number with a half going to the even side.
std::int16_t DrawOver(int n);

// Runs the load routine of the run's main category and copies its values
// column (by intSubIndex) and names column into strValues and strNames,
// spare entry included.
void CopyRunColumns(RunState& run);

// Sets up a test: sizes the test arrays, copies the columns and draws the
// order of the questions, a permutation of all rows. strCorrect is filled by
// question number.
void SetUpTest(RunState& run);

// The rows shown as choices 0 to 4 of a question about rightRow: rows 0 to 4
// in random order, then one random position overwritten with rightRow.
// Entry 5 is never used and stays -1.
std::array<std::int16_t, 6> DrawChoices(std::int16_t rightRow);

// One piece of the result report, written at the end of the text.
struct ReportPiece {
    std::string text;
    bool bold = false;
};

// The report's font size in points.
inline constexpr double kReportPointSize = 12;

// The pieces of the result report, in order. The "Correct Answer" of
// question q, and what the answer is scored against, is strCorrect at the row
// intOrder(q), not at q.
std::vector<ReportPiece> ResultPieces(const RunState& run);

// The number of answers that the report counts as correct.
std::int16_t ResultScore(const RunState& run);

// The run's variables, for the driver.
Json RunVariables(const RunState& run);

} // namespace quillane::astrology
