#pragma once
// The Runes window: stacked panels under a row of four subject buttons. The
// settings and goal notes, the walk through the stones, the test set-up and
// the keyword test each have a file of their own; this one holds the frame.
//
// Every handler runs under the window's resume-next policy (ResumeNext.h).
#include "shell/SubjectWindow.h"

#include <cstdint>

namespace quillane {

class frmLearnRunesMain : public SubjectWindow {
public:
    explicit frmLearnRunesMain(Application& app);

    void Form_Load() override;
    void Form_Unload(int& Cancel) override;
    Json Variables() const override;

    // Brings a panel, or a step frame of picTestSetUp, to the front.
    void ShowPanel(Control& panel);

    void cmdSubjects_Click(int Index);
    // The walk (RunesMemorize.cpp).
    void cmdMemorize_Click();
    void cmdNext_Click();
    void cmdBack_Click();
    void Memorize_Stone();
    void ShowStone(long pictureNumber);
    void ReverseStonePicture();
    // Settings and goals (RunesSettings.cpp).
    void LoadGoals();
    void LoadStoneSettings();
    void cmdSaveSettings_Click();
    void chkGoal1_Click();
    void chkGoal2_Click();
    void cmdGoal1_Click();
    void cmdGoal2_Click();
    // The folder and file name of a goal note (1 or 2).
    std::string GoalFile(int goal);
    // Test set-up (RunesTestSetUp.cpp).
    void cmdTestNext_Click(int Index);
    void cmdTestBack_Click(int Index);
    // The keyword test (RunesKeywordTest.cpp).
    void cmdNextQuestion_Click();
    void chkKeywords_Click(int Index);
    void ShowKeywordReport();

    Control& mnuFile;
    Control& mnuCalculate;
    Control& mnuSep3;
    Control& mnuExit;

    ControlArray cmdSubjects;

    Control& picSettings;
    ControlArray Label2;
    Control& Frame2;
    ControlArray chkGroups;
    Control& Frame3;
    ControlArray chkObjects;
    Control& Frame1;
    ControlArray chkMeanings;
    ControlArray lblLabel;
    Control& cmdMemorize;
    Control& cmdSaveSettings;

    Control& picMemorizeStones;
    Control& lblStoneName;
    ControlArray lblMeaningCaption;
    ControlArray picStone;
    ControlArray txtMeaning;
    Control& txtKeywords;
    Control& txtAlternativeNames;
    Control& cmdBack;
    Control& cmdNext;

    Control& picTestSetUp;
    Control& fraTestSubjects;
    Control& fraTestType;
    Control& fraTestLevel;
    ControlArray fraCaptions;
    ControlArray lblCaptions;
    ControlArray optTestSubjects;
    ControlArray chkTestType;
    ControlArray optTestLevel;
    ControlArray cmdTestNext;
    ControlArray cmdTestBack;

    Control& picGoals;
    Control& chkGoal1;
    Control& txtGoal1;
    Control& cmdGoal1;
    Control& chkGoal2;
    Control& txtGoal2;
    Control& cmdGoal2;

    Control& picTestKeywords;
    Control& lblIndex;
    Control& lblCaption;
    Control& lblTestStone;
    Control& picTest;
    ControlArray chkKeywords;
    Control& cmdNextQuestion;

    Control& picTestResult;
    Control& Label1;
    Control& txtResult;

    // Set by a valid cmdSaveSettings_Click, read and cleared by cmdMemorize.
    std::int16_t blnSettingsValid = 0;
    // Ticked boxes found by cmdNextQuestion, and ticks made since it ran.
    std::int16_t intTicked = 0;
    std::int16_t intKeywordTicks = 0;

private:
    void BuildSettingsPanel();
    void BuildMemorizePanel();
    void BuildTestSetUpPanel();
    void BuildGoalsPanel();
    void BuildTestPanels();
    void WireHandlers();

    PanelStack panels_;
    PanelStack steps_;
};

} // namespace quillane
