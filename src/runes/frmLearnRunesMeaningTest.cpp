#include "frmLearnRunesMeaningTest.h"

#include "runes/ResumeNext.h"
#include "runes/frmLearnRunesMain.h"
#include "runes/modLearnRunesTest.h"

namespace quillane {

using namespace modLearnRunesTest;
using runes::Guard;
using runes::Resume;

frmLearnRunesMeaningTest::frmLearnRunesMeaningTest(Application& app)
    : Form(app, "frmLearnRunesMeaningTest"),
      lblMeaningTestCaption(Add(ControlKind::Label, "lblMeaningTestCaption")),
      lblMeaningTestQuestion(Add(ControlKind::Label, "lblMeaningTestQuestion")),
      lblMeaningTestStoneName(Add(ControlKind::Label, "lblMeaningTestStoneName")),
      picMeaningTest(Add(ControlKind::PictureBox, "picMeaningTest")),
      shaMeaning(AddArray(ControlKind::Frame, "shaMeaning", 0, 7)),
      chkMeaning(AddArray(ControlKind::CheckBox, "chkMeaning", 0, 7)),
      cmdNextQuestion1(Add(ControlKind::CommandButton, "cmdNextQuestion1")) {
    SetMdiChild(true);
    Me().SetCaption("Quillane Learn Runes");
    Me().Move(0, 0, 10500, 8400);
    cmdNextQuestion1.SetCaption("Next");
    cmdNextQuestion1.Click = Guard([this] { cmdNextQuestion1_Click(); });
    chkMeaning.OnClick(Guard([this](int i) { chkMeaning_Click(i); }));
}

void frmLearnRunesMeaningTest::Form_Unload(int& Cancel) {
    (void)Cancel;
    // Closed before the end of the test: the Runes window, hidden while the
    // dialog was up, comes back.
    Resume([&] {
        if (Form* main = App().Find("frmLearnRunesMain"); main && !main->Me().Visible())
            App().Show("frmLearnRunesMain");
    });
}

Json frmLearnRunesMeaningTest::Variables() const {
    return Json::Object{{"intMeaningTicks", Json(intMeaningTicks)},
                        {"intMeaningTicked", Json(intMeaningTicked)}};
}

void frmLearnRunesMeaningTest::LoadQuestion() {
    LoadMeaningQuestion({chkMeaning, &shaMeaning, lblMeaningTestCaption, lblMeaningTestQuestion,
                         lblMeaningTestStoneName, picMeaningTest});
}

void frmLearnRunesMeaningTest::chkMeaning_Click(int Index) {
    Resume([&] {
        if (chkMeaning(Index).Value() == 1)
            ++intMeaningTicks;
    });
    Resume([&] {
        if ((intTestLevel == 1 && intMeaningTicks == 4) ||
            (intTestLevel == 0 && intMeaningTicks == 1))
            cmdNextQuestion1.SetFocus();
    });
}

void frmLearnRunesMeaningTest::cmdNextQuestion1_Click() {
    intMeaningTicks = 0;
    intMeaningTicked = 0;
    if (intMeaningQuestionNumber == 0) {
        intMeaningQuestionNumber = 1;
        Resume([&] { LoadQuestion(); });
        return;
    }
    if (intMeaningQuestionNumber == 24) {
        // The ticks of the last question are never read.
        ShowReport();
        return;
    }
    if (!ScoreTicks(App(), chkMeaning, intMeaningTicked, intMeaningQuestionNumber))
        return;
    intMeaningQuestionNumber = std::int16_t(intMeaningQuestionNumber + 1);
    Resume([&] { LoadQuestion(); });
}

void frmLearnRunesMeaningTest::ShowReport() {
    std::string report;
    Resume([&] { report = TestReport("Descriptions"); });
    intCorrect = 0;
    intTotalCorrect = 0;
    Resume([&] {
        auto& main = static_cast<frmLearnRunesMain&>(App().Show("frmLearnRunesMain"));
        Resume([&] { main.txtResult.SetText(""); });
        Resume([&] { main.txtResult.SetText(report); });
        Resume([&] { main.ShowPanel(main.picTestResult); });
    });
    Resume([&] { App().Unload(Name()); });
}

} // namespace quillane
