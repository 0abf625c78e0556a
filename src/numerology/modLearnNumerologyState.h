#pragma once
// The run-time state that the Numerology window's panels share: the learning
// flow's mode and position, the ticked subjects, and the running test's
// question lists and answers. It is process-wide and outlives the window, so a
// test that is given up by closing the window leaves its list for the next one.
//
// Booleans hold 0 and -1 (vbFalse, vbTrue), and the walks test for -1 itself.
#include "common/Json.h"
#include "common/VBArray.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillane::modLearnNumerology {

// Questions of the test by significance; the fixed tables keep one spare entry.
inline constexpr int kSignificanceQuestions = 10;

extern std::int16_t blnLearnMode;      // "Learn Numerology" chosen, not "Test Numerology"
extern std::int16_t blnBySignificance; // by significance, not by interpretation
// The subject on the study panel, or the question on the test panel.
extern std::int16_t intCurrent;
// Which subjects were ticked; entry 15 stays false.
extern std::array<std::int16_t, 16> blnSubjectSelected;

// The running test has its question list. Only the result report clears it.
extern std::int16_t blnQuestionsBuilt;
// Subject of question k and the text taken for it; entries 0 to 9 are used.
extern std::array<std::int16_t, kSignificanceQuestions + 1> intSignificanceQuestion;
extern std::array<std::string, kSignificanceQuestions + 1> strSignificanceAnswer;
// Row of question k and the text taken for it. The upper bound is the number
// of questions: the last entry stays 0 and is never asked. No bounds between
// tests.
extern VBArray<std::int16_t> intInterpretationQuestion;
extern VBArray<std::string> strInterpretationAnswer;

// What the result report leaves: no list built, the fixed tables zero and
// empty, no subject ticked, the dynamic lists without bounds.
void ClearTestState();

// Every named variable of the module, tables included, for the driver.
Json ModuleVariables();

} // namespace quillane::modLearnNumerology
