// The Settings and Goals panels of the Runes window: what to study, stored
// per user, and the two free-text goal notes kept in files beside the program.
#include "frmLearnRunesMain.h"

#include "common/Numbers.h"
#include "common/TextFiles.h"
#include "runes/ResumeNext.h"
#include "shell/modSettings.h"

namespace quillane {

using runes::Resume;

namespace {

constexpr const char* kSection = "Settings";

// The number at the start of a stored text, 0 when there is none.
double Val(const std::string& text) {
    return ReadNumber(text).value_or(0.0);
}

// The text without the blanks at its start and end (only blanks: line ends
// and tabs stay).
std::string Trim(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

void frmLearnRunesMain::BuildSettingsPanel() {
    Label2(0).SetCaption("Quillane Learn Runes helps you learn more about the meanings of runes "
                         "stone. Use this software to improve your rune reading skills.");
    lblLabel(0).SetCaption(
        "The 24 rune stones have been divided into three stone groups or 'Aett', each "
        "containing eight stones, for your study and to make the subject more simple and "
        "interesting. Please select your preferred Stone Group or Aett.");
    Label2(1).SetCaption("Choose one or more of the below Stone Groups to start your Rune "
                         "Lessons Now!");
    Frame2.SetCaption("Stone Groups");
    chkGroups(0).SetCaption("First Aett");
    lblLabel(1).SetCaption("The theme of the first Aett of runes is the unity of the initial "
                           "forces of fire, chaos, ice and order to bring about the gift of the "
                           "gods.");
    chkGroups(1).SetCaption("Second Aett");
    lblLabel(2).SetCaption("The theme of the second Aett of runes is development of consciousness "
                           "from the basic level to the more matured, higher and the complex "
                           "thought patterns.");
    chkGroups(2).SetCaption("Third Aett");
    lblLabel(3).SetCaption("The theme of the third Aett of runes is 'transition'. It projects the "
                           "natural progression of mankind from his first days to the end of the "
                           "world.");
    Frame3.SetCaption("Stone Objects");
    chkObjects(0).SetCaption("Keywords");
    chkObjects(1).SetCaption("Also Known As");
    Frame1.SetCaption("Stone Meanings");
    chkMeanings(0).SetCaption("Upright Meanings");
    chkMeanings(1).SetCaption("Reversed Meanings");
    chkMeanings(2).SetCaption("Merkstave Meanings");
    cmdMemorize.SetCaption("Memorize Meanings / Keywords");
    cmdSaveSettings.SetCaption("Save Current Settings As Default");
}

void frmLearnRunesMain::BuildGoalsPanel() {
    chkGoal1.SetCaption("Goal 1");
    // The second box bears the first one's caption too.
    chkGoal2.SetCaption("Goal 1");
    cmdGoal1.SetCaption("Save");
    cmdGoal2.SetCaption("Save");
    for (Control* c : {&txtGoal1, &cmdGoal1, &txtGoal2, &cmdGoal2})
        c->SetEnabled(false);
}

std::string frmLearnRunesMain::GoalFile(int goal) {
    return App().Svc().folder->FilesDir() + "/Goal" + std::to_string(goal) + ".txt";
}

void frmLearnRunesMain::LoadGoals() {
    for (int goal = 1; goal <= 2; ++goal) {
        std::string path;
        Resume([&] { path = GoalFile(goal); });
        Resume([&] {
            if (!FileExists(path))
                ReplaceFile(path, "This is Goal " + std::to_string(goal) + ".\r\n");
        });
    }
    for (int goal = 1; goal <= 2; ++goal) {
        Control& box = goal == 1 ? txtGoal1 : txtGoal2;
        std::vector<std::string> lines;
        // A file that cannot be read leaves its box as it is.
        Resume([&] { lines = ReadLines(GoalFile(goal)); });
        // Each line goes after the box's text with a line end of its own. The
        // text is built first and set once: a box set line by line would lay
        // its whole text out again for every line.
        Resume([&] {
            std::string text = box.Text();
            for (const std::string& line : lines)
                text.append(line).append("\r\n");
            box.SetText(std::move(text));
        });
    }
}

void frmLearnRunesMain::LoadStoneSettings() {
    const std::string app = modSettings::AppName(App());
    auto get = [&](const std::string& key) {
        return modSettings::GetSetting(App(), app, kSection, key);
    };
    if (get("StoneGroup0").empty()) {
        // A first run: everything ticked.
        for (int i = 0; i <= 2; ++i) {
            Resume([&] { chkGroups(i).SetValue(1); });
            Resume([&] { chkMeanings(i).SetValue(1); });
        }
        for (int i = 0; i <= 1; ++i)
            Resume([&] { chkObjects(i).SetValue(1); });
        return;
    }
    for (int i = 0; i <= 2; ++i) {
        const std::string n = std::to_string(i);
        Resume([&] { chkGroups(i).SetValue(Val(get("StoneGroup" + n)) == 1 ? 1 : 0); });
        Resume([&] { chkMeanings(i).SetValue(Val(get("StoneMeaning" + n)) == 1 ? 1 : 0); });
        if (i <= 1)
            Resume([&] { chkObjects(i).SetValue(Val(get("StoneObject" + n)) == 1 ? 1 : 0); });
    }
}

void frmLearnRunesMain::cmdSaveSettings_Click() {
    auto ticked = [](const ControlArray& boxes) {
        for (int i = boxes.LBound(); i <= boxes.UBound(); ++i)
            if (boxes(i).Value() == 1)
                return true;
        return false;
    };
    if (!ticked(chkGroups)) {
        App().MsgBox("Please Select A Stone Group", MsgButtons::Ok, MsgIcon::Critical);
        return;
    }
    if (!ticked(chkObjects) && !ticked(chkMeanings)) {
        App().MsgBox("Please Select A Stone Meaning", MsgButtons::Ok, MsgIcon::Critical);
        return;
    }
    // The same test the other way round: it can never be reached.
    if (!ticked(chkMeanings) && !ticked(chkObjects)) {
        App().MsgBox("Please Select A Stone Object", MsgButtons::Ok, MsgIcon::Critical);
        return;
    }
    const std::string app = modSettings::AppName(App());
    auto store = [&](const std::string& key, const Control& box) {
        Resume([&] {
            modSettings::SaveSetting(App(), app, kSection, key, box.Value() == 1 ? "1" : "0");
        });
    };
    for (int i = 0; i <= 2; ++i) {
        const std::string n = std::to_string(i);
        store("StoneGroup" + n, chkGroups(i));
        store("StoneMeaning" + n, chkMeanings(i));
        if (i < 2)
            store("StoneObject" + n, chkObjects(i));
        blnSettingsValid = -1;
    }
}

void frmLearnRunesMain::chkGoal1_Click() {
    const bool on = chkGoal1.Value() == 1;
    Resume([&] { cmdGoal1.SetEnabled(on); });
    Resume([&] { txtGoal1.SetEnabled(on); });
}

void frmLearnRunesMain::chkGoal2_Click() {
    const bool on = chkGoal2.Value() == 1;
    Resume([&] { cmdGoal2.SetEnabled(on); });
    Resume([&] { txtGoal2.SetEnabled(on); });
}

// Only blanks are trimmed and one line end is added, so a text read from its
// file (which ends in a line end already) gains one empty line per save.
void frmLearnRunesMain::cmdGoal1_Click() {
    Resume([&] { ReplaceFile(GoalFile(1), Trim(txtGoal1.Text()) + "\r\n"); });
}

void frmLearnRunesMain::cmdGoal2_Click() {
    Resume([&] { ReplaceFile(GoalFile(2), Trim(txtGoal2.Text()) + "\r\n"); });
}

} // namespace quillane
