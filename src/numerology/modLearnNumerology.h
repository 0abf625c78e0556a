#pragma once
// What the Numerology window knows: fifteen kinds of number (subjects), each
// with what it signifies, how it is worked out (taught as text, never
// computed), and one interpretation per value the number can take.
//
// Seven parallel tables, counted from 0 and read directly by index. The four
// subject tables keep one spare entry (index 15) that stays empty; every walk
// over subjects ends at 14. The tables are empty until the first call of
// LoadNumerologyTables, which every reader makes before it reads.
#include <array>
#include <cstdint>
#include <string>

namespace quillane::modLearnNumerology {

// Declared upper bounds (inclusive).
inline constexpr int kSubjectUpperBound = 15; // 0 to 14 used, 15 spare
inline constexpr int kRowUpperBound = 170;    // all rows used

using SubjectStrings = std::array<std::string, kSubjectUpperBound + 1>;
using SubjectIntegers = std::array<std::int16_t, kSubjectUpperBound + 1>;

extern SubjectStrings strSubject;      // subject name
extern SubjectStrings strSignificance; // what the number signifies
extern SubjectStrings strCalculation;  // how it is worked out; lines joined by CRLF
extern SubjectIntegers intFirstRow;    // first interpretation row of the subject
extern SubjectIntegers intLastRow;     // last interpretation row, inclusive
extern std::array<std::int16_t, kRowUpperBound + 1> intNumber;        // number a row interprets
extern std::array<std::string, kRowUpperBound + 1> strInterpretation; // its paragraph

// Assigns every entry of the seven tables, spare entries included. Safe to
// call any number of times; each call gives the same content.
void LoadNumerologyTables();

} // namespace quillane::modLearnNumerology
