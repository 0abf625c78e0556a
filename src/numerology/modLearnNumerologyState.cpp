#include "numerology/modLearnNumerologyState.h"

#include "numerology/modLearnNumerology.h"

namespace quillane::modLearnNumerology {

std::int16_t blnLearnMode = 0;
std::int16_t blnBySignificance = 0;
std::int16_t intCurrent = 0;
std::array<std::int16_t, 16> blnSubjectSelected{};

std::int16_t blnQuestionsBuilt = 0;
std::array<std::int16_t, kSignificanceQuestions + 1> intSignificanceQuestion{};
std::array<std::string, kSignificanceQuestions + 1> strSignificanceAnswer;
VBArray<std::int16_t> intInterpretationQuestion;
VBArray<std::string> strInterpretationAnswer;

void ClearTestState() {
    blnQuestionsBuilt = 0;
    intSignificanceQuestion.fill(0);
    strSignificanceAnswer.fill(std::string());
    blnSubjectSelected.fill(0);
    intInterpretationQuestion.Erase();
    strInterpretationAnswer.Erase();
}

namespace {

template <class Range> Json Numbers(const Range& values) {
    Json::Array out;
    for (const auto& v : values)
        out.emplace_back(int(v));
    return Json(std::move(out));
}

template <class Range> Json Flags(const Range& values) {
    Json::Array out;
    for (const auto& v : values)
        out.emplace_back(v != 0);
    return Json(std::move(out));
}

template <class Range> Json Strings(const Range& values) {
    Json::Array out;
    for (const auto& v : values)
        out.emplace_back(v);
    return Json(std::move(out));
}

// A dynamic array without bounds reads as null.
template <class T, class Convert> Json Dynamic(const VBArray<T>& array, Convert convert) {
    return array.IsInitialised() ? convert(array.Items()) : Json();
}

} // namespace

Json ModuleVariables() {
    return Json::Object{
        {"blnLearnMode", blnLearnMode != 0},
        {"blnBySignificance", blnBySignificance != 0},
        {"intCurrent", int(intCurrent)},
        {"blnSubjectSelected", Flags(blnSubjectSelected)},
        {"blnQuestionsBuilt", blnQuestionsBuilt != 0},
        {"intSignificanceQuestion", Numbers(intSignificanceQuestion)},
        {"strSignificanceAnswer", Strings(strSignificanceAnswer)},
        {"intInterpretationQuestion",
         Dynamic(intInterpretationQuestion, [](const auto& v) { return Numbers(v); })},
        {"strInterpretationAnswer",
         Dynamic(strInterpretationAnswer, [](const auto& v) { return Strings(v); })},
        {"strSubject", Strings(strSubject)},
        {"strSignificance", Strings(strSignificance)},
        {"strCalculation", Strings(strCalculation)},
        {"intFirstRow", Numbers(intFirstRow)},
        {"intLastRow", Numbers(intLastRow)},
        {"intNumber", Numbers(intNumber)},
        {"strInterpretation", Strings(strInterpretation)},
    };
}

} // namespace quillane::modLearnNumerology
