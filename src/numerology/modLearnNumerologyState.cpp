#include "numerology/modLearnNumerologyState.h"
#include "common/StateJson.h"

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

Json ModuleVariables() {
    return Json::Object{
        {"blnLearnMode", blnLearnMode != 0},
        {"blnBySignificance", blnBySignificance != 0},
        {"intCurrent", int(intCurrent)},
        {"blnSubjectSelected", FlagsJson(blnSubjectSelected)},
        {"blnQuestionsBuilt", blnQuestionsBuilt != 0},
        {"intSignificanceQuestion", ListJson(intSignificanceQuestion)},
        {"strSignificanceAnswer", ListJson(strSignificanceAnswer)},
        {"intInterpretationQuestion", ListJson(intInterpretationQuestion)},
        {"strInterpretationAnswer", ListJson(strInterpretationAnswer)},
        {"strSubject", ListJson(strSubject)},
        {"strSignificance", ListJson(strSignificance)},
        {"strCalculation", ListJson(strCalculation)},
        {"intFirstRow", ListJson(intFirstRow)},
        {"intLastRow", ListJson(intLastRow)},
        {"intNumber", ListJson(intNumber)},
        {"strInterpretation", ListJson(strInterpretation)},
    };
}

} // namespace quillane::modLearnNumerology
