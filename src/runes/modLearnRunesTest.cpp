#include "runes/modLearnRunesTest.h"
#include "common/StateJson.h"

#include "common/Numbers.h"
#include "common/Random.h"
#include "runes/RuneWalk.h"
#include "runes/modLearnRunes.h"

namespace quillane::modLearnRunesTest {

using namespace modLearnRunes;

std::int16_t intTestLevel = 0;
std::int16_t intQuestionNumber = 0;
std::int16_t intMeaningQuestionNumber = 0;
VBArray<std::int16_t> blnStoneType(0, 3);
VBArray<std::int16_t> intStoneOrder(0, 24);
VBArray<std::string> strTestResult(0, 24);
std::int16_t intCorrect = 0;
std::int16_t intTotalCorrect = 0;
VBArray<std::string> strCorrectKeyword;
VBArray<std::string> strKeywordOption;

int Draw(int n) {
    return int(Int(double(Rnd()) * n));
}

void DrawStoneOrder() {
    for (int i = 0; i <= 23; ++i) {
        Randomize();
        int r = Draw(24);
        for (int j = 0; j <= i - 1; ++j) {
            if (intStoneOrder(j) == r) {
                // A stone already dealt: draw again and compare from the start.
                r = Draw(24);
                j = -1;
            }
        }
        intStoneOrder(i) = std::int16_t(r);
    }
}

namespace {

// The boxes of the level in view and clear, the others hidden and clear.
void ShowChoices(const QuestionView& view, int shown) {
    for (int i = 0; i <= 7; ++i) {
        view.choices(i).SetVisible(i < shown);
        if (view.frames)
            (*view.frames)(i).SetVisible(i < shown);
        view.choices(i).SetValue(0);
    }
}

// The stone of the question: its name and its upright picture.
void ShowStone(const QuestionView& view, int question) {
    view.number.SetCaption("Question " + std::to_string(question));
    const int s = intStoneOrder(question - 1);
    view.stoneName.SetCaption(strStoneName.at(std::size_t(s)));
    view.picture.SetPicture(Img(s + 1));
}

const std::string& MeaningOf(int position, int stone) {
    switch (position) {
    case 0:
        return strNormalMeaning.at(std::size_t(stone));
    case 1:
        return strReverseMeaning.at(std::size_t(stone));
    default:
        return strMarkstaveMeaning.at(std::size_t(stone));
    }
}

// What every question does first: fresh answer lists for the level, its boxes
// in view and clear, its instruction, and the stone of the question.
void BeginQuestion(const QuestionView& view, int questionNumber) {
    LoadRuneTables();
    Randomize();
    const bool advanced = intTestLevel != 0;
    strCorrectKeyword.ReDim(0, advanced ? 4 : 1);
    strKeywordOption.ReDim(0, advanced ? 8 : 5);
    ShowChoices(view, advanced ? 8 : 5);
    view.caption.SetCaption(advanced ? "You must choose 4 options"
                                     : "You must choose only 1 option");
    ShowStone(view, questionNumber);
}

} // namespace

void LoadKeywordQuestion(const QuestionView& view) {
    const bool advanced = intTestLevel != 0;
    const int shown = advanced ? 8 : 5;
    BeginQuestion(view, intQuestionNumber);
    const int s = intStoneOrder(intQuestionNumber - 1);
    const int rights = advanced ? 4 : 1;
    // Independent draws: a keyword may come twice, another not at all.
    for (int j = 0; j < rights; ++j)
        strCorrectKeyword(j) = strKeyword.at(4 * std::size_t(s) + std::size_t(Draw(4)));
    for (int i = 0; i < shown; ++i) {
        const std::string& k = strKeyword.at(std::size_t(Draw(96)));
        bool right = false;
        for (int j = 0; j < rights; ++j)
            right = right || k == strCorrectKeyword(j);
        if (right)
            --i; // draw this choice again
        else
            strKeywordOption(i) = k;
    }
    const int p = Draw(shown);
    // One box gets a right keyword: at Advanced the last of the four drawn.
    for (int j = 0; j < rights; ++j)
        strKeywordOption(p) = strCorrectKeyword(j);
    for (int i = 0; i < shown; ++i)
        view.choices(i).SetCaption(strKeywordOption(i));
}

std::string DrawCorrectMeaning() {
    // The first ticked position in the order of the row decides.
    static constexpr int kOrder[3][3] = {{0, 1, 2}, {1, 0, 2}, {2, 0, 1}};
    const int k = Draw(3);
    int position = -1;
    for (int candidate : kOrder[k])
        if (position < 0 && blnStoneType(candidate) != 0)
            position = candidate;
    const int c = Draw(24);
    return position < 0 ? std::string() : MeaningOf(position, c);
}

std::string DrawWrongMeaning() {
    const int k = Draw(3);
    const int c = Draw(24);
    return MeaningOf(k, c);
}

void LoadMeaningQuestion(const QuestionView& view) {
    const bool advanced = intTestLevel != 0;
    const int shown = advanced ? 8 : 5;
    BeginQuestion(view, intMeaningQuestionNumber);
    for (int j = 0; j < (advanced ? 4 : 1); ++j)
        strCorrectKeyword(j) = DrawCorrectMeaning();
    // Only the first right text is kept out of the wrong ones.
    for (int i = 0; i < shown; ++i) {
        std::string wrong = DrawWrongMeaning();
        if (wrong == strCorrectKeyword(0))
            --i;
        else
            strKeywordOption(i) = std::move(wrong);
    }
    strKeywordOption(Draw(shown)) = strCorrectKeyword(0);
    for (int i = 0; i < shown; ++i)
        view.choices(i).SetCaption(strKeywordOption(i));
}

std::string TestReport(std::string_view unit) {
    LoadRuneTables();
    const bool advanced = intTestLevel != 0;
    std::string report;
    for (int i = 0; i <= 23; ++i) {
        const std::string& name = strStoneName.at(std::size_t(intStoneOrder(i)));
        report += Format00(i + 1) + "." + std::string(10, ' ') + name;
        if (name.size() < 30)
            report += std::string(30 - name.size(), ' ');
        // The last question is never scored: its row always reads nought.
        if (i < 23)
            report += strTestResult(i);
        else
            report += advanced ? "0 Correct Out of 4" : "0 Correct Out of 1";
        report += "\r\n";
    }
    report += std::string(99, '-') + "\r\n";
    report += std::to_string(intTotalCorrect) + " Correct Out Of " + (advanced ? " 96 " : " 24 ") +
              std::string(unit);
    return report;
}

Json Variables() {
    return Json::Object{
        {"intTestLevel", Json(intTestLevel)},
        {"intQuestionNumber", Json(intQuestionNumber)},
        {"intMeaningQuestionNumber", Json(intMeaningQuestionNumber)},
        {"blnStoneType", FlagsJson(blnStoneType)},
        {"intStoneOrder", ListJson(intStoneOrder)},
        {"strTestResult", ListJson(strTestResult)},
        {"intCorrect", Json(intCorrect)},
        {"intTotalCorrect", Json(intTotalCorrect)},
        {"strCorrectKeyword", ListJson(strCorrectKeyword)},
        {"strKeywordOption", ListJson(strKeywordOption)},
    };
}

} // namespace quillane::modLearnRunesTest
