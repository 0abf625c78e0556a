#include "numerology/modLearnNumerology.h"

#include "numerology/NumerologyContent.h"

namespace quillane::modLearnNumerology {

SubjectStrings strSubject;
SubjectStrings strSignificance;
SubjectStrings strCalculation;
SubjectIntegers intFirstRow{};
SubjectIntegers intLastRow{};
std::array<std::int16_t, kRowUpperBound + 1> intNumber{};
std::array<std::string, kRowUpperBound + 1> strInterpretation;

namespace content {

// The subjects in index order, which is also the order of the subject check
// boxes. Row ranges are contiguous and together cover rows 0 to 170.
constexpr std::array<SubjectRecord, kSubjectCount> kSubjectRows = {{
    {"Life Path Number", 0, 10},
    {"Destiny / Expression Number", 11, 21},
    {"Soul's Urge/ Heart's Desire Number", 22, 32},
    {"Inner Dreams / Personality Number", 33, 43},
    {"Birthday Number", 44, 74},
    {"Life Path / Expression Bridge Number", 75, 83},
    {"Heart Desire / Personality Bridge Number", 84, 92},
    {"Balance Number", 93, 101},
    {"Maturity / Realization Number", 102, 112},
    {"Pinnacle Number", 113, 123},
    {"Challenge Number", 124, 132},
    {"Life Path Period Number", 133, 143},
    {"Personal Day Number", 144, 152},
    {"Personal Month Number", 153, 161},
    {"Personal Year Number", 162, 170},
}};

} // namespace content

namespace {

std::string JoinLines(std::span<const std::string_view> lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            text += "\r\n";
        }
        text += lines[i];
    }
    return text;
}

} // namespace

void LoadNumerologyTables() {
    for (std::size_t i = 0; i <= std::size_t(kSubjectUpperBound); ++i) {
        if (i < std::size_t(content::kSubjectCount)) {
            const content::SubjectRecord& subject = content::kSubjectRows[i];
            strSubject[i] = subject.name;
            strSignificance[i] = content::kSignificanceTexts[i];
            strCalculation[i] = JoinLines(content::kCalculationLines[i]);
            intFirstRow[i] = subject.firstRow;
            intLastRow[i] = subject.lastRow;
        } else {
            // The spare entry stays empty.
            strSubject[i].clear();
            strSignificance[i].clear();
            strCalculation[i].clear();
            intFirstRow[i] = 0;
            intLastRow[i] = 0;
        }
    }
    for (std::size_t row = 0; row <= std::size_t(kRowUpperBound); ++row) {
        intNumber[row] = content::kInterpretationRows[row].number;
        strInterpretation[row] = content::kInterpretationRows[row].text;
    }
}

} // namespace quillane::modLearnNumerology
