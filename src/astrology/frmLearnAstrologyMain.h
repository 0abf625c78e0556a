#pragma once
// The Astrology window: the choice of what to study or be tested on, the
// record browser, the test and its report, on four stacked panels.
#include "astrology/AstrologyRun.h"
#include "shell/SubjectWindow.h"

namespace quillane {

class frmLearnAstrologyMain : public SubjectWindow {
public:
    explicit frmLearnAstrologyMain(Application& app);

    void Form_Load() override;
    Json Variables() const override;

    Control& nuFile;
    Control& mnuExit;
    Control& fraFullBrand;

    // Frame1: the choice.
    Control& Frame1;
    ControlArray Label1;
    ControlArray optOption;
    Control& cboLearnOptionMain;
    Control& cboLearnOptionSub;
    Control& cboTestOptionMain;
    Control& cboTestOptionSub;
    Control& cmdNext;

    // Frame2: browsing.
    Control& Frame2;
    ControlArray lblLabel;
    Control& picAstro;
    Control& cmdBackDesc;
    Control& cmdNextDesc;

    // Frame3: a question.
    Control& Frame3;
    ControlArray lblTest;
    Control& picTest;
    ControlArray optAnswer_Choice;
    ControlArray txtAnswer_Choice;
    Control& cmdNextQuestion;

    // Frame4: the report.
    Control& Frame4;
    Control& RTB;

    // Index 0 stands in Frame2, index 1 in Frame4.
    ControlArray cmdBackToMain;

    PanelStack Frames;

    // The window's state; it goes with the window.
    astrology::RunState run;

    void InitAstrologyWindow();
    void FillSubList(Control& sub, const Control& main);
    void EnableOptionCombos(int Index);
    void StartRun();
    void ShowRecord();
    void NextRecord();
    void PreviousRecord();
    void BackToChoice();

    // The test (frmLearnAstrologyTest.cpp).
    void LoadQuestion();
    void NextQuestion();
    void ShowResult();

private:
    // Shows the glyph of a row in a picture control: a planet's when the
    // run's values column has 10 records, else a sign's.
    void ShowGlyph(Control& picture, int row);
};

} // namespace quillane
