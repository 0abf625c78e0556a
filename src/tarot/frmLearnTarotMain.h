#pragma once
// The Tarot window: one tab control with five tabs (goals, settings,
// memorising, the test, the results), a menu and an exit button outside the
// tabs. The settings, the walk, the test and the report each have a file of
// their own; this one holds the frame and the tab rules.
#include "common/TabStrip.h"
#include "common/VBArray.h"
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
    void BuildSettingsTab();
    void BuildMemorizeTab();
    void BuildTestTab();
    // Whether the Description test is chosen.
    bool DescriptionTest() const { return optTestType(0).Selected(); }
    // The level: 0 Beginner, 1 Intermediate, 2 Advanced.
    int Level() const;
};

} // namespace quillane
