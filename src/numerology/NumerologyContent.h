#pragma once
// The compiled-in content behind modLearnNumerology's tables, held as constant
// data. The tables copy from here in LoadNumerologyTables; nothing else in the
// program reads these directly, apart from the content tests.
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillane::modLearnNumerology::content {

inline constexpr int kSubjectCount = 15;
inline constexpr int kRowCount = 171;

// A kind of number: its name and the inclusive range of its interpretation rows.
struct SubjectRecord {
    std::string_view name;
    std::int16_t firstRow;
    std::int16_t lastRow;
};

// One interpretation: the number the row interprets and its paragraph.
struct InterpretationRow {
    std::int16_t number;
    std::string_view text;
};

extern const std::array<SubjectRecord, kSubjectCount> kSubjectRows;
extern const std::array<std::string_view, kSubjectCount> kSignificanceTexts;
// Each calculation text as its lines; the table joins them with CRLF.
extern const std::array<std::span<const std::string_view>, kSubjectCount> kCalculationLines;
extern const std::array<InterpretationRow, kRowCount> kInterpretationRows;

} // namespace quillane::modLearnNumerology::content
