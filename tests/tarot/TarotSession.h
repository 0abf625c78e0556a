#pragma once
// The Tarot window through the driver's commands, in process: a scratch
// program folder with the deck the build has just made, a user folder, and
// small helpers to act and read.
#include "DriveSession.h"
#include "app/Composition.h"
#include "cards/modDB.h"
#include "drive/Driver.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace quillane::testing {

constexpr const char* kForm = "frmLearnTarotMain";

class Tarot : public ::testing::Test {
protected:
    // A program folder with the deck (or without), a user folder, and the
    // options of a start; the window is opened unless told otherwise.
    explicit Tarot(bool withDeck = true,
                   const std::function<void(drive::DriverOptions&)>& adjust = {}, bool open = true)
        : platform([&] {
              drive::DriverOptions o;
              o.programDir = (dir.Path() / "program").string();
              o.userDir = (dir.Path() / "user").string();
              std::filesystem::create_directories(o.programDir);
              std::filesystem::create_directories(o.userDir);
              if (withDeck)
                  std::filesystem::copy_file(QUILLANE_LEARN_DLL, o.programDir + "/learn.dll");
              o.seed = 11;
              o.today = Date(2026, 11, 23);
              if (adjust)
                  adjust(o);
              return o;
          }()) {
        if (open) {
            Do("start");
            Do("click frmMDI.cmdSelectOption(2)");
        }
    }
    // Runs one command on the window; "ok" is expected of actions.
    std::string Run(const std::string& command) {
        return driver.Execute(command).value_or("(none)");
    }
    void Do(const std::string& command) { ASSERT_EQ(Run(command), "ok") << command; }
    void Click(const std::string& control) { Do("click " + std::string(kForm) + "." + control); }
    Json Get(const std::string& what) {
        const std::string answer = Run("get " + std::string(kForm) + "." + what);
        auto value = Json::Parse(answer);
        EXPECT_TRUE(value) << what << ": " << answer;
        return value ? *value : Json();
    }
    std::string Text(const std::string& what) { return Get(what).AsString(); }
    long Number(const std::string& what) { return long(Get(what).AsInt()); }
    // Unticks the named settings until only what is wanted is left.
    void Untick(std::initializer_list<const char*> boxes) {
        for (const char* box : boxes)
            Do("set " + std::string(kForm) + "." + box + ".Value 0");
    }

    std::filesystem::path Program() const { return platform.options.programDir; }

    ScratchDir dir;
    drive::DrivePlatform platform;
    app::Program program{platform.Wired()};
    drive::Driver driver{program.App(), platform};
};

} // namespace quillane::testing
