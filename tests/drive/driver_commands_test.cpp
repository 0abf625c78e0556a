// The driver's commands for tabs, list views, user controls, locked boxes,
// controls on one spot, the tray and its pop-up menu, the form's own dump and
// the pages printed, over a sample form.
#include "DriveSession.h"
#include "SamplerForm.h"
#include "app/Composition.h"
#include "drive/Driver.h"

#include <gtest/gtest.h>

using namespace quillane;

namespace {

struct DriverCommands : ::testing::Test {
    DriverCommands()
        : platform(Options(dir)), program(platform.Wired()), driver(program.App(), platform) {
        program.App().RegisterForm("frmSampler", [](Application& a) {
            return std::make_unique<quillane::testing::Sampler>(a);
        });
        Run("start");
        program.App().Dispatch([this] { program.App().Show("frmSampler"); });
    }
    static drive::DriverOptions Options(const quillane::testing::ScratchDir& dir) {
        drive::DriverOptions o;
        o.programDir = o.userDir = dir.Str();
        return o;
    }
    std::string Run(const std::string& line) { return driver.Execute(line).value_or("(none)"); }
    quillane::testing::Sampler& Form() {
        return static_cast<quillane::testing::Sampler&>(*program.App().Find("frmSampler"));
    }

    quillane::testing::ScratchDir dir;
    drive::DrivePlatform platform;
    app::Program program;
    drive::Driver driver;
};

TEST_F(DriverCommands, TabsAnswerAndRefuseWhatTheUserCouldNotDo) {
    EXPECT_EQ(Run("get frmSampler.SSTab1.Tab"), "0");
    EXPECT_EQ(Run("get frmSampler.SSTab1.TabCaption(2)"), "\"Tab &2\"");
    EXPECT_EQ(Run("click frmSampler.cmdSecond"), "error: hidden") << "its tab is not in front";
    program.App().Dispatch([this] { Form().tabs.SetTabEnabled(2, false); });
    EXPECT_EQ(Run("get frmSampler.SSTab1.TabEnabled(2)"), "false");
    EXPECT_EQ(Run("set frmSampler.SSTab1.Tab 2"), "error: disabled");
    EXPECT_EQ(Run("set frmSampler.SSTab1.Tab 1"), "ok");
    EXPECT_EQ(Form().previousTabs, std::vector<int>{0});
    EXPECT_EQ(Run("click frmSampler.cmdSecond"), "ok");
}

TEST_F(DriverCommands, ListItemsAreReadClickedAndTicked) {
    program.App().Dispatch([this] {
        Form().list.Add("_0", "Weekly reading");
        Form().list.Add("_1", "Learn the Cups");
        Form().list.SetSubItem(1, "0");
    });
    EXPECT_EQ(Run("set frmSampler.ListView1.ListItems(1).Checked true"), "error: hidden")
        << "no check boxes in this view";
    program.App().Dispatch([this] { Form().list.SetCheckboxes(true); });
    EXPECT_EQ(Run("get frmSampler.ListView1.Checkboxes"), "true");
    EXPECT_EQ(Run("set frmSampler.ListView1.ListItems(2).Checked true"), "ok");
    EXPECT_EQ(Run("click frmSampler.ListView1.ListItems(1)"), "ok");
    EXPECT_EQ(Run("click frmSampler.ListView1.ListItems(3)"), "error: bad value: ListItems(3)");
    EXPECT_EQ(Run("get frmSampler.ListView1.ListItems"),
              R"([{"Key":"_0","Text":"Weekly reading","SubItem":"0","Checked":false},)"
              R"({"Key":"_1","Text":"Learn the Cups","SubItem":"","Checked":true}])");
    EXPECT_EQ(Form().checked, std::vector<int>{2});
    EXPECT_EQ(Form().clicked, std::vector<int>{1});
}

TEST_F(DriverCommands, ChildrenOfAUserControlAndItsOwnProperties) {
    EXPECT_EQ(Run("set frmSampler.dtpDay.cboDay.ListIndex 4"), "ok");
    EXPECT_EQ(Run("get frmSampler.dtpDay.Picked"), "5");
    Form().picker.picked = 0;
    EXPECT_EQ(Run("set frmSampler.dtpDay.cboDay.ListIndex 4"), "ok");
    EXPECT_EQ(Run("get frmSampler.dtpDay.Picked"), "5") << "re-picking the shown item runs Click";
    EXPECT_EQ(Run("set frmSampler.txtLocked.Text \"typed\""), "error: locked");
    EXPECT_EQ(Run("get frmSampler.optGoals(0).InFront"), "false");
    EXPECT_EQ(Run("get frmSampler.optGoals(1).InFront"), "true");
    EXPECT_EQ(Run("click frmSampler.optGoals(0)"), "error: hidden");
    const std::string dump = Run("dump frmSampler");
    EXPECT_EQ(dump.rfind(R"({"Caption":"Sampler","Visible":true,"Loaded":true,)", 0), 0u) << dump;
    EXPECT_NE(
        dump.find(R"("frmSampler.dtpDay":{"Visible":true,"Enabled":true,"Tag":"","Picked":5})"),
        std::string::npos)
        << dump;
}

TEST_F(DriverCommands, TheTrayPopsUpItsMenuAndTakesOnePick) {
    EXPECT_EQ(Run("tray"), R"({"icon":true,"tip":"Recent"})");
    EXPECT_EQ(Run("traymenu mnuShow"), "error: no menu");
    EXPECT_EQ(Run("trayevent 517"), R"({"menu":"mnuPopUp","default":"mnuShow"})");
    EXPECT_EQ(Run("traymenu mnuExit"), "ok");
    EXPECT_EQ(Run("traymenu mnuExit"), "error: no menu") << "the pick closed it";
    EXPECT_EQ(Run("trayevent 515"), "null");
    EXPECT_EQ(Run("trayevent 514"), "null");
    EXPECT_EQ(Form().picks, (std::vector<std::string>{"exit", "show"}));
}

// Each page printed, whole (the Numerology window's pages are checked in
// process, and on paper by the widget tests).
TEST_F(DriverCommands, PrintedAnswersEachPageWhole) {
    EXPECT_EQ(Run("printed"), "[]");
    ASSERT_TRUE(program.App().Svc().printer->Print({{"Report\r\n", true}, {"10 Correct"}}));
    EXPECT_EQ(Run("printed"), R"(["Report\r\n10 Correct"])");
}

TEST_F(DriverCommands, AnyPathIsAnsweredInOneLineAtOnce) {
    // A dotted path of a megabyte.
    std::string path = "frmSampler";
    for (int i = 0; i < 350000; ++i)
        path += ".ab";
    EXPECT_EQ(Run("get " + path), "error: unknown: " + path);
    EXPECT_EQ(Run("click " + path), "error: unknown: " + path);
    EXPECT_EQ(Run("set " + path + " 1"), "error: unknown: " + path);
    // What an error answer repeats keeps its control characters escaped.
    EXPECT_EQ(Run(R"(get "frmSampler.a\r\nb\u0000c")"),
              R"(error: unknown: frmSampler.a\r\nb\u0000c)");
    EXPECT_EQ(Run("click frmSampler.a\rb"), R"(error: unknown: frmSampler.a\rb)");
    EXPECT_EQ(Run(R"(trayevent "5\u00001")"), R"(error: bad value: 5\u00001)");
}

TEST_F(DriverCommands, NumbersAreWholeNumbersOrRefused) {
    for (const std::string bad : {"1e3", "3abc", "+1", "0x2", "4.0", "\" 2\"", "99999999999"}) {
        EXPECT_EQ(Run("set frmSampler.dtpDay.cboDay.ListIndex " + bad).rfind("error: bad value", 0),
                  0u)
            << bad;
        EXPECT_EQ(Run("set frmSampler.SSTab1.Tab " + bad).rfind("error: bad value", 0), 0u) << bad;
        EXPECT_EQ(Run("trayevent " + bad).rfind("error: bad value", 0), 0u) << bad;
    }
    EXPECT_EQ(Run("get frmSampler.SSTab1.TabEnabled(1x)"),
              "error: no such property: frmSampler.SSTab1.TabEnabled(1x)");
    EXPECT_EQ(Run("click frmSampler.ListView1.ListItems(1e0)"),
              "error: unknown: frmSampler.ListView1.ListItems(1e0)");
    EXPECT_EQ(Run("set frmSampler.dtpDay.cboDay.ListIndex 2"), "ok");
    EXPECT_EQ(Run("get frmSampler.dtpDay.Picked"), "3");
}

} // namespace
