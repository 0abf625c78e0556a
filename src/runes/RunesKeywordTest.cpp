// The keyword test of the Runes window: 24 questions, one per stone, scored
// by text against the drawn right keywords, and the result report.
#include "frmLearnRunesMain.h"

#include "runes/ResumeNext.h"
#include "runes/modLearnRunesTest.h"

namespace quillane {

using namespace modLearnRunesTest;
using runes::Resume;

void frmLearnRunesMain::BuildTestPanels() {
    lblCaption.SetCaption("You must choose only 1 Keyword");
    lblTestStone.SetCaption("Stone Name");
    picTest.SetPicture({});
    for (int i = 0; i <= 7; ++i)
        chkKeywords(i).SetCaption("Keywords");
    cmdNextQuestion.SetCaption("Next");
    Label1.SetCaption("Quillane Learn Runes Result");
}

void frmLearnRunesMain::chkKeywords_Click(int Index) {
    Resume([&] {
        if (chkKeywords(Index).Value() == 1)
            ++intKeywordTicks;
    });
    // The count only moves the focus; it decides nothing else.
    Resume([&] {
        if ((intTestLevel == 1 && intKeywordTicks == 4) ||
            (intTestLevel == 0 && intKeywordTicks == 1))
            cmdNextQuestion.SetFocus();
    });
}

void frmLearnRunesMain::cmdNextQuestion_Click() {
    intTicked = 0;
    intKeywordTicks = 0;
    auto load = [&] {
        Resume([&] {
            LoadKeywordQuestion(
                {chkKeywords, nullptr, lblCaption, lblIndex, lblTestStone, picTest});
        });
    };
    if (intQuestionNumber == 0) {
        intQuestionNumber = 1;
        load();
        return;
    }
    if (intQuestionNumber == 24) {
        // The ticks of the last question are neither checked nor scored.
        ShowKeywordReport();
        return;
    }
    if (!ScoreTicks(App(), chkKeywords, intTicked, intQuestionNumber))
        return;
    intQuestionNumber = std::int16_t(intQuestionNumber + 1);
    load();
}

void frmLearnRunesMain::ShowKeywordReport() {
    Resume([&] { txtResult.SetText(""); });
    Resume([&] { txtResult.SetText(TestReport("Keywords")); });
    intCorrect = 0;
    intTotalCorrect = 0;
    Resume([&] { ShowPanel(picTestResult); });
}

} // namespace quillane
