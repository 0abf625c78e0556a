#include "frmLearnTarotMain.h"

#include "cards/modDB.h"
#include "common/Numbers.h"
#include "common/StateJson.h"
#include "shell/modHelp.h"
#include "shell/modSettings.h"

namespace quillane {

namespace {

// The captions of the five tabs, blanks and all.
const char* const kTabCaptions[5] = {" My Personal Goal ", "     Settings       ",
                                     "  Memorize Cards  ", "      Take Test     ",
                                     "       Results        "};

} // namespace

frmLearnTarotMain::frmLearnTarotMain(Application& app)
    : SubjectWindow(app, "frmLearnTarotMain", "Quillane Learn Tarot Software"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuTabGoals(Add(ControlKind::Menu, "mnuTabGoals", &mnuFile)),
      mnuTabSettings(Add(ControlKind::Menu, "mnuTabSettings", &mnuFile)),
      mnuFileSep(Add(ControlKind::Menu, "mnuFileSep", &mnuFile)),
      mnuExit1(Add(ControlKind::Menu, "mnuExit1", &mnuFile)),
      cmdNav(AddArray(ControlKind::CommandButton, "cmdNav", 1, 1)),
      SSTab1(AddTyped<TabStrip>("SSTab1", 5)),
      // Tab 1
      Frame4(OnTab(ControlKind::Frame, "Frame4", kSettingsTab)),
      chkMajor(Add(ControlKind::CheckBox, "chkMajor", &Frame4)),
      chkMinor(Add(ControlKind::CheckBox, "chkMinor", &Frame4)),
      chkGroup(AddArray(ControlKind::CheckBox, "chkGroup", 0, 3, &Frame4)),
      chkReversed(Add(ControlKind::CheckBox, "chkReversed", &Frame4)),
      Frame1(OnTab(ControlKind::Frame, "Frame1", kSettingsTab)),
      optDifficulty(AddArray(ControlKind::OptionButton, "optDifficulty", 0, 2, &Frame1)),
      Frame2(OnTab(ControlKind::Frame, "Frame2", kSettingsTab)),
      optTestType(AddArray(ControlKind::OptionButton, "optTestType", 0, 1, &Frame2)),
      cmdSetOption(OnTab(ControlKind::CommandButton, "cmdSetOption", kSettingsTab)),
      cmdStartTest2(OnTab(ControlKind::CommandButton, "cmdStartTest2", kSettingsTab)),
      cmdSaveSettings(OnTab(ControlKind::CommandButton, "cmdSaveSettings", kSettingsTab)),
      Label18(OnTab(ControlKind::Label, "Label18", kSettingsTab)),
      Label21(OnTab(ControlKind::Label, "Label21", kSettingsTab)),
      Label19(OnTab(ControlKind::Label, "Label19", kSettingsTab)),
      Label20(OnTab(ControlKind::Label, "Label20", kSettingsTab)),
      fraSystemTray(OnTab(ControlKind::Frame, "fraSystemTray", kSettingsTab)),
      optRun(Add(ControlKind::OptionButton, "optRun", &fraSystemTray)),
      optDontRun(Add(ControlKind::OptionButton, "optDontRun", &fraSystemTray)),
      chkSysTray(Add(ControlKind::CheckBox, "chkSysTray", &fraSystemTray)),
      Label14(Add(ControlKind::Label, "Label14", &fraSystemTray)),
      // Tab 2
      lblCardNameMemorize(OnTab(ControlKind::Label, "lblCardNameMemorize", kMemorizeTab)),
      picCardMemorize(OnTab(ControlKind::PictureBox, "picCardMemorize", kMemorizeTab)),
      picCardMemorizeReversed(
          OnTab(ControlKind::PictureBox, "picCardMemorizeReversed", kMemorizeTab)),
      Label9(OnTab(ControlKind::Label, "Label9", kMemorizeTab)),
      txtNormalMeaning(OnTab(ControlKind::TextBox, "txtNormalMeaning", kMemorizeTab)),
      Label17(OnTab(ControlKind::Label, "Label17", kMemorizeTab)),
      txtReverseMeaning(OnTab(ControlKind::TextBox, "txtReverseMeaning", kMemorizeTab)),
      Label8(OnTab(ControlKind::Label, "Label8", kMemorizeTab)),
      txtKeywords(OnTab(ControlKind::TextBox, "txtKeywords", kMemorizeTab)),
      cmdPrevious(OnTab(ControlKind::CommandButton, "cmdPrevious", kMemorizeTab)),
      cmdNext(OnTab(ControlKind::CommandButton, "cmdNext", kMemorizeTab)),
      cmdStartTest(OnTab(ControlKind::CommandButton, "cmdStartTest", kMemorizeTab)),
      // Tab 3
      lblCardName(OnTab(ControlKind::Label, "lblCardName", kTestTab)),
      picResult(OnTab(ControlKind::PictureBox, "picResult", kTestTab)),
      lblIsReversed(OnTab(ControlKind::Label, "lblIsReversed", kTestTab)),
      lblQCount(OnTab(ControlKind::Label, "lblQCount", kTestTab)),
      llblQCount(OnTab(ControlKind::Label, "llblQCount", kTestTab)),
      cmdNextQuestion(OnTab(ControlKind::CommandButton, "cmdNextQuestion", kTestTab)),
      picDescContainer(OnTab(ControlKind::PictureBox, "picDescContainer", kTestTab)),
      Shape1(AddArray(ControlKind::Frame, "Shape1", 0, 6, &picDescContainer)),
      optAnswer(AddArray(ControlKind::OptionButton, "optAnswer", 0, 6, &picDescContainer)),
      picKeywodContainer(OnTab(ControlKind::PictureBox, "picKeywodContainer", kTestTab)),
      chkKeywords(AddArray(ControlKind::CheckBox, "chkKeywords", 0, 19, &picKeywodContainer)),
      lblMaxKeyword(Add(ControlKind::Label, "lblMaxKeyword", &picKeywodContainer)),
      Text1(OnTab(ControlKind::TextBox, "Text1", kTestTab)),
      // Tab 4
      lblResultInfo(OnTab(ControlKind::Label, "lblResultInfo", kResultsTab)),
      txtResult(OnTab(ControlKind::TextBox, "txtResult", kResultsTab)),
      Command5(OnTab(ControlKind::CommandButton, "Command5", kResultsTab)),
      // Tab 0
      lblInfo(OnTab(ControlKind::Label, "lblInfo", kGoalsTab)),
      Label10(OnTab(ControlKind::Label, "Label10", kGoalsTab)),
      ListView1(SSTab1.Place(AddTyped<ListView>("ListView1", &SSTab1), kGoalsTab)),
      optGoals(AddArray(ControlKind::OptionButton, "optGoals", 0, 1, &SSTab1)),
      cmdNewGoal(OnTab(ControlKind::CommandButton, "cmdNewGoal", kGoalsTab)),
      cmdSaveGoals(OnTab(ControlKind::CommandButton, "cmdSaveGoals", kGoalsTab)),
      cmdDeleteGoals(OnTab(ControlKind::CommandButton, "cmdDeleteGoals", kGoalsTab)),
      cmdMarkAchived(OnTab(ControlKind::CommandButton, "cmdMarkAchived", kGoalsTab)),
      Label15(OnTab(ControlKind::Label, "Label15", kGoalsTab)),
      txtGoalName(OnTab(ControlKind::TextBox, "txtGoalName", kGoalsTab)),
      Label16(OnTab(ControlKind::Label, "Label16", kGoalsTab)),
      txtGoalDesc(OnTab(ControlKind::TextBox, "txtGoalDesc", kGoalsTab)),
      Label12(OnTab(ControlKind::Label, "Label12", kGoalsTab)),
      mydtpStartingDate(
          SSTab1.Place(AddTyped<UserControl1>("mydtpStartingDate", &SSTab1), kGoalsTab)),
      Label11(OnTab(ControlKind::Label, "Label11", kGoalsTab)),
      mydtpEndingDate(SSTab1.Place(AddTyped<UserControl1>("mydtpEndingDate", &SSTab1), kGoalsTab)),
      Frame3(OnTab(ControlKind::Frame, "Frame3", kGoalsTab)),
      Label7(Add(ControlKind::Label, "Label7", &Frame3)),
      lblDayCount(Add(ControlKind::Label, "lblDayCount", &Frame3)),
      Label1(Add(ControlKind::Label, "Label1", &Frame3)),
      lblDaysRemaining(Add(ControlKind::Label, "lblDaysRemaining", &Frame3)),
      Label13(Add(ControlKind::Label, "Label13", &Frame3)),
      Combo3(Add(ControlKind::ComboBox, "Combo3", &Frame3)),
      picHook(Add(ControlKind::PictureBox, "picHook")),
      mnuPopUp(Add(ControlKind::Menu, "mnuPopUp")),
      mnuShow(Add(ControlKind::Menu, "mnuShow", &mnuPopUp)),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuPopUp)) {
    mnuFile.SetCaption("&File");
    mnuTabGoals.SetCaption("&My Personal Goals");
    mnuTabSettings.SetCaption("Settings");
    mnuFileSep.SetCaption("-");
    mnuExit1.SetCaption("&Exit");
    modHelp::AddHelpMenu(
        *this, {"mnuHelpSep1", "mnuHelpSep2", "mnuMakeMoney", "Check for Software &Update"});
    modHelp::AddSubjectLinks(*this, "Label6");
    cmdNav(1).SetCaption("Exit");
    Me().Move(0, 0, 11520, 8640);
    for (int tab = 0; tab < 5; ++tab)
        SSTab1.SetTabCaption(tab, kTabCaptions[tab]);

    BuildSettingsTab();
    BuildMemorizeTab();
    BuildTestTab();
    BuildGoalsTab();
    BuildTray();

    lblResultInfo.SetCaption("Label7");
    Command5.SetCaption("Save Current Result");
    Command5.Click = [this] { Command5_Click(); };
    SSTab1.TabClick = [this](int previous) { SSTab1_Click(previous); };
    mnuTabGoals.Click = [this] { SSTab1.SetTab(kGoalsTab); };
    mnuTabSettings.Click = [this] { SSTab1.SetTab(kSettingsTab); };
    mnuExit1.Click = [this] { CloseWindow(); };
    cmdNav.OnClick([this](int) { CloseWindow(); });
}

