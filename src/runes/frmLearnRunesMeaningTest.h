#pragma once
// The meaning test: a dialog over the launcher while the Runes window is
// hidden. It takes 24 questions and writes its report into the result panel
// of the Runes window. Closing it before the end brings the Runes window back.
#include "common/Application.h"
#include "common/Form.h"

#include <cstdint>

namespace quillane {

class frmLearnRunesMeaningTest : public Form {
public:
    explicit frmLearnRunesMeaningTest(Application& app);

    void Form_Unload(int& Cancel) override;
    Json Variables() const override;

    void cmdNextQuestion1_Click();
    void chkMeaning_Click(int Index);

    Control& lblMeaningTestCaption;
    Control& lblMeaningTestQuestion;
    Control& lblMeaningTestStoneName;
    Control& picMeaningTest;
    ControlArray shaMeaning;
    ControlArray chkMeaning;
    Control& cmdNextQuestion1;

    // Ticks made since the last press of cmdNextQuestion1 (only moves the
    // focus), and the ticked boxes found at that press.
    std::int16_t intMeaningTicks = 0;
    std::int16_t intMeaningTicked = 0;

private:
    void LoadQuestion();
    void ShowReport();
};

} // namespace quillane
