// Tab 0: the personal goal tracker. Goals live in goals.txt beside the
// program (or in the user's data folder when that can't be written); the tab
// works without the card database.
#include "frmLearnTarotMain.h"

#include "common/Errors.h"
#include "common/Numbers.h"
#include "common/TextFiles.h"
#include "goals/GoalFile.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillane {

using modGoals::tGoals;

namespace {

std::vector<modGoals::GoalRecord> Records() {
    return tGoals.IsInitialised() ? tGoals.Items() : std::vector<modGoals::GoalRecord>{};
}

// A single-precision number in its shortest plain form: 14.29, 50, 0.5.
std::string Shortest(float value) {
    char buf[32];
    const auto end = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 7).ptr;
    return std::string(buf, end);
}

} // namespace

void frmLearnTarotMain::BuildGoalsTab() {
    tGoals.Erase(); // the window owns the goals while it is open
    Label10.SetCaption("It is important to set goals and targets to be able to see and measure "
                       "your achievements. This seemingly small task will yield tremendous "
                       "results, when taken seriously. Setting goals will help you keep a clear, "
                       "focussed and dedicated mindset towards fulfilling your aims in life. ");
    ListView1.SetColumns({"Goals"});
    for (int i = 0; i <= 1; ++i)
        SSTab1.Place(optGoals(i), kGoalsTab);
    optGoals(0).SetCaption("View Current Goals");
    optGoals(1).SetCaption("View Achieved Goals");
    // The button in front offers the view that is not on the screen.
    goalViews.Add(optGoals(1));
    goalViews.Add(optGoals(0));
    cmdNewGoal.SetCaption("Set New Goals");
    cmdSaveGoals.SetCaption("Save / Update Goal");
    cmdDeleteGoals.SetCaption("Delete Selected Goals");
    cmdMarkAchived.SetCaption("Mark Selected Goals As Achieved");
    Label15.SetCaption("Name Of Goal");
    Label16.SetCaption("Description Of Goal");
    Label12.SetCaption("Goal Starting Date:");
    Label11.SetCaption("Goal Ending Date:");
    Frame3.SetCaption("Goal Timer");
    Label7.SetCaption("Total Day(s) To Achieve Goal");
    Label1.SetCaption("Day(s) Remaining To Achieve Goal");
    Label13.SetCaption("Select  Achieved Percentage Of Goal");
    for (int percent = 0; percent <= 100; ++percent)
        Combo3.AddItem(std::to_string(percent));
    for (Control* control : {&txtGoalName, &txtGoalDesc, &Combo3, &cmdSaveGoals})
        control->SetEnabled(false);

    optGoals.OnClick([this](int i) { optGoals_Click(i); });
    ListView1.ItemClick = [this](int n) { ListView1_ItemClick(n); };
    cmdNewGoal.Click = [this] { cmdNewGoal_Click(); };
    cmdSaveGoals.Click = [this] { cmdSaveGoals_Click(); };
    cmdMarkAchived.Click = [this] { cmdMarkAchived_Click(); };
    cmdDeleteGoals.Click = [this] { cmdDeleteGoals_Click(); };
    mydtpStartingDate.DateChanged = [this] { Pickers_DateChanged(); };
    mydtpEndingDate.DateChanged = [this] { Pickers_DateChanged(); };
}

std::string frmLearnTarotMain::GoalFilePath() const {
    return App().Svc().folder->FilesDir() + "/" + modGoals::kGoalFile;
}

void frmLearnTarotMain::LoadGoalsAtStart() {
    if (!FileExists(GoalFilePath()))
        return;
    ReadGoals();
    optGoals(0).SetValue(vbTrue);
    if (ListView1.Count() > 0) {
        ListView1.Select(1);
        ListView1_ItemClick(1);
    }
}

void frmLearnTarotMain::ReadGoals() {
    tGoals.Erase();
    const std::string path = GoalFilePath();
    if (!FileExists(path))
        return;
    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const modGoals::ParsedGoals parsed = modGoals::ParseGoals(DecodeFileText(bytes));
    for (const modGoals::GoalRecord& goal : parsed.goals) {
        tGoals.ReDimPreserve(tGoals.IsInitialised() ? tGoals.UBound() + 1 : 0);
        tGoals(tGoals.UBound()) = goal;
    }
    goalFileIncomplete_ = parsed.failedLine.has_value();
    if (goalFileIncomplete_)
        App().MsgBox("The goal file " + path + " could not be read past line " +
                         std::to_string(*parsed.failedLine) + " (" + parsed.failure +
                         ").\r\n\r\nThe goals before it are shown. The file is kept as it is, "
                         "beside it as " +
                         modGoals::kGoalFile + ".bak, when goals are next saved.",
                     MsgButtons::Ok, MsgIcon::Exclamation);
}