void frmLearnTarotMain::Form_Load() {
    modHelp::CheckForUpdateReminder(App());
    SSTab1.SetTab(kSettingsTab);
    Text1.SetVisible(false);
    LoadGoalsAtStart();
    LoadTarotSettings();
    // The start-up choice: the entry's presence is the whole of it, and it is
    // written again with the program's present path.
    const std::string name = App().Svc().folder->ExeName();
    if (IsRunAtStartup(name)) {
        optRun.SetValue(vbTrue);
        const std::string tray = modSettings::GetSetting(App(), modSettings::AppName(App()),
                                                         "Settings", "RunAtSysTray", "False");
        chkSysTray.SetValue(tray == "True" ? 1 : 0);
    } else {
        optDontRun.SetValue(vbTrue);
    }
    for (int tab : {kMemorizeTab, kTestTab, kResultsTab})
        SSTab1.SetTabEnabled(tab, false);
    if (chkSysTray.Value() == 1 &&
        App().Svc().folder->CommandLine().find("/STARTUP") != std::string::npos)
        MinimizeToTray();
}

void frmLearnTarotMain::SSTab1_Click(int PreviousTab) {
    (void)PreviousTab;
    switch (SSTab1.Tab()) {
    case kSettingsTab:
        for (int tab : {kMemorizeTab, kTestTab, kResultsTab})
            SSTab1.SetTabEnabled(tab, false);
        break;
    case kMemorizeTab: {
        auto& cards = *modDB::rsCards;
        lngCardCount = std::int32_t(cards.RecordCount());
        cards.MoveFirst();
        lngCardPosition = 1;
        ShowCard();
        SSTab1.SetTabEnabled(kTestTab, false);
        SSTab1.SetTabEnabled(kResultsTab, false);
        break;
    }
    case kTestTab:
        SSTab1.SetTabEnabled(kResultsTab, false);
        break;
    case kResultsTab:
        SSTab1.SetTabEnabled(kTestTab, false);
        break;
    default: // the goals: whatever runs is left as it stands
        break;
    }
}

int frmLearnTarotMain::Level() const {
    if (optDifficulty(0).Selected())
        return 0;
    return optDifficulty(1).Selected() ? 1 : 2;
}

Json frmLearnTarotMain::Variables() const {
    return Json::Object{
        {"lngCardPosition", Json(lngCardPosition)},
        {"lngCardCount", Json(lngCardCount)},
        {"lngQuestionCounter", Json(lngQuestionCounter)},
        {"blnFirstQuestion", Json(blnFirstQuestion != 0)},
        {"lngCurrentCardID", Json(lngCurrentCardID)},
        {"blnIsReversed", Json(blnIsReversed != 0)},
        {"lngFirstOption", Json(lngFirstOption)},
        {"lngLastOption", Json(lngLastOption)},
        {"lngLastKeywordBox", Json(lngLastKeywordBox)},
        {"lngKeywordsToChoose", Json(lngKeywordsToChoose)},
        {"lngKeywordPositions", ListJson(lngKeywordPositions)},
        {"lngUsedCards", ListJson(lngUsedCards)},
        {"lngScores", ListJson(lngScores)},
        {"blnReversedFlags", FlagsJson(blnReversedFlags)},
        {"lngCorrectCount", Json(lngCorrectCount)},
    };
}

} // namespace quillane
