// The learning flow of the Numerology window: from the start panel to the
// study text, the subject panel or a test, and the walk through the study text.
#include "frmLearnNumerologyMain.h"

#include "common/Numbers.h"
#include "numerology/modLearnNumerology.h"
#include "numerology/modLearnNumerologyState.h"

namespace quillane {

using namespace modLearnNumerology;

namespace {
constexpr const char* kLineEnd = "\r\n";
} // namespace

void frmLearnNumerologyMain::cmdNext_Click() {
    blnLearnMode = vbFalse;
    if (optMain(0).Selected()) {
        blnLearnMode = vbTrue;
        optOption(0).SetCaption("Learn By Significance of Numbers");
        optOption(1).SetCaption("Learn By Interpretation of Numbers");
        fraOption(1).SetCaption("Learn Options");
        panels.BringToFront(fraOption(1));
    } else if (optMain(1).Selected()) {
        optOption(0).SetCaption("Test By Significance of Numbers");
        optOption(1).SetCaption("Test By Interpretation of Numbers");
        fraOption(1).SetCaption("Test Options");
        panels.BringToFront(fraOption(1));
    } else {
        // An option left selected from an earlier pass still counts.
        Message("Please select an option");
    }
}

void frmLearnNumerologyMain::cmdBack2_Click() {
    optMain(0).SetValue(0);
    optMain(1).SetValue(0);
    optOption(0).SetValue(0);
    optOption(1).SetValue(0);
    panels.BringToFront(fraOption(0));
}

void frmLearnNumerologyMain::cmdNext2_Click() {
    blnBySignificance = vbFalse;
    const bool learning = blnLearnMode == vbTrue;
    if (optOption(0).Selected() && learning) {
        blnBySignificance = vbTrue;
        intCurrent = 0;
        fraOption(2).SetCaption("Learn By Significance");
        panels.BringToFront(fraOption(2));
        ShowSignificance();
    } else if (optOption(1).Selected() && learning) {
        intCurrent = 0;
        lblCaption(5).SetCaption("Select the options which you would like to memorize.");
        fraOption(3).SetCaption("Learn By Interpretation");
        panels.BringToFront(fraOption(3));
    } else if (optOption(0).Selected()) {
        blnBySignificance = vbTrue;
        intCurrent = 0;
        lblCaption(6).SetCaption("Select one option from the given choices below.");
        fraOption(4).SetCaption("Test By Significance");
        panels.BringToFront(fraOption(4));
        LoadSignificanceQuestion();
    } else if (optOption(1).Selected()) {
        intCurrent = 0;
        lblCaption(6).SetCaption(
            "Select the correct interpretation for the number displayed at the bottom.");
        lblCaption(5).SetCaption("Select the options which you would like to take the test in.");
        fraOption(3).SetCaption("Test By Interpretation");
        panels.BringToFront(fraOption(3));
    } else {
        Message("Please select an option");
    }
}

void frmLearnNumerologyMain::cmdBack3_Click() {
    panels.BringToFront(fraOption(1));
}

void frmLearnNumerologyMain::cmdNext3_Click() {
    bool anyTicked = false;
    for (int i = 0; i <= 14; ++i)
        anyTicked = anyTicked || chkSubject(i).Value() == 1;
    if (!anyTicked) {
        Message("Please select at least one option");
        return;
    }
    for (int i = 0; i <= 14; ++i)
        blnSubjectSelected[std::size_t(i)] = VBBool(chkSubject(i).Value() == 1);
    // A clean panel for the next visit.
    for (int i = 0; i <= 14; ++i)
        chkSubject(i).SetValue(0);
    intCurrent = 0;
    if (blnLearnMode != vbTrue) {
        LoadInterpretationQuestion();
        fraOption(4).SetCaption("Test By Interpretation");
        panels.BringToFront(fraOption(4));
        return;
    }
    for (int i = 0; i <= 14; ++i)
        if (blnSubjectSelected[std::size_t(i)] == vbTrue) {
            intCurrent = std::int16_t(i);
            break;
        }
    ShowInterpretation();
    fraOption(2).SetCaption("Learn By Interpretation");
    panels.BringToFront(fraOption(2));
}

void frmLearnNumerologyMain::cmdBackToMain_Click() {
    // The start panel keeps the earlier choice, so Proceed works at once.
    panels.BringToFront(fraOption(0));
}

void frmLearnNumerologyMain::ShowSignificance() {
    LoadNumerologyTables();
    const auto s = std::size_t(intCurrent);
    lblLearnSubject.SetCaption(strSubject[s]);
    RTBLearn.SetText("");
    AppendText(RTBLearn, std::string("Significance") + kLineEnd);
    AppendText(RTBLearn, strSignificance[s] + kLineEnd + kLineEnd);
    AppendText(RTBLearn, std::string("Calculation") + kLineEnd);
    AppendText(RTBLearn, strCalculation[s]);
    // The reader starts at the top, not where the last text went in.
    RTBLearn.SetSelStart(0);
}

void frmLearnNumerologyMain::ShowInterpretation() {
    LoadNumerologyTables();
    const auto s = std::size_t(intCurrent);
    lblLearnSubject.SetCaption(strSubject[s]);
    RTBLearn.SetText("");
    for (int row = intFirstRow[s]; row <= intLastRow[s]; ++row)
        AppendText(RTBLearn, strSubject[s] + " " + std::to_string(intNumber[std::size_t(row)]) +
                                 kLineEnd + strInterpretation[std::size_t(row)] + kLineEnd +
                                 kLineEnd);
    RTBLearn.SetSelStart(0);
}

void frmLearnNumerologyMain::cmdNextLearn_Click() {
    if (blnBySignificance == vbTrue) {
        ++intCurrent;
    } else {
        // From the last subject the loop has nothing to visit, and the same
        // subject shows again without a word.
        for (int i = intCurrent + 1; i <= 14; ++i) {
            if (blnSubjectSelected[std::size_t(i)] == vbTrue) {
                intCurrent = std::int16_t(i);
                break;
            }
            if (i == 14) {
                Message("You are at the last record");
                return;
            }
        }
    }
    if (intCurrent == 15) {
        intCurrent = 14;
        Message("You are at the last record");
        return;
    }
    if (blnBySignificance == vbTrue)
        ShowSignificance();
    else
        ShowInterpretation();
}

void frmLearnNumerologyMain::cmdBackLearn_Click() {
    if (blnBySignificance == vbTrue) {
        --intCurrent;
    } else {
        for (int i = intCurrent - 1; i >= 0; --i) {
            if (blnSubjectSelected[std::size_t(i)] == vbTrue) {
                intCurrent = std::int16_t(i);
                break;
            }
            if (i == 0) {
                Message("You are at the first record");
                return;
            }
        }
    }
    if (intCurrent < 0) {
        intCurrent = 0;
        Message("You are at the first record");
        return;
    }
    if (blnBySignificance == vbTrue)
        ShowSignificance();
    else
        ShowInterpretation();
}

} // namespace quillane
