#include "frmLearnNumerologyMain.h"

#include "numerology/modLearnNumerology.h"
#include "shell/modHelp.h"

namespace quillane {

using namespace modLearnNumerology;

frmLearnNumerologyMain::frmLearnNumerologyMain(Application& app)
    : SubjectWindow(app, "frmLearnNumerologyMain", "Quillane Learn Numerology"),
      mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuFile)),
      fraOption(AddArray(ControlKind::Frame, "fraOption", 0, 5)),
      lblCaption(AddArray(ControlKind::Label, "lblCaption", 0, 3, &fraOption(0))),
      optMain(AddArray(ControlKind::OptionButton, "optMain", 0, 1, &fraOption(0))),
      cmdNext(Add(ControlKind::CommandButton, "cmdNext", &fraOption(0))),
      optOption(AddArray(ControlKind::OptionButton, "optOption", 0, 1, &fraOption(1))),
      cmdBack2(Add(ControlKind::CommandButton, "cmdBack2", &fraOption(1))),
      cmdNext2(Add(ControlKind::CommandButton, "cmdNext2", &fraOption(1))),
      lblLearnSubject(Add(ControlKind::Label, "lblLearnSubject", &fraOption(2))),
      RTBLearn(Add(ControlKind::RichTextBox, "RTBLearn", &fraOption(2))),
      cmdBackLearn(Add(ControlKind::CommandButton, "cmdBackLearn", &fraOption(2))),
      cmdNextLearn(Add(ControlKind::CommandButton, "cmdNextLearn", &fraOption(2))),
      cmdBackToMain(Add(ControlKind::CommandButton, "cmdBackToMain", &fraOption(2))),
      chkSubject(AddArray(ControlKind::CheckBox, "chkSubject", 0, 14, &fraOption(3))),
      cmdBack3(Add(ControlKind::CommandButton, "cmdBack3", &fraOption(3))),
      cmdNext3(Add(ControlKind::CommandButton, "cmdNext3", &fraOption(3))),
      lblQuestionNo(Add(ControlKind::Label, "lblQuestionNo", &fraOption(4))),
      lblSubjectName(Add(ControlKind::Label, "lblSubjectName", &fraOption(4))),
      optChoice(AddArray(ControlKind::OptionButton, "optChoice", 0, 4, &fraOption(4))),
      txtOption(AddArray(ControlKind::TextBox, "txtOption", 0, 4, &fraOption(4))),
      cmdNextQuestion(Add(ControlKind::CommandButton, "cmdNextQuestion", &fraOption(4))),
      RTBTestResult(Add(ControlKind::RichTextBox, "RTBTestResult", &fraOption(5))),
      cmdPrint(Add(ControlKind::CommandButton, "cmdPrint", &fraOption(5))),
      cmdGoToMain(Add(ControlKind::CommandButton, "cmdGoToMain", &fraOption(5))),
      RTB1(Add(ControlKind::RichTextBox, "RTB1", &fraOption(5))) {
    mnuFile.SetCaption("&File");
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(*this);
    modHelp::AddSubjectLinks(*this, "Label14");
    Me().Move(0, 0, 11520, 8640);

    for (int i = 0; i <= 5; ++i)
        panels.Add(fraOption(i));
    AddCaptionedLabels();

    lblCaption(0).SetCaption("Quillane Learn Numerology helps you learn the basics of numerology "
                             "and the interpretation of the different numbers and their "
                             "calculations.");
    lblCaption(1).SetCaption("This software is a great tool for beginners and novices who are new "
                             "to the fascinating world of numerology.");
    lblCaption(2).SetCaption("You can learn the different meanings of different numbers in "
                             "numerology and their calculations. You can then take a test to know "
                             "how much you have learnt.");
    lblCaption(3).SetCaption("Select one option below and click on the button to continue.");
    optMain(0).SetCaption("Learn Numerology");
    optMain(1).SetCaption("Test Numerology");
    cmdNext.SetCaption("Click Here To Proceed");

    lblCaption(4).SetCaption("Select one of the following options and click on Next to continue.");
    cmdBack2.SetCaption("&Back");
    cmdNext2.SetCaption("&Next");

    cmdBackLearn.SetCaption("&Back");
    cmdNextLearn.SetCaption("&Next");
    cmdBackToMain.SetCaption("Back To &Main");

    // The check boxes carry the subject names of the same index.
    LoadNumerologyTables();
    for (int i = 0; i <= 14; ++i)
        chkSubject(i).SetCaption(strSubject[std::size_t(i)]);
    cmdBack3.SetCaption("&Back");
    cmdNext3.SetCaption("&Next");

    cmdNextQuestion.SetCaption("Next &Question");
    cmdPrint.SetCaption("&Print Test Results");
    cmdGoToMain.SetCaption("Main Screen");
    RTB1.SetVisible(false);

    mnuExit.Click = [this] { CloseWindow(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdBack2.Click = [this] { cmdBack2_Click(); };
    cmdNext2.Click = [this] { cmdNext2_Click(); };
    cmdBack3.Click = [this] { cmdBack3_Click(); };
    cmdNext3.Click = [this] { cmdNext3_Click(); };
    cmdBackToMain.Click = [this] { cmdBackToMain_Click(); };
    cmdNextLearn.Click = [this] { cmdNextLearn_Click(); };
    cmdBackLearn.Click = [this] { cmdBackLearn_Click(); };
    cmdNextQuestion.Click = [this] { cmdNextQuestion_Click(); };
    txtOption.OnClick([this](int Index) { txtOption_MouseDown(Index); });
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdGoToMain.Click = [this] { cmdGoToMain_Click(); };
}

// The captions of the options, subject and question panels stand in the
// same array as the start panel's, one in each panel.
void frmLearnNumerologyMain::AddCaptionedLabels() {
    lblCaption.Append(Add(ControlKind::Label, "lblCaption", &fraOption(1), 4));
    lblCaption.Append(Add(ControlKind::Label, "lblCaption", &fraOption(3), 5));
    lblCaption.Append(Add(ControlKind::Label, "lblCaption", &fraOption(4), 6));
}

void frmLearnNumerologyMain::Form_Load() {
    optMain(0).SetValue(0);
    optMain(1).SetValue(0);
    panels.BringToFront(fraOption(0));
}

void frmLearnNumerologyMain::Message(const std::string& text) {
    App().MsgBox(text, MsgButtons::Ok, MsgIcon::Critical);
}

void AppendText(Control& view, const std::string& text, bool bold) {
    // Each change redraws the whole view, so the caret moves only when needed.
    if (const long end = long(view.Text().size()); view.SelStart() != end)
        view.SetSelStart(end);
    view.SelBold = bold;
    view.SetSelText(text);
    view.SelBold = false;
}

} // namespace quillane
