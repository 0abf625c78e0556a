#include "numerology/NumerologyDraws.h"

#include "common/Numbers.h"
#include "common/Random.h"
#include "numerology/modLearnNumerology.h"
#include "numerology/modLearnNumerologyState.h"

namespace quillane::modLearnNumerology {

namespace {

// True when the value equals one of the entries 0 to last, the last included.
template <class Table> bool TakenUpTo(const Table& table, int last, int value) {
    for (int k = 0; k <= last; ++k)
        if (table[std::size_t(k)] == value)
            return true;
    return false;
}

} // namespace

float Draw() {
    Randomize();
    return Rnd();
}

void BuildSignificanceQuestions() {
    for (int i = 0; i < kSignificanceQuestions;) {
        const auto r = std::int16_t(Int(double(Draw()) * 15));
        if (TakenUpTo(intSignificanceQuestion, i, r))
            continue;
        intSignificanceQuestion[std::size_t(i)] = r;
        ++i;
    }
}

DistractorTable DrawSignificanceDistractors() {
    DistractorTable local{};
    for (int i = 0; i <= 4;) {
        const auto r = std::int16_t(Int(double(Draw()) * 15));
        if (TakenUpTo(local, i, r))
            continue;
        local[std::size_t(i)] = r;
        ++i;
    }
    return local;
}

void BuildInterpretationQuestions() {
    intInterpretationQuestion.ReDim(0, 0);
    long pos = 0;
    for (int s = 0; s <= kSubjectUpperBound - 1; ++s) {
        if (blnSubjectSelected[std::size_t(s)] != vbTrue)
            continue;
        intInterpretationQuestion.ReDimPreserve(intInterpretationQuestion.UBound() + 5);
        for (int j = 0; j <= 4;) {
            const float x = Draw();
            const float f = intFirstRow[std::size_t(s)];
            const float l = intLastRow[std::size_t(s)];
            // Single precision on purpose: the rounding of the float decides
            // the ties, which give the two end rows half the chance.
            const float scaled = (l - f) * x + f;
            const auto r = std::int16_t(CInt(scaled));
            // The whole list's entries 0 to j, not the subject's own five.
            bool taken = false;
            for (long k = 0; k <= j; ++k)
                taken = taken || intInterpretationQuestion(k) == r;
            if (taken)
                continue;
            intInterpretationQuestion(pos) = r;
            ++pos;
            ++j;
        }
    }
    strInterpretationAnswer.ReDim(0, intInterpretationQuestion.UBound());
}

DistractorTable DrawInterpretationDistractors() {
    DistractorTable local{};
    for (int i = 0; i <= 4;) {
        const auto r = std::int16_t(Int(double(Draw()) * 170));
        if (TakenUpTo(local, i, r))
            continue;
        local[std::size_t(i)] = r;
        ++i;
    }
    return local;
}

int DrawAnswerPlace() {
    return int(Int(double(Draw()) * 4));
}

int SubjectOfRow(int row) {
    for (int s = 0; s <= kSubjectUpperBound - 1; ++s)
        if (row >= intFirstRow[std::size_t(s)] && row <= intLastRow[std::size_t(s)])
            return s;
    return -1;
}

} // namespace quillane::modLearnNumerology