void frmLearnTarotMain::WriteGoals() {
    if (!tGoals.IsInitialised())
        return;
    WriteGoalsExcept(-1);
}

void frmLearnTarotMain::WriteGoalsExcept(long index) {
    const std::string path = GoalFilePath();
    // A file not read to its end is kept once before it is written over.
    if (goalFileIncomplete_) {
        std::error_code ec;
        std::filesystem::copy_file(path, path + ".bak",
                                   std::filesystem::copy_options::overwrite_existing, ec);
        goalFileIncomplete_ = false;
    }
    try {
        ReplaceFile(path, modGoals::FormatGoals(Records(), index));
    } catch (const RuntimeError&) {
        // The goals stay on the screen and in memory; nothing typed is lost.
        App().MsgBox("The goals could not be saved: " + path + " can't be written.", MsgButtons::Ok,
                     MsgIcon::Exclamation);
    }
}

void frmLearnTarotMain::AddGoal() {
    modGoals::GoalRecord goal;
    goal.strGoalName = txtGoalName.Text();
    goal.dtStartDate = mydtpStartingDate.value();
    goal.dtEndDate = mydtpEndingDate.value();
    goal.strGoalDesc = txtGoalDesc.Text();
    tGoals.ReDimPreserve(tGoals.IsInitialised() ? tGoals.UBound() + 1 : 0);
    tGoals(tGoals.UBound()) = goal;
}

void frmLearnTarotMain::DisplayGoals(bool ShowAchieved) {
    ListView1.ClearItems();
    ListView1.SetCheckboxes(!ShowAchieved);
    if (tGoals.IsInitialised())
        for (long i = 0; i <= tGoals.UBound(); ++i) {
            if ((tGoals(i).blnAchieved != 0) != ShowAchieved)
                continue;
            const int item =
                ListView1.Add(std::string(1, '_').append(std::to_string(i)), tGoals(i).strGoalName);
            ListView1.SetSubItem(item, std::to_string(i));
            Combo3.SetListIndex(tGoals(i).intPercent);
            if (ShowAchieved)
                lblInfo.SetCaption("");
        }
    const bool any = ListView1.Count() > 0;
    cmdSaveGoals.SetEnabled(any);
    mydtpStartingDate.SetEnabledFlag(any);
    mydtpEndingDate.SetEnabledFlag(any);
    if (any) {
        ListView1.Select(1);
        ListView1_ItemClick(1);
    }
    ShowGoalProgress();
}

void frmLearnTarotMain::ClearGoalPanel() {
    txtGoalName.SetText("");
    txtGoalDesc.SetText("");
    lblDayCount.SetCaption("");
    lblDaysRemaining.SetCaption("");
    lblInfo.SetCaption("");
    Combo3.SetListIndex(0);
}

void frmLearnTarotMain::ShowGoalProgress() {
    lblInfo.SetCaption("");
    lblDaysRemaining.SetCaption("");
    const Date start = mydtpStartingDate.value();
    const Date end = mydtpEndingDate.value();
    const Date today = App().Svc().clock->Today();
    const long total = Date::DaysBetween(start, end);
    const long elapsed = Date::DaysBetween(start, today);
    if (elapsed < 0) {
        lblInfo.SetCaption("Your goal starting date has been set for the future");
        return;
    }
    if (total <= 0)
        return;
    if (Combo3.Enabled())
        lblDaysRemaining.SetCaption(std::to_string(Date::DaysBetween(today, end)));
    const float expected = float(100.0 / double(total) * double(elapsed));
    // Rounded to two decimals through its ".00" form, read back as single.
    const float rounded = float(std::round(double(expected) * 100.0) / 100.0);
    lblInfo.SetCaption("You should have achieved " + Shortest(rounded) +
                       "%. You have actually achieved " + std::to_string(Combo3.ListIndex()) + "%");
}

