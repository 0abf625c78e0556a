// The Settings tab: which cards to study, the test's level and type, the
// stored defaults, and the two ways in: memorising or the test.
#include "frmLearnTarotMain.h"

#include "cards/modDB.h"
#include "common/Numbers.h"
#include "shell/modSettings.h"

namespace quillane {

namespace {

constexpr const char* kSection = "Settings";

// A stored check box state; anything but "0" or "1" counts as the default.
int StoredTick(const std::string& text, int fallback) {
    return text == "0" ? 0 : text == "1" ? 1 : fallback;
}

// A stored choice among `count` options; anything else counts as the default.
int StoredChoice(const std::string& text, int count, int fallback) {
    for (int n = 0; n < count; ++n)
        if (text == std::to_string(n))
            return n;
    return fallback;
}

} // namespace

void frmLearnTarotMain::BuildSettingsTab() {
    Frame4.SetCaption("Select Objectives");
    chkMajor.SetCaption("Major Arcana");
    chkMinor.SetCaption("Minor Arcana");
    const char* const groups[4] = {"Cups", "Wands", "Pentacles", "Swords"};
    for (int i = 0; i < 4; ++i)
        chkGroup(i).SetCaption(groups[i]);
    chkReversed.SetCaption("Reversed");
    Frame1.SetCaption("Test Level");
    optDifficulty(0).SetCaption("Beginner");
    optDifficulty(1).SetCaption("Intermediate");
    optDifficulty(2).SetCaption("Advanced");
    Frame2.SetCaption("Test Type");
    optTestType(0).SetCaption("Description");
    optTestType(1).SetCaption("Keywords");
    cmdSetOption.SetCaption("Memorize Meaning / Keywords");
    cmdStartTest2.SetCaption("Test Me");
    cmdSaveSettings.SetCaption("Save Current Settings As Default");
    Label18.SetCaption("Here you can select the cards you want to practice / memorize. You can "
                       "change these whenever you want or when you have cleared one objective.");
    Label21.SetCaption("Since the keywords for both upright && reversed are the same, during "
                       "keyword test, reversed or upright will not be taken into account. Also "
                       "during the memorizing process everything - upright, reversed && keywords "
                       "- are shown in one screen.");
    Label19.SetCaption("This option applies only when taking the test.\r\n\r\nHere you can choose "
                       "the level of difficulty while taking a test. The difficulty increases "
                       "with each level.");
    Label20.SetCaption("This option applies only when taking the test.\r\n\r\nYou can choose to "
                       "take the test based on keywords or descriptions. It is important to "
                       "remember that when doing an actual reading, the meaning of the card "
                       "changes  depending upon the question asked. So knowing the keywords "
                       "related to a particular card is more important.");
    fraSystemTray.SetCaption("Run on Windows Start-Up");
    optRun.SetCaption("Run at start-up");
    optDontRun.SetCaption("Don't run at start-up");
    chkSysTray.SetCaption("Start at system tray");
    Label14.SetCaption("This is a very important setting. Remember that if you want to get the "
                       "most benefit from this program then you must have it running at all "
                       "times.\r\n\r\nIt is also important that you keep your goals in mind, "
                       "hence starting in system tray will be a deterrent to those goals.");

    chkMajor.Click = [this] { chkMajor_Click(); };
    chkMinor.Click = [this] { chkMinor_Click(); };
    chkGroup.OnClick([this](int i) { chkGroup_Click(i); });
    optTestType.OnClick([this](int i) { optTestType_Click(i); });
    cmdSetOption.Click = [this] { cmdSetOption_Click(); };
    cmdStartTest2.Click = [this] { cmdStartTest2_Click(); };
    cmdSaveSettings.Click = [this] { cmdSaveSettings_Click(); };
}

void frmLearnTarotMain::LoadTarotSettings() {
    using modSettings::GetSetting;
    Application& app = App();
    const std::string name = modSettings::AppName(app);
    auto tick = [&](Control& box, const char* key) {
        box.SetValue(StoredTick(GetSetting(app, name, kSection, key, "1"), 1));
    };
    tick(chkMajor, "MajorArcana");
    tick(chkMinor, "MinorArcana");
    tick(chkGroup(0), "Cups");
    tick(chkGroup(1), "Wands");
    tick(chkGroup(2), "Pentacles");
    tick(chkGroup(3), "Swords");
    optTestType(StoredChoice(GetSetting(app, name, kSection, "TestType", "1"), 2, 1))
        .SetValue(vbTrue);
    optDifficulty(StoredChoice(GetSetting(app, name, kSection, "Difficulty", "0"), 3, 0))
        .SetValue(vbTrue);
}

std::string frmLearnTarotMain::BuildCardQuery() const {
    std::string sql = "SELECT * FROM tblCards WHERE ";
    std::string clauses[5];
    if (chkMajor.Value() == 1)
        clauses[0] = "(Group=0)";
    for (int i = 0; i <= 3; ++i)
        if (chkGroup(i).Enabled() && chkGroup(i).Value() == 1)
            clauses[i + 1].append("(Group=").append(std::to_string(i + 1)).append(")");
    for (const std::string& clause : clauses)
        if (!clause.empty())
            sql.append(" ").append(clause).append(" OR ");
    sql.erase(sql.size() - 4);
    sql += " ORDER BY ID";
    for (std::size_t at = sql.find("  "); at != std::string::npos; at = sql.find("  ", at))
        sql.erase(at, 1);
    return sql;
}

void frmLearnTarotMain::chkMajor_Click() {
    const bool none = chkMajor.Value() == 0 && chkMinor.Value() == 0;
    cmdNext.SetEnabled(!none);
    chkReversed.SetEnabled(!none);
}

void frmLearnTarotMain::chkMinor_Click() {
    chkMajor_Click();
    for (int i = 0; i <= 3; ++i)
        chkGroup(i).SetEnabled(chkMinor.Value() == 1);
}

void frmLearnTarotMain::chkGroup_Click(int Index) {
    for (int i = 0; i <= 3; ++i)
        if (chkGroup(i).Value() == 1)
            return;
    // The last ticked group can't be unticked.
    chkGroup(Index).SetValue(1);
}

void frmLearnTarotMain::optTestType_Click(int Index) {
    chkReversed.SetEnabled(Index == 0);
}

bool frmLearnTarotMain::OpenSelection() {
    if (chkMajor.Value() == 0 && chkMinor.Value() == 0) {
        App().MsgBox("Select at least one option.", MsgButtons::Ok, MsgIcon::None);
        return false;
    }
    const std::string database = modDB::DatabasePath(App().Svc().folder->ProgramDir());
    modDB::OpenConnection(modDB::cnCards, database);
    modDB::OpenRecordset(modDB::rsCards, modDB::cnCards, BuildCardQuery());
    return true;
}

void frmLearnTarotMain::cmdSetOption_Click() {
    if (!OpenSelection())
        return;
    SSTab1.SetTab(kMemorizeTab);
    SSTab1.SetTabEnabled(kMemorizeTab, true);
}

void frmLearnTarotMain::cmdStartTest2_Click() {
    if (!OpenSelection())
        return;
    SSTab1.SetTabEnabled(kMemorizeTab, true);
    SSTab1.SetTabEnabled(kTestTab, true);
    SSTab1.SetTab(kTestTab);
    questionPanels.BringToFront(DescriptionTest() ? picDescContainer : picKeywodContainer);
    cmdStartTest_Click();
}

void frmLearnTarotMain::cmdSaveSettings_Click() {
    Application& app = App();
    const std::string name = modSettings::AppName(app);
    auto save = [&](const char* key, const std::string& value) {
        modSettings::SaveSetting(app, name, kSection, key, value);
    };
    save("MajorArcana", std::to_string(chkMajor.Value()));
    save("MinorArcana", std::to_string(chkMinor.Value()));
    save("Cups", std::to_string(chkGroup(0).Value()));
    save("Wands", std::to_string(chkGroup(1).Value()));
    save("Pentacles", std::to_string(chkGroup(2).Value()));
    save("Swords", std::to_string(chkGroup(3).Value()));
    save("TestType", optTestType(0).Selected() ? "0" : "1");
    save("Difficulty", optDifficulty(0).Selected() ? "0" : optDifficulty(1).Selected() ? "1" : "2");
    save("RunAtSysTray", chkSysTray.Value() == 1 ? "True" : "False");
}

} // namespace quillane
