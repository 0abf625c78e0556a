// The personal goals, the date picker, the start-at-logon entry and the tray,
// through the driver: the goal file byte for byte and its settled oddities.
#include "TarotSession.h"
#include "goals/GoalFile.h"

using namespace quillane;
using quillane::testing::ReadBytes;
using quillane::testing::Tarot;
using quillane::testing::WriteBytes;

namespace {

TEST(GoalFile, TheNotationKeepsCommasLineBreaksAndFlagsAndStopsAtAShiftedLine) {
    modGoals::GoalRecord a{
        "Learn, the Cups", Date(2009, 3, 1), Date(2009, 3, 8), "line one\r\nline, two", -1, 40};
    modGoals::GoalRecord b{"Weekly reading", Date(2026, 1, 31), Date(2026, 2, 2), "", 0, 0};
    const std::string text = modGoals::FormatGoals({a, b});
    EXPECT_EQ(text, "\"Learn, the Cups\",#2009-03-01#,#2009-03-08#,\"line one\r\nline, two\","
                    "#TRUE#,40\r\n\"Weekly reading\",#2026-01-31#,#2026-02-02#,\"\",#FALSE#,0\r\n");
    EXPECT_EQ(modGoals::FormatGoals({a, b}, 0), text.substr(text.find("\"Weekly")));

    // A quote typed into a name ends it; the rest of the field is passed over.
    const auto quoted =
        modGoals::ParseGoals("\"My \"best\" goal\",#2009-03-01#,#2009-03-08#,\"d\",#FALSE#,5\r\n");
    ASSERT_EQ(quoted.goals.size(), 1u);
    EXPECT_EQ(quoted.goals[0].strGoalName, "My ");
    // With a comma after it the fields shift, and reading stops at that line.
    const auto shifted = modGoals::ParseGoals(text + "\"a \"b, c\"\",#2009-03-01#,#2009-03-08#,"
                                                     "\"d\",#FALSE#,5\r\n");
    EXPECT_EQ(shifted.goals.size(), 2u);
    EXPECT_EQ(shifted.failedLine, 4) << shifted.failure;
}

struct Goals : Tarot {
    explicit Goals(const std::string& file = "")
        : Tarot(false, [&](drive::DriverOptions& o) {
              if (!file.empty())
                  WriteBytes(std::filesystem::path(o.programDir) / "goals.txt", file);
          }) {
        Do("set frmLearnTarotMain.SSTab1.Tab 0");
    }
    std::vector<std::string> Listed() {
        std::vector<std::string> names;
        const Json items = Get("ListView1.ListItems");
        for (const Json& item : items.AsArray())
            names.push_back(item.Find("Text")->AsString());
        return names;
    }
};

const char* const kTwoViews =
    "\"Read daily\",#2026-11-20#,#2026-11-27#,\"a card a day\",#FALSE#,30\r\n"
    "\"Learn majors\",#2026-10-01#,#2026-10-31#,\"all 22\",#TRUE#,100\r\n"
    "\"Learn minors\",#2026-11-01#,#2026-12-31#,\"\",#FALSE#,10\r\n";

struct GoalsFromFile : Goals {
    GoalsFromFile() : Goals(kTwoViews) {}
};

// Both views fill from a file written by hand; marking and deleting keep their
// settled limits.
TEST_F(GoalsFromFile, BothViewsFillFromTheFileAndMarkingAndDeletingWriteItBack) {
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Read daily", "Learn minors"}));
    EXPECT_TRUE(Get("ListView1.Checkboxes").AsBool());
    EXPECT_EQ(Text("txtGoalName.Text"), "Read daily") << "the first goal is shown";
    // 7 days, 3 gone: 42.86 expected.
    EXPECT_EQ(Text("lblInfo.Caption"),
              "You should have achieved 42.86%. You have actually achieved 30%");
    EXPECT_EQ(Text("lblDaysRemaining.Caption"), "4");
    Click("optGoals(1)");
    EXPECT_EQ(Listed(), std::vector<std::string>{"Learn majors"});
    EXPECT_FALSE(Get("ListView1.Checkboxes").AsBool()) << "achieved goals can't be checked";
    EXPECT_TRUE(Get("optGoals(0).InFront").AsBool()) << "the button offers the other view";
    Do("today 2026-12-09");
    Click("optGoals(0)");
    EXPECT_EQ(Text("lblInfo.Caption"),
              "You should have achieved 271.43%. You have actually achieved 30%")
        << "past the end the figure goes on growing";
    EXPECT_EQ(Text("lblDaysRemaining.Caption"), "-12");

    Do("set frmLearnTarotMain.ListView1.ListItems(1).Checked true");
    Do("set frmLearnTarotMain.ListView1.ListItems(2).Checked true");
    Click("cmdDeleteGoals");
    EXPECT_EQ(Listed(), std::vector<std::string>{"Read daily"}) << "only the later one goes";
    Do("set frmLearnTarotMain.ListView1.ListItems(1).Checked true");
    Click("cmdMarkAchived");
    EXPECT_TRUE(Listed().empty());
    EXPECT_EQ(ReadBytes(Program() / "goals.txt"),
              "\"Read daily\",#2026-11-20#,#2026-11-27#,\"a card a day\",#TRUE#,30\r\n"
              "\"Learn majors\",#2026-10-01#,#2026-10-31#,\"all 22\",#TRUE#,100\r\n");
}

TEST_F(Goals, SavingChecksItsFieldsAndKeepsNoPercentageOfANewGoal) {
    EXPECT_FALSE(std::filesystem::exists(Program() / "goals.txt"));
    EXPECT_FALSE(Get("txtGoalName.Enabled").AsBool());
    Click("cmdNewGoal");
    EXPECT_EQ(Run("focus frmLearnTarotMain"), "\"txtGoalName\"");
    EXPECT_EQ(Text("lblDayCount.Caption"), "7");
    Click("cmdSaveGoals");
    EXPECT_EQ(Json::Parse(Run("msgbox"))->Find("text")->AsString(), "Goal name can't be blank.");
    Do("set frmLearnTarotMain.txtGoalName.Text \"Same day\"");
    Do("set frmLearnTarotMain.mydtpEndingDate.cboDate.ListIndex 22");
    Click("cmdSaveGoals");
    EXPECT_EQ(Json::Parse(Run("msgbox"))->Find("text")->AsString(),
              "Starting date can't be same or later than ending date.");
    Do("set frmLearnTarotMain.mydtpEndingDate.cboDate.ListIndex 29");
    Do("set frmLearnTarotMain.Combo3.ListIndex 60");
    Click("cmdSaveGoals");
    EXPECT_EQ(Run("msgbox"), "null");
    EXPECT_EQ(ReadBytes(Program() / "goals.txt"),
              "\"Same day\",#2026-11-23#,#2026-11-30#,\"\",#FALSE#,0\r\n");
    Do("set frmLearnTarotMain.Combo3.ListIndex 60");
    Click("cmdSaveGoals"); // an update keeps it
    const auto goals = Json::Parse(Run("get modGoals.tGoals"));
    ASSERT_TRUE(goals && goals->IsArray());
    EXPECT_EQ(goals->AsArray().at(0).Find("intPercent")->AsInt(), 60);
}

TEST_F(Goals, ADamagedFileShowsWhatCameBeforeAndIsKeptBeforeItsFirstWrite) {
    const std::string damaged = std::string(kTwoViews) + "\"a \"b, c\"\",#2009-03-01#\r\n";
    WriteBytes(Program() / "goals.txt", damaged);
    Do("close frmLearnTarotMain");
    Do("click frmMDI.cmdSelectOption(2)");
    const std::string box = Run("msgbox");
    EXPECT_NE(box.find("goals.txt could not be read past line 4"), std::string::npos) << box;
    EXPECT_EQ(Run("ended"), "false");
    Do("set frmLearnTarotMain.SSTab1.Tab 0");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Read daily", "Learn minors"}));
    Click("cmdNewGoal");
    Do("set frmLearnTarotMain.txtGoalName.Text \"Next\"");
    Click("cmdSaveGoals");
    EXPECT_EQ(ReadBytes(Program() / "goals.txt.bak"), damaged);
}

// The date pickers on a Tarot window opened on a leap day.
struct Picker : Tarot {
    Picker() : Tarot(false, [](drive::DriverOptions& o) { o.today = Date(2028, 2, 29); }) {}
};

TEST_F(Picker, ClampsOnlyDownwardsAndTellsOfEverySelection) {
    const auto value = [this] { return Text("mydtpEndingDate.value"); };
    const auto events = [this] { return Number("mydtpEndingDate.DateChangedCount"); };
    const auto pick = [this](const std::string& list, int index) {
        Do("set frmLearnTarotMain.mydtpEndingDate." + list + ".ListIndex " + std::to_string(index));
    };
    EXPECT_EQ(Text("mydtpStartingDate.value"), "2028-02-28") << "made on 29 February";
    EXPECT_FALSE(Get("mydtpStartingDate.Enabled").AsBool()) << "false until written";
    Do("set frmLearnTarotMain.SSTab1.Tab 0");
    Click("cmdNewGoal");
    EXPECT_EQ(value(), "2028-03-07");
    pick("cboDate", 30);
    long before = events();
    pick("cboMonth", 1); // February of a leap year
    EXPECT_EQ(value(), "2028-02-29");
    EXPECT_EQ(events() - before, 2) << "the clamp's own selection, then the month's";
    pick("cboYear", 2029 - 1980);
    EXPECT_EQ(value(), "2029-02-28");
    pick("cboMonth", 2);
    EXPECT_EQ(value(), "2029-03-28") << "the 31 is not restored";
    before = events();
    pick("cboMonth", 2); // a re-pick of the shown month still tells
    EXPECT_EQ(events() - before, 1);
    pick("cboDate", 30);
    pick("cboMonth", 3);
    EXPECT_EQ(value(), "2029-04-30");
}

TEST_F(Tarot, TheStartUpEntryIsWrittenRepairedAndRemoved) {
    EXPECT_EQ(Run("autostart"), "null");
    Do("set frmLearnTarotMain.optRun.Value true");
    const std::string entry = Json("\"" + Program().string() + "/quillane\" /STARTUP").Dump();
    EXPECT_EQ(Run("autostart"), entry);
    EXPECT_TRUE(Get("chkSysTray.Enabled").AsBool());
    Do("set frmLearnTarotMain.chkSysTray.Value 1");
    EXPECT_EQ(Run("setting RunAtSysTray"), "\"True\"");
    // A stale entry from another folder is written anew at the next load.
    platform.entries.Write("quillane", "\"/old/place/quillane\" /STARTUP");
    Do("close frmLearnTarotMain");
    Do("click frmMDI.cmdSelectOption(2)");
    EXPECT_EQ(Run("autostart"), entry);
    EXPECT_EQ(Number("chkSysTray.Value"), 1);
    Do("set frmLearnTarotMain.optDontRun.Value true");
    EXPECT_EQ(Run("autostart"), "null");
    EXPECT_EQ(Number("chkSysTray.Value"), 0);
    EXPECT_EQ(Run("setting RunAtSysTray"), "\"False\"");
}

struct UnwritableEntry : Tarot {
    UnwritableEntry()
        : Tarot(false, [](drive::DriverOptions& o) {
              o.autostartFails = drive::ScriptedAutostart::Failure::Write;
          }) {}
};

TEST_F(UnwritableEntry, SaysSoAndKeepsTheOption) {
    Do("set frmLearnTarotMain.optRun.Value true");
    EXPECT_EQ(Json::Parse(Run("msgbox"))->Find("text")->AsString(),
              "Error 5 setting key\r\nAccess is denied.");
    EXPECT_TRUE(Get("optRun.Value").AsBool());
    EXPECT_EQ(Run("autostart"), "null");
}

// Started at logon with the tray chosen, on a desktop with a notification
// area or without one.
struct AtLogon : Tarot, ::testing::WithParamInterface<bool> {
    AtLogon()
        : Tarot(
              false,
              [](drive::DriverOptions& o) {
                  o.args = "/STARTUP";
                  o.noTray = !GetParam();
              },
              false) {
        Do("start");
        Do("setting RunAtSysTray True");
        platform.entries.Open();
        platform.entries.Write("quillane", "\"x\" /STARTUP");
        Do("click frmMDI.cmdSelectOption(2)");
    }
};

TEST_P(AtLogon, TheWindowWaitsInTheTrayUntilShownOrIsOnlyMinimised) {
    if (!GetParam()) {
        EXPECT_EQ(Run("tray"), R"({"icon":false,"tip":""})");
        EXPECT_TRUE(Get("Visible").AsBool());
        EXPECT_EQ(Number("WindowState"), 1);
        return;
    }
    EXPECT_EQ(Run("tray"), R"({"icon":true,"tip":"Recent"})");
    EXPECT_FALSE(Get("Visible").AsBool());
    EXPECT_EQ(Run("trayevent 513"), "null");
    EXPECT_EQ(Run("trayevent 517"), R"({"menu":"mnuPopUp","default":"mnuShow"})");
    Do("traymenu mnuShow");
    EXPECT_TRUE(Get("Visible").AsBool());
    EXPECT_EQ(Number("WindowState"), 0);
    EXPECT_EQ(Run("tray"), R"({"icon":false,"tip":"Recent"})");
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutANotificationArea, AtLogon, ::testing::Bool());

} // namespace
