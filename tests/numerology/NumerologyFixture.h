#pragma once
// The Numerology window in process, with the driver's recording services and
// no screen: a test acts as the user through what the user could reach.
#include "app/Composition.h"
#include "common/Application.h"
#include "common/Random.h"
#include "drive/RecordingServices.h"
#include "numerology/frmLearnNumerologyMain.h"
#include "numerology/modLearnNumerology.h"
#include "numerology/modLearnNumerologyState.h"
#include "shell/StartUp.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillane::testing {

struct NumerologyWindow : ::testing::Test {
    drive::RecordingMessageBox messageBox;
    drive::RecordingPrinter printer{true};
    drive::RecordingPrinter noPrinter{false};
    drive::DriverClock clock{Date(2026, 4, 1), 11};
    std::unique_ptr<Application> app;
    frmLearnNumerologyMain* form = nullptr;

    void SetUp() override { Open(&printer); }
    void TearDown() override {
        app.reset();
        modLearnNumerology::ClearTestState();
        TheGenerator().SetClock(nullptr);
    }

    // A fresh program with no state left from an earlier test.
    void Open(IPrinter* withPrinter, std::uint64_t seed = 1) {
        app.reset();
        modLearnNumerology::ClearTestState();
        modLearnNumerology::blnLearnMode = 0;
        modLearnNumerology::blnBySignificance = 0;
        modLearnNumerology::intCurrent = 0;
        Services s;
        s.messageBox = &messageBox;
        if (withPrinter)
            s.printer = withPrinter;
        s.clock = &clock;
        app = std::make_unique<Application>(s);
        app::RegisterProgram(*app);
        TheGenerator().SetClock([this] { return clock.Timer(); });
        TheGenerator().Reset(seed);
        OpenWindow();
    }
    void OpenWindow() {
        app->Dispatch([this] { app->Show("frmLearnNumerologyMain"); });
        form = static_cast<frmLearnNumerologyMain*>(app->Find("frmLearnNumerologyMain"));
    }
    void CloseWindow() {
        app->Dispatch([this] { app->Unload("frmLearnNumerologyMain"); });
        form = nullptr;
    }

    Control& C(const std::string& path) {
        Control* c = form ? form->Find(path) : nullptr;
        if (!c)
            throw std::runtime_error("no control " + path);
        return *c;
    }
    // A click of the user's: refused (false) on what the user could not reach.
    bool Click(const std::string& path) {
        Control& c = C(path);
        if (!c.Unreachable().empty())
            return false;
        app->Dispatch([&c] { c.UserClick(); });
        return true;
    }
    void ClickAll(const std::vector<std::string>& paths) {
        for (const auto& p : paths)
            ASSERT_TRUE(Click(p)) << p << " is out of reach";
    }
    // The text of the next message box, "" when there is none.
    std::string Message() {
        Json box = messageBox.TakeOldest();
        if (box.IsNull())
            return "";
        EXPECT_EQ(box.Find("icon")->AsString(), "critical");
        EXPECT_EQ(box.Find("title")->AsString(), "Quillane");
        return box.Find("text")->AsString();
    }
    int FrontPanel() {
        for (int i = 0; i <= 5; ++i)
            if (C("fraOption(" + std::to_string(i) + ")").InFront())
                return i;
        return -1;
    }

    void StartSignificanceTest() {
        ClickAll({"optMain(1)", "cmdNext", "optOption(0)", "cmdNext2"});
    }
    void StartInterpretationTest(const std::vector<int>& subjects) {
        ClickAll({"optMain(1)", "cmdNext", "optOption(1)", "cmdNext2"});
        for (int s : subjects)
            ASSERT_TRUE(Click("chkSubject(" + std::to_string(s) + ")"));
        ASSERT_TRUE(Click("cmdNext3"));
    }
    // The box that holds the right text of the question on show, or -1.
    int RightBox() {
        namespace num = modLearnNumerology;
        const std::string right =
            num::blnBySignificance
                ? num::strSignificance[std::size_t(
                      num::intSignificanceQuestion[std::size_t(num::intCurrent)])]
                : num::strInterpretation[std::size_t(
                      num::intInterpretationQuestion(num::intCurrent))];
        for (int i = 0; i <= 4; ++i)
            if (C("txtOption(" + std::to_string(i) + ")").Text() == right)
                return i;
        return -1;
    }
    // Answers the question on show with the box given.
    void Answer(int box) {
        ASSERT_TRUE(Click("optChoice(" + std::to_string(box) + ")"));
        ASSERT_TRUE(Click("cmdNextQuestion"));
    }
};

} // namespace quillane::testing
