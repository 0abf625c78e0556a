#include "frmLearnRunesMain.h"

#include "runes/ResumeNext.h"
#include "runes/RuneWalk.h"
#include "shell/modHelp.h"

#include <initializer_list>
#include <utility>

namespace quillane {

using runes::Guard;
using runes::Resume;

namespace {

// A control array whose members stand in different containers.
ControlArray Members(Form& form, ControlKind kind, const std::string& name,
                     std::initializer_list<std::pair<int, Control*>> members) {
    ControlArray array;
    for (const auto& [index, container] : members)
        array.Append(form.Add(kind, name, container, index));
    return array;
}

} // namespace

frmLearnRunesMain::frmLearnRunesMain(Application& app)
    : SubjectWindow(app, "frmLearnRunesMain", "Quillane Learn Runes"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuCalculate(Add(ControlKind::Menu, "mnuCalculate", &mnuFile)),
      mnuSep3(Add(ControlKind::Menu, "mnuSep3", &mnuFile)),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuFile)),
      cmdSubjects(AddArray(ControlKind::CommandButton, "cmdSubjects", 0, 3)),
      picSettings(Add(ControlKind::PictureBox, "picSettings")),
      Label2(AddArray(ControlKind::Label, "Label2", 0, 1, &picSettings)),
      Frame2(Add(ControlKind::Frame, "Frame2", &picSettings)),
      chkGroups(AddArray(ControlKind::CheckBox, "chkGroups", 0, 2, &Frame2)),
      Frame3(Add(ControlKind::Frame, "Frame3", &picSettings)),
      chkObjects(AddArray(ControlKind::CheckBox, "chkObjects", 0, 1, &Frame3)),
      Frame1(Add(ControlKind::Frame, "Frame1", &picSettings)),
      chkMeanings(AddArray(ControlKind::CheckBox, "chkMeanings", 0, 2, &Frame1)),
      lblLabel(Members(*this, ControlKind::Label, "lblLabel",
                       {{0, &picSettings}, {1, &Frame2}, {2, &Frame2}, {3, &Frame2}})),
      cmdMemorize(Add(ControlKind::CommandButton, "cmdMemorize", &picSettings)),
      cmdSaveSettings(Add(ControlKind::CommandButton, "cmdSaveSettings", &picSettings)),
      picMemorizeStones(Add(ControlKind::PictureBox, "picMemorizeStones")),
      lblStoneName(Add(ControlKind::Label, "lblStoneName", &picMemorizeStones)),
      lblMeaningCaption(
          AddArray(ControlKind::Label, "lblMeaningCaption", 0, 4, &picMemorizeStones)),
      picStone(AddArray(ControlKind::PictureBox, "picStone", 0, 2, &picMemorizeStones)),
      txtMeaning(AddArray(ControlKind::TextBox, "txtMeaning", 0, 2, &picMemorizeStones)),
      txtKeywords(Add(ControlKind::TextBox, "txtKeywords", &picMemorizeStones)),
      txtAlternativeNames(Add(ControlKind::TextBox, "txtAlternativeNames", &picMemorizeStones)),
      cmdBack(Add(ControlKind::CommandButton, "cmdBack", &picMemorizeStones)),
      cmdNext(Add(ControlKind::CommandButton, "cmdNext", &picMemorizeStones)),
      picTestSetUp(Add(ControlKind::PictureBox, "picTestSetUp")),
      fraTestSubjects(Add(ControlKind::Frame, "fraTestSubjects", &picTestSetUp)),
      fraTestType(Add(ControlKind::Frame, "fraTestType", &picTestSetUp)),
      fraTestLevel(Add(ControlKind::Frame, "fraTestLevel", &picTestSetUp)),
      fraCaptions(Members(*this, ControlKind::Frame, "fraCaptions",
                          {{0, &fraTestSubjects},
                           {1, &fraTestSubjects},
                           {2, &fraTestLevel},
                           {3, &fraTestLevel},
                           {4, &fraTestType},
                           {5, &fraTestType},
                           {6, &fraTestType}})),
      lblCaptions(Members(*this, ControlKind::Label, "lblCaptions",
                          {{0, &fraCaptions(0)},
                           {1, &fraCaptions(1)},
                           {2, &fraTestSubjects},
                           {3, &fraCaptions(2)},
                           {4, &fraCaptions(3)},
                           {5, &fraTestLevel},
                           {6, &fraCaptions(4)},
                           {7, &fraCaptions(5)},
                           {8, &fraTestType},
                           {9, &fraCaptions(6)}})),
      optTestSubjects(
          AddArray(ControlKind::OptionButton, "optTestSubjects", 0, 1, &fraTestSubjects)),
      chkTestType(AddArray(ControlKind::CheckBox, "chkTestType", 0, 2, &fraTestType)),
      optTestLevel(AddArray(ControlKind::OptionButton, "optTestLevel", 0, 1, &fraTestLevel)),
      cmdTestNext(Members(*this, ControlKind::CommandButton, "cmdTestNext",
                          {{0, &fraTestSubjects}, {1, &fraTestType}, {2, &fraTestLevel}})),
      cmdTestBack(Members(*this, ControlKind::CommandButton, "cmdTestBack",
                          {{0, &fraTestType}, {1, &fraTestLevel}})),
      picGoals(Add(ControlKind::PictureBox, "picGoals")),
      chkGoal1(Add(ControlKind::CheckBox, "chkGoal1", &picGoals)),
      txtGoal1(Add(ControlKind::TextBox, "txtGoal1", &picGoals)),
      cmdGoal1(Add(ControlKind::CommandButton, "cmdGoal1", &picGoals)),
      chkGoal2(Add(ControlKind::CheckBox, "chkGoal2", &picGoals)),
      txtGoal2(Add(ControlKind::TextBox, "txtGoal2", &picGoals)),
      cmdGoal2(Add(ControlKind::CommandButton, "cmdGoal2", &picGoals)),
      picTestKeywords(Add(ControlKind::PictureBox, "picTestKeywords")),
      lblIndex(Add(ControlKind::Label, "lblIndex", &picTestKeywords)),
      lblCaption(Add(ControlKind::Label, "lblCaption", &picTestKeywords)),
      lblTestStone(Add(ControlKind::Label, "lblTestStone", &picTestKeywords)),
      picTest(Add(ControlKind::PictureBox, "picTest", &picTestKeywords)),
      chkKeywords(AddArray(ControlKind::CheckBox, "chkKeywords", 0, 7, &picTestKeywords)),
      cmdNextQuestion(Add(ControlKind::CommandButton, "cmdNextQuestion", &picTestKeywords)),
      picTestResult(Add(ControlKind::PictureBox, "picTestResult")),
      Label1(Add(ControlKind::Label, "Label1", &picTestResult)),
      txtResult(Add(ControlKind::TextBox, "txtResult", &picTestResult)) {
    mnuFile.SetCaption("&File");
    // A dead entry, hidden from the start and never shown.
    mnuCalculate.SetCaption("Get My Tibetan &Astrology Result");
    mnuCalculate.SetVisible(false);
    mnuSep3.SetCaption("-");
    mnuSep3.SetVisible(false);
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(*this);
    Find("mnuMakeMoney")->SetVisible(false);
    modHelp::AddSubjectLinks(*this, "Label14");
    Me().Move(0, 0, 11520, 8640);

    const char* const subjects[4] = {"Settings", "Memorize Stones", "Test Set Up", "Goals"};
    for (int i = 0; i <= 3; ++i)
        cmdSubjects(i).SetCaption(subjects[i]);
    for (Control* panel : {&picSettings, &picMemorizeStones, &picTestSetUp, &picGoals,
                           &picTestKeywords, &picTestResult})
        panels_.Add(*panel);
    for (Control* step : {&fraTestSubjects, &fraTestType, &fraTestLevel})
        steps_.Add(*step);

    BuildSettingsPanel();
    BuildMemorizePanel();
    BuildTestSetUpPanel();
    BuildGoalsPanel();
    BuildTestPanels();
    WireHandlers();
}