void frmLearnTarotMain::optGoals_Click(int Index) {
    goalViews.BringToFront(optGoals(1 - Index));
    txtGoalDesc.SetText("");
    txtGoalName.SetText("");
    DisplayGoals(Index == 1);
}

void frmLearnTarotMain::ListView1_ItemClick(int item) {
    const long index = std::stol(ListView1.Item(item).key.substr(1));
    const modGoals::GoalRecord& goal = tGoals(index);
    txtGoalName.SetText(goal.strGoalName);
    txtGoalDesc.SetText(goal.strGoalDesc);
    mydtpStartingDate.setValue(goal.dtStartDate);
    mydtpEndingDate.setValue(goal.dtEndDate);
    Combo3.SetListIndex(goal.intPercent);
    lblDayCount.SetCaption(std::to_string(Date::DaysBetween(goal.dtStartDate, goal.dtEndDate)));
    ShowGoalProgress();
    for (Control* control : {&txtGoalName, &txtGoalDesc, &Combo3})
        control->SetEnabled(true);
}

void frmLearnTarotMain::cmdNewGoal_Click() {
    // A disabled list marks that the next save is a new goal.
    ListView1.SetEnabled(false);
    ClearGoalPanel();
    const Date today = App().Svc().clock->Today();
    mydtpStartingDate.setValue(today);
    mydtpEndingDate.setValue(today.AddDays(7));
    Pickers_DateChanged();
    cmdSaveGoals.SetEnabled(true);
    mydtpStartingDate.SetEnabledFlag(true);
    mydtpEndingDate.SetEnabledFlag(true);
    for (Control* control : {&txtGoalName, &txtGoalDesc, &Combo3})
        control->SetEnabled(true);
    txtGoalName.SetFocus();
}

void frmLearnTarotMain::cmdSaveGoals_Click() {
    const Date start = mydtpStartingDate.value();
    const Date end = mydtpEndingDate.value();
    if (Date::DaysBetween(start, end) <= 0) {
        App().MsgBox("Starting date can't be same or later than ending date.", MsgButtons::Ok,
                     MsgIcon::Critical);
        return;
    }
    if (txtGoalName.Text().empty()) {
        App().MsgBox("Goal name can't be blank.", MsgButtons::Ok, MsgIcon::Critical);
        return;
    }
    if (!ListView1.Enabled()) {
        AddGoal();
    } else if (ListView1.Selected() > 0) {
        modGoals::GoalRecord& goal =
            tGoals(std::stol(ListView1.Item(ListView1.Selected()).key.substr(1)));
        goal.strGoalName = txtGoalName.Text();
        goal.dtStartDate = start;
        goal.dtEndDate = end;
        goal.strGoalDesc = txtGoalDesc.Text();
        goal.intPercent = std::int16_t(Combo3.ListIndex());
    }
    WriteGoals();
    ReadGoals();
    DisplayGoals(false);
    optGoals(0).SetValue(vbTrue);
    if (ListView1.Count() > 0)
        ListView1.Select(1);
    ListView1.SetEnabled(true);
}

void frmLearnTarotMain::cmdMarkAchived_Click() {
    for (const ListViewItem& item : ListView1.Items())
        if (item.checked)
            tGoals(std::stol(item.key.substr(1))).blnAchieved = vbTrue;
    WriteGoals();
    DisplayGoals(false);
}

void frmLearnTarotMain::cmdDeleteGoals_Click() {
    // Each write starts from the unchanged goals, so of several checked goals
    // only the last is gone in the end.
    const std::vector<ListViewItem> items = ListView1.Items();
    for (const ListViewItem& item : items)
        if (item.checked) {
            WriteGoalsExcept(std::stol(item.subItem));
            ClearGoalPanel();
        }
    ReadGoals();
    DisplayGoals(false);
    if (ListView1.Count() == 0) {
        for (Control* control : {&txtGoalDesc, &txtGoalName, &Combo3})
            control->SetEnabled(false);
        ClearGoalPanel();
    }
}

void frmLearnTarotMain::Pickers_DateChanged() {
    lblDayCount.SetCaption(
        std::to_string(Date::DaysBetween(mydtpStartingDate.value(), mydtpEndingDate.value())));
}

} // namespace quillane
