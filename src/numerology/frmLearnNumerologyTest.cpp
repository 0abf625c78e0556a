// The two tests of the Numerology window: the question loaders and the step
// from one question to the next. Nothing is scored while a test runs; the
// answers are kept as the texts taken, and the report compares texts.
#include "frmLearnNumerologyMain.h"

#include "common/Numbers.h"
#include "numerology/NumerologyDraws.h"
#include "numerology/modLearnNumerology.h"
#include "numerology/modLearnNumerologyState.h"

namespace quillane {

using namespace modLearnNumerology;

void frmLearnNumerologyMain::LoadSignificanceQuestion() {
    if (blnQuestionsBuilt != vbTrue) {
        blnQuestionsBuilt = vbTrue;
        BuildSignificanceQuestions();
    }
    // Distractors are not kept apart from the question's subject, so the
    // right text may stand twice among the choices.
    const DistractorTable local = DrawSignificanceDistractors();
    LoadNumerologyTables();
    const int p = DrawAnswerPlace();
    const auto subject = std::size_t(intSignificanceQuestion[std::size_t(intCurrent)]);
    for (int i = 0; i <= 4; ++i)
        txtOption(i).SetText(i == p ? strSignificance[subject]
                                    : strSignificance[std::size_t(local[std::size_t(i)])]);
    lblSubjectName.SetCaption(strSubject[subject]);
    lblQuestionNo.SetCaption("Question " + std::to_string(intCurrent + 1) + " of 10");
}

void frmLearnNumerologyMain::LoadInterpretationQuestion() {
    LoadNumerologyTables();
    // A list counts as built only when it exists: a test by significance that
    // was given up leaves the flag set but no list by interpretation, and the
    // test then builds its own from the subjects ticked now.
    if (blnQuestionsBuilt != vbTrue || !intInterpretationQuestion.IsInitialised()) {
        blnQuestionsBuilt = vbTrue;
        BuildInterpretationQuestions();
    }
    const DistractorTable local = DrawInterpretationDistractors();
    const int p = DrawAnswerPlace();
    const int row = intInterpretationQuestion(intCurrent);
    for (int i = 0; i <= 4; ++i) {
        if (i == p) {
            txtOption(i).SetText(strInterpretation[std::size_t(row)]);
            if (const int s = SubjectOfRow(row); s >= 0)
                lblSubjectName.SetCaption(strSubject[std::size_t(s)] + " " +
                                          std::to_string(intNumber[std::size_t(row)]));
        } else {
            txtOption(i).SetText(strInterpretation[std::size_t(local[std::size_t(i)])]);
        }
    }
    lblQuestionNo.SetCaption("Question " + std::to_string(intCurrent + 1) + " of " +
                             std::to_string(intInterpretationQuestion.UBound()));
}

void frmLearnNumerologyMain::cmdNextQuestion_Click() {
    int chosen = -1;
    for (int i = 0; i <= 4 && chosen < 0; ++i)
        if (optChoice(i).Selected())
            chosen = i;
    if (chosen < 0) {
        Message("Please select an option");
        return;
    }
    if (blnBySignificance == vbTrue)
        strSignificanceAnswer[std::size_t(intCurrent)] = txtOption(chosen).Text();
    else
        strInterpretationAnswer(intCurrent) = txtOption(chosen).Text();
    ++intCurrent;
    for (int i = 0; i <= 4; ++i)
        optChoice(i).SetValue(0);
    if (blnBySignificance == vbTrue) {
        if (intCurrent <= 9)
            LoadSignificanceQuestion();
        else
            ShowTestResult();
    } else {
        if (intCurrent <= intInterpretationQuestion.UBound() - 1)
            LoadInterpretationQuestion();
        else
            ShowTestResult();
    }
}

void frmLearnNumerologyMain::txtOption_MouseDown(int Index) {
    optChoice(Index).SetValue(-1);
}

} // namespace quillane
