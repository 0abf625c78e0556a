// The test set-up of the Runes window: three stacked steps (what is tested,
// which positions, which level) that start the keyword test on this window or
// the meaning test in its own dialog.
#include "frmLearnRunesMain.h"

#include "runes/ResumeNext.h"
#include "runes/modLearnRunesTest.h"

namespace quillane {

using namespace modLearnRunesTest;
using runes::Resume;

void frmLearnRunesMain::BuildTestSetUpPanel() {
    lblCaptions(2).SetCaption("Select your preferred test set up.");
    fraCaptions(0).SetCaption("Stone Meanings");
    lblCaptions(0).SetCaption("Stone Meanings lets you to test your ability to interpret the "
                              "different meanings of the different rune stones.");
    fraCaptions(1).SetCaption("Stone Keywords");
    lblCaptions(1).SetCaption("Each rune stone is associated with a particular keyword. Stone "
                              "Keywords help you to interpret the keywords associated with the "
                              "different rune stones.");
    optTestSubjects(0).SetCaption("Stone Meanings");
    optTestSubjects(1).SetCaption("Stone Keywords");
    cmdTestNext(0).SetCaption("Next");

    lblCaptions(8).SetCaption("Select your preferred position.");
    fraCaptions(4).SetCaption("Upright Stones");
    lblCaptions(6).SetCaption(
        "This displays the meanings of the image of the stone seen in the upright position.");
    fraCaptions(5).SetCaption("Reversed Stones");
    lblCaptions(7).SetCaption("This displays the reverse meanings of the reversed image of the "
                              "stone seen in the reversed position.");
    fraCaptions(6).SetCaption("Markstave Stones");
    lblCaptions(9).SetCaption(
        "This displays the meanings of the image of the stone seen in the markstave position.");
    chkTestType(0).SetCaption("Upright Stones");
    chkTestType(1).SetCaption("Reversed Stones");
    chkTestType(2).SetCaption("Merkstave Stones");
    cmdTestBack(0).SetCaption("Back");
    cmdTestNext(1).SetCaption("Next");

    lblCaptions(5).SetCaption("Select your preferred level.");
    fraCaptions(2).SetCaption("Beginner");
    lblCaptions(3).SetCaption("This is the best test set up for the learners of the subject. "
                              "This allows you to test your skills at a very basic level.");
    fraCaptions(3).SetCaption("Advanced");
    lblCaptions(4).SetCaption("This set up allows you to test your skills at a higher level. "
                              "This is the ideal level for the experienced people.");
    optTestLevel(0).SetCaption("Beginner");
    optTestLevel(1).SetCaption("Advanced");
    cmdTestBack(1).SetCaption("Back");
    cmdTestNext(2).SetCaption("Next");
}

void frmLearnRunesMain::cmdTestNext_Click(int Index) {
    const bool meanings = optTestSubjects(0).Value() != 0;
    switch (Index) {
    case 0:
        if (!meanings && optTestSubjects(1).Value() == 0) {
            App().MsgBox("Please Select A Test Subject", MsgButtons::Ok, MsgIcon::Critical);
            return;
        }
        // The keyword test has no position step.
        Resume([&] { ShowPanel(meanings ? fraTestType : fraTestLevel); });
        return;
    case 1:
        if (chkTestType(0).Value() == 0 && chkTestType(1).Value() == 0 &&
            chkTestType(2).Value() == 0) {
            App().MsgBox("Please Select At Least 1 Stone Type", MsgButtons::Ok, MsgIcon::Critical);
            return;
        }
        // Only ever set: a position ticked in an earlier pass stays in force.
        for (int i = 0; i <= 2; ++i)
            Resume([&] {
                if (chkTestType(i).Value() == 1)
                    blnStoneType(i) = -1;
            });
        Resume([&] { ShowPanel(fraTestLevel); });
        return;
    case 2:
        break;
    default:
        return;
    }
    if (optTestLevel(0).Value() == 0 && optTestLevel(1).Value() == 0) {
        App().MsgBox("Please Select A Test Level", MsgButtons::Ok, MsgIcon::Critical);
        return;
    }
    Resume([] { DrawStoneOrder(); });
    intTestLevel = optTestLevel(0).Value() != 0 ? 0 : 1;
    if (meanings) {
        intMeaningQuestionNumber = 0;
        // Pressing the dialog's button by code loads it and its first question.
        Resume([&] { App().Load("frmLearnRunesMeaningTest").Find("cmdNextQuestion1")->Click(); });
        Resume([&] { App().Show("frmLearnRunesMeaningTest"); });
        Resume([&] { Me().SetVisible(false); });
        Resume([&] {
            if (Form* launcher = App().Find("frmMDI"))
                launcher->Find("picMain")->SetVisible(false);
        });
        return;
    }
    intQuestionNumber = 0;
    Resume([&] { cmdNextQuestion_Click(); });
    Resume([&] { ShowPanel(picTestKeywords); });
}

void frmLearnRunesMain::cmdTestBack_Click(int Index) {
    if (Index == 0)
        Resume([&] { ShowPanel(fraTestSubjects); });
    else if (Index == 1)
        Resume([&] { ShowPanel(optTestSubjects(0).Value() != 0 ? fraTestType : fraTestSubjects); });
}

} // namespace quillane
