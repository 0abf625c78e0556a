#pragma once
// The Tarot window: one tab control with five tabs (goals, settings,
// memorising, the test, the results), a menu and an exit button outside the
// tabs. The settings, the walk, the test and the report each have a file of
// their own; this one holds the frame and the tab rules.
#include "common/ListView.h"
#include "common/TabStrip.h"
#include "common/VBArray.h"
#include "goals/UserControl1.h"
#include "shell/SubjectWindow.h"

#include <cstdint>

namespace quillane {

class frmLearnTarotMain : public SubjectWindow {
public:
    // The tabs by index.
    enum TabIndex {
        kGoalsTab = 0,
        kSettingsTab = 1,
        kMemorizeTab = 2,
        kTestTab = 3,
        kResultsTab = 4
    };

    explicit frmLearnTarotMain(Application& app);

    void Form_Load() override;
    Json Variables() const override;

    // The tab change rule: it looks only at the new tab.
    void SSTab1_Click(int PreviousTab);

    // Settings (TarotSettings.cpp).
    void LoadTarotSettings();
    std::string BuildCardQuery() const;
    void chkMajor_Click();
    void chkMinor_Click();
    void chkGroup_Click(int Index);
    void optTestType_Click(int Index);
    void cmdSetOption_Click();
    void cmdStartTest2_Click();
    void cmdSaveSettings_Click();
    // Opens the selection the ticks make into rsCards; false, with the
    // message, when nothing is chosen.
    bool OpenSelection();

    // Memorising (TarotMemorize.cpp).
    void ShowCard();
    void cmdNext_Click();
    void cmdPrevious_Click();

    // The test (TarotTest.cpp).
    void cmdStartTest_Click();
    void cmdNextQuestion_Click();
    void LoadDescriptionQuestion();
    void LoadCardKeywordQuestion();
    void ShowQuestionPicture();
    void PickKeywordPositions();
    void optAnswer_Click();
    void chkKeywords_Click(int Index);

    // The report (TarotReport.cpp).
    void ShowTestReport();
    void Command5_Click();

    // The personal goals (TarotGoals.cpp).
    void LoadGoalsAtStart();
    void ReadGoals();
    void WriteGoals();
    void WriteGoalsExcept(long index);
    void AddGoal();
    void DisplayGoals(bool ShowAchieved);
    void ClearGoalPanel();
    void ShowGoalProgress();
    void optGoals_Click(int Index);
    void ListView1_ItemClick(int item);
    void cmdNewGoal_Click();
    void cmdSaveGoals_Click();
    void cmdMarkAchived_Click();
    void cmdDeleteGoals_Click();
    void Pickers_DateChanged();

    // Start at logon and the tray (TarotTray.cpp).
    bool IsRunAtStartup(const std::string& valueName);
    void SetRunAtStartup(const std::string& valueName, const std::string& folder, bool enable);
    void optRun_Click();
    void optDontRun_Click();
    void chkSysTray_Click();
    void MinimizeToTray();
    void RemoveTrayIcon();
    void mnuShow_Click();
    void mnuExit_Click();

    Control& mnuFile;
    Control& mnuTabGoals;
    Control& mnuTabSettings;
    Control& mnuFileSep;
    Control& mnuExit1;
    ControlArray cmdNav;
    TabStrip& SSTab1;

    // Tab 1: settings.
    Control& Frame4;
    Control& chkMajor;
    Control& chkMinor;
    ControlArray chkGroup;
    Control& chkReversed;
    Control& Frame1;
    ControlArray optDifficulty;
    Control& Frame2;
    ControlArray optTestType;
    Control& cmdSetOption;
    Control& cmdStartTest2;
    Control& cmdSaveSettings;
    Control& Label18;
    Control& Label21;
    Control& Label19;
    Control& Label20;
    Control& fraSystemTray;
    Control& optRun;
    Control& optDontRun;
    Control& chkSysTray;
    Control& Label14;

    // Tab 2: memorising.
    Control& lblCardNameMemorize;
    Control& picCardMemorize;
    Control& picCardMemorizeReversed;
    Control& Label9;
    Control& txtNormalMeaning;
    Control& Label17;
    Control& txtReverseMeaning;
    Control& Label8;
    Control& txtKeywords;
    Control& cmdPrevious;
    Control& cmdNext;
    Control& cmdStartTest;

    // Tab 3: the test.
    Control& lblCardName;
    Control& picResult;
    Control& lblIsReversed;
    Control& lblQCount;
    Control& llblQCount;
    Control& cmdNextQuestion;
    Control& picDescContainer;
    ControlArray Shape1;
    ControlArray optAnswer;
    Control& picKeywodContainer;
    ControlArray chkKeywords;
    Control& lblMaxKeyword;
    Control& Text1;
    PanelStack questionPanels; // the two containers lie on one spot

    // Tab 4: the results.
    Control& lblResultInfo;
    Control& txtResult;
    Control& Command5;

    // Tab 0: the personal goals.
    Control& lblInfo;
    Control& Label10;
    ListView& ListView1;
    ControlArray optGoals;
    PanelStack goalViews; // the two view buttons lie on one spot
    Control& cmdNewGoal;
    Control& cmdSaveGoals;
    Control& cmdDeleteGoals;
    Control& cmdMarkAchived;
    Control& Label15;
    Control& txtGoalName;
    Control& Label16;
    Control& txtGoalDesc;
    Control& Label12;
    UserControl1& mydtpStartingDate;
    Control& Label11;
    UserControl1& mydtpEndingDate;
    Control& Frame3;
    Control& Label7;
    Control& lblDayCount;
    Control& Label1;
    Control& lblDaysRemaining;
    Control& Label13;
    Control& Combo3;

    // The tray.
    Control& picHook;
    Control& mnuPopUp;
    Control& mnuShow;
    Control& mnuExit;

    // The walk.
    std::int32_t lngCardPosition = 0;
    std::int32_t lngCardCount = 0;
    // The test.
    std::int32_t lngQuestionCounter = 0;
    std::int16_t blnFirstQuestion = 0;
    std::int32_t lngCurrentCardID = 0;
    std::int16_t blnIsReversed = 0;
    std::int32_t lngFirstOption = 0;
    std::int32_t lngLastOption = 0;
    std::int32_t lngLastKeywordBox = 0;
    std::int32_t lngKeywordsToChoose = 0;
    VBArray<std::int32_t> lngKeywordPositions;
    VBArray<std::int32_t> lngUsedCards;
    VBArray<std::int32_t> lngScores;
    VBArray<std::int16_t> blnReversedFlags;
    std::int32_t lngCorrectCount = 0;

private:
    // A control of the window that stands on one page of the tab strip.
    Control& OnTab(ControlKind kind, const char* name, int tab) {
        return SSTab1.Place(Add(kind, name, &SSTab1), tab);
    }
    void BuildSettingsTab();
    void BuildMemorizeTab();
    void BuildTestTab();
    void BuildGoalsTab();
    void BuildTray();
    // The goal file, in the program's files folder.
    std::string GoalFilePath() const;
    // The goal file was not read to its end: it is kept before it is written.
    bool goalFileIncomplete_ = false;
    // Whether the Description test is chosen.
    bool DescriptionTest() const { return optTestType(0).Selected(); }
    // The level: 0 Beginner, 1 Intermediate, 2 Advanced.
    int Level() const;
};

} // namespace quillane
