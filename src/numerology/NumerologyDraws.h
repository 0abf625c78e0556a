#pragma once
// The draws of the two Numerology tests. Every draw re-seeds the generator
// from the clock first; each step turns the number into an index by its own
// rule (integer part, or rounding with ties to even in single precision), and
// those rules shape the odds on purpose.
#include <array>
#include <cstdint>

namespace quillane::modLearnNumerology {

// The local table of one question loader: six entries, zero on entry, of
// which 0 to 4 are used.
using DistractorTable = std::array<std::int16_t, 6>;

// Re-seeds from the clock and takes a number in [0,1).
float Draw();

// Fills intSignificanceQuestion(0 to 9) with ten different subjects. Each
// candidate is compared with the entries up to and including its own place,
// which still holds 0, so subject 0 never comes up.
void BuildSignificanceQuestions();
// Five different subjects from 1 to 14, by the same comparison.
DistractorTable DrawSignificanceDistractors();

// Gives intInterpretationQuestion five rows for every ticked subject, drawn in
// the subject's row range and rounded half to even; its upper bound becomes
// the number of questions. strInterpretationAnswer gets the same bounds. The
// tables must be loaded.
void BuildInterpretationQuestions();
// Five different rows from 1 to 169, from any subject.
DistractorTable DrawInterpretationDistractors();

// The place of the right answer, 0 to 3: never the fifth box.
int DrawAnswerPlace();

// The subject whose row range holds the row, or -1.
int SubjectOfRow(int row);

} // namespace quillane::modLearnNumerology
