#pragma once
// The Numerology window: six stacked panels, one state each. The start panel
// leads to the options panel, and from there to the study panel, the subject
// panel or the question panel; the test ends on the result panel. The state
// the panels share lives in modLearnNumerology and outlives the window.
#include "shell/SubjectWindow.h"
#include "shell/modHelp.h"

#include <string>

namespace quillane {

class frmLearnNumerologyMain : public SubjectWindow {
public:
    explicit frmLearnNumerologyMain(Application& app);

    // The site named at the top and the foot of a printed report.
    static constexpr const char* kReportAddress = modHelp::kMakerSite;

    void Form_Load() override;

    Control& mnuFile;
    Control& mnuExit;

    // fraOption(0) start, (1) options, (2) study, (3) subjects, (4) question,
    // (5) result.
    ControlArray fraOption;
    PanelStack panels;

    // lblCaption(0) to (3) stand on the start panel, (4) on the options
    // panel, (5) on the subject panel, (6) on the question panel.
    ControlArray lblCaption;
    ControlArray optMain;
    Control& cmdNext;

    ControlArray optOption;
    Control& cmdBack2;
    Control& cmdNext2;

    Control& lblLearnSubject;
    Control& RTBLearn;
    Control& cmdBackLearn;
    Control& cmdNextLearn;
    Control& cmdBackToMain;

    ControlArray chkSubject;
    Control& cmdBack3;
    Control& cmdNext3;

    Control& lblQuestionNo;
    Control& lblSubjectName;
    ControlArray optChoice;
    ControlArray txtOption;
    Control& cmdNextQuestion;

    Control& RTBTestResult;
    Control& cmdPrint;
    Control& cmdGoToMain;
    // Composes the printed copy; never shown.
    Control& RTB1;

    // The learning flow.
    void cmdNext_Click();
    void cmdBack2_Click();
    void cmdNext2_Click();
    void cmdBack3_Click();
    void cmdNext3_Click();
    void cmdBackToMain_Click();
    void cmdNextLearn_Click();
    void cmdBackLearn_Click();
    void ShowSignificance();
    void ShowInterpretation();

    // The tests.
    void LoadSignificanceQuestion();
    void LoadInterpretationQuestion();
    void cmdNextQuestion_Click();
    void txtOption_MouseDown(int Index);

    // The report.
    void ShowTestResult();
    void cmdPrint_Click();
    void cmdGoToMain_Click();

private:
    // A message of this window: OK button, critical icon.
    void Message(const std::string& text);
    void AddCaptionedLabels();
};

// Adds text at the end of a rich text view, bold or not.
void AppendText(Control& view, const std::string& text, bool bold = false);

} // namespace quillane
