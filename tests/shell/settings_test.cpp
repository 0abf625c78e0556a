// The settings store: shifted text, the store's files, and bad files.
#include "DriveSession.h"
#include "platform/IniSettingsStore.h"
#include "shell/modSettings.h"

#include <gtest/gtest.h>

using namespace quillane;
using namespace quillane::testing;

namespace {
std::string ReadFile(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}
} // namespace

TEST(Settings, ShiftedTextRoundTripsAndShiftsBy85) {
    EXPECT_EQ(modSettings::EncodeSettingText("A"), std::string(1, char(150)));
    EXPECT_EQ(modSettings::EncodeSettingText(""), "");
    const std::string date = "11/22/2026";
    const std::string shifted = modSettings::EncodeSettingText(date);
    EXPECT_NE(shifted, date);
    EXPECT_EQ(modSettings::DecodeSettingText(shifted), date);
}

TEST(Settings, TheStoreKeepsShiftedKeysAndValuesByteForByte) {
    ScratchDir dir;
    const std::string key = modSettings::EncodeSettingText("Duration");
    const std::string value = modSettings::EncodeSettingText("2/1/2026");
    {
        IniSettingsStore store(QString::fromStdString(dir.Str()));
        EXPECT_FALSE(store.Read("quillane", "Settings", key)) << "a first run finds nothing";
        store.Write("quillane", "Settings", key, value);
        store.Write("quillane", "Settings", "TestType", "1");
    }
    IniSettingsStore again(QString::fromStdString(dir.Str()));
    EXPECT_EQ(again.Read("quillane", "Settings", key), value);
    EXPECT_FALSE(again.Read("quillane", "Settings", "Duration"))
        << "only the shifted name finds it";
    EXPECT_EQ(again.Read("quillane", "Settings", "TestType"), "1");
    EXPECT_FALSE(again.Read("other", "Settings", "TestType")) << "applications are kept apart";
}

TEST(Settings, AMalformedStoreGivesDefaultsAndIsLeftAloneUntilAWrite) {
    ScratchDir user;
    const auto file = user.Path() / "quillane.ini";
    const std::string garbage = "[Settings\n\xff\xfe=\x01\x02 not an ini file\n[[[";
    std::ofstream(file, std::ios::binary) << garbage;
    // The program starts, reads the reminder's entry and writes it: a first run.
    auto answers = Drive({"--user-dir", user.Str(), "--today", "2026-03-01"},
                         {"start", "msgbox", "setting TestType"});
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_EQ(answers[1], "null");
    EXPECT_EQ(answers[2], "null");

    // Reading alone changes nothing.
    ScratchDir user2;
    std::ofstream(user2.Path() / "quillane.ini", std::ios::binary) << garbage;
    IniSettingsStore store(QString::fromStdString(user2.Str()));
    EXPECT_FALSE(store.Read("quillane", "Settings", "TestType"));
    EXPECT_EQ(ReadFile(user2.Path() / "quillane.ini"), garbage);
}