void frmLearnRunesMain::WireHandlers() {
    mnuExit.Click = Guard([this] { CloseWindow(); });
    cmdSubjects.OnClick(Guard([this](int i) { cmdSubjects_Click(i); }));
    cmdMemorize.Click = Guard([this] { cmdMemorize_Click(); });
    cmdSaveSettings.Click = Guard([this] { cmdSaveSettings_Click(); });
    cmdNext.Click = Guard([this] { cmdNext_Click(); });
    cmdBack.Click = Guard([this] { cmdBack_Click(); });
    chkGoal1.Click = Guard([this] { chkGoal1_Click(); });
    chkGoal2.Click = Guard([this] { chkGoal2_Click(); });
    cmdGoal1.Click = Guard([this] { cmdGoal1_Click(); });
    cmdGoal2.Click = Guard([this] { cmdGoal2_Click(); });
    cmdTestNext.OnClick(Guard([this](int i) { cmdTestNext_Click(i); }));
    cmdTestBack.OnClick(Guard([this](int i) { cmdTestBack_Click(i); }));
    cmdNextQuestion.Click = Guard([this] { cmdNextQuestion_Click(); });
    chkKeywords.OnClick(Guard([this](int i) { chkKeywords_Click(i); }));
}

void frmLearnRunesMain::Form_Load() {
    Resume([&] {
        const int screen = App().Svc().screen->WidthTwips();
        Me().SetLeft((screen - Me().Width()) / 2);
    });
    Resume([&] { Me().SetTop(0); });
    Resume([&] { LoadGoals(); });
    Resume([&] { LoadStoneSettings(); });
    // The walk stands ready, and the settings are checked and stored, at
    // every start; the user still starts on the Settings panel.
    Resume([&] { cmdMemorize_Click(); });
    Resume([&] { ShowPanel(picSettings); });
}

void frmLearnRunesMain::Form_Unload(int& Cancel) {
    Resume([&] { SubjectWindow::Form_Unload(Cancel); });
}

Json frmLearnRunesMain::Variables() const {
    return Json::Object{{"blnSettingsValid", Json(blnSettingsValid != 0)},
                        {"intTicked", Json(intTicked)},
                        {"intKeywordTicks", Json(intKeywordTicks)}};
}

void frmLearnRunesMain::ShowPanel(Control& panel) {
    if (PanelStack* stack = panel.Stack())
        stack->BringToFront(panel);
}

void frmLearnRunesMain::cmdSubjects_Click(int Index) {
    using modLearnRunes::intStoneIndex;
    switch (Index) {
    case 0:
        Resume([&] { ShowPanel(picSettings); });
        break;
    case 1:
        // Only the position goes back: the stone on show stays as it is.
        Resume([&] { intStoneIndex = 0; });
        Resume([&] { cmdBack.SetEnabled(false); });
        Resume([&] { cmdNext.SetEnabled(true); });
        Resume([&] { ShowPanel(picMemorizeStones); });
        break;
    case 2:
        Resume([&] { ShowPanel(picTestSetUp); });
        Resume([&] { ShowPanel(fraTestSubjects); });
        break;
    case 3:
        Resume([&] { ShowPanel(picGoals); });
        break;
    default:
        break;
    }
}

} // namespace quillane
