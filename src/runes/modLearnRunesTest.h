#pragma once
// modLearnRunesTest: what the two rune tests ask and how far they have come.
//
// The state is process-wide and outlives the Runes window; the keyword test
// (on the main window) and the meaning test (its own dialog) share it. The
// question builders draw from the one generator and write the question into
// the controls that the caller hands over.
#include "common/Application.h"
#include "common/Control.h"
#include "common/Json.h"
#include "common/VBArray.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillane::modLearnRunesTest {

// 0 Beginner, 1 Advanced.
extern std::int16_t intTestLevel;
// The keyword question on show, from 1; 0 before the first.
extern std::int16_t intQuestionNumber;
// The same for the meaning test.
extern std::int16_t intMeaningQuestionNumber;
// Positions asked by the meaning test: 0 Upright, 1 Reversed, 2 Merkstave
// (3 is a spare). Only ever set: a position once ticked stays in force.
extern VBArray<std::int16_t> blnStoneType;
// The 24 stones in asked order: question q asks intStoneOrder(q - 1).
extern VBArray<std::int16_t> intStoneOrder;
// Score text of question q at entry q - 1; overwritten, never cleared.
extern VBArray<std::string> strTestResult;
// Correct ticks of the question just scored, and summed over the test. The
// sum is cleared only by a report, so an abandoned test carries over.
extern std::int16_t intCorrect;
extern std::int16_t intTotalCorrect;
// The right texts and the choices of the question on show, in both tests.
extern VBArray<std::string> strCorrectKeyword;
extern VBArray<std::string> strKeywordOption;

// The controls a question is written into.
struct QuestionView {
    const ControlArray& choices; // chkKeywords or chkMeaning, 0 to 7
    const ControlArray* frames;  // shaMeaning, shown with their boxes; or null
    Control& caption;            // the instruction line
    Control& number;             // "Question " and the number
    Control& stoneName;
    Control& picture;
};

// The integer part of a fresh draw times n: 0 to n - 1.
int Draw(int n);

// Deals the 24 stones into a random order.
void DrawStoneOrder();

// The keyword question intQuestionNumber at intTestLevel.
void LoadKeywordQuestion(const QuestionView& view);
// The meaning question intMeaningQuestionNumber at intTestLevel.
void LoadMeaningQuestion(const QuestionView& view);

// A right meaning: the position by a draw over 3 and the ticked flags, the
// text of a fresh random stone (not the stone on show). Empty when no flag is
// set.
std::string DrawCorrectMeaning();
// A wrong meaning: any position, any stone.
std::string DrawWrongMeaning();

// Checks the ticks of an answered question against the level (a message and
// false when their number does not fit), then scores them by text, records the
// question's result and adds it to intTotalCorrect. Both tests score this way.
bool ScoreTicks(Application& app, const ControlArray& boxes, std::int16_t& ticked,
                std::int16_t questionNumber);

// The result report of either test; unit is "Keywords" or "Descriptions".
std::string TestReport(std::string_view unit);

// The module's variables, for the driver.
Json Variables();

} // namespace quillane::modLearnRunesTest
