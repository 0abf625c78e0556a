// The settings store: shifted keys, the store's files, and bad files.
#include "DriveSession.h"
#include "platform/IniSettingsStore.h"
#include "shell/modSettings.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace quillane;
using namespace quillane::testing;

namespace {
// A full disk, for as long as it lives: no file of this process grows past a
// few bytes (for root too, unlike a folder without write permission).
class FullDisk {
public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit full = before_;
        full.rlim_cur = 8;
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};
} // namespace

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
    EXPECT_EQ(again.Read("quillane", "Settings", "TestType"), "1");
    EXPECT_FALSE(again.Read("other", "Settings", "TestType")) << "applications are kept apart";
}

TEST(Settings, AMalformedStoreGivesDefaultsAndIsLeftAloneUntilAWrite) {
    ScratchDir user;
    const std::string garbage = "[Settings\n\xff\xfe=\x01\x02 not an ini file\n[[[";
    WriteBytes(user.Path() / "quillane.ini", garbage);
    IniSettingsStore store(QString::fromStdString(user.Str()));
    EXPECT_FALSE(store.Read("quillane", "Settings", "TestType"));
    EXPECT_EQ(ReadBytes(user.Path() / "quillane.ini"), garbage) << "reading alone changes nothing";
    // The program starts, reads the reminder's entry and writes it: a first run.
    const auto answers = Drive({"--user-dir", user.Str(), "--today", "2026-03-01"},
                               {"start", "msgbox", "setting TestType"});
    EXPECT_EQ(answers[1], "null");
    EXPECT_EQ(answers[2], "null");
}

TEST(Settings, StoredValuesAreReadWhateverBecomesOfAWrite) {
    ScratchDir user;
    const auto file = user.Path() / "quillane.ini";
    // A value in Latin-1, as another program may have left it.
    const std::string stored = "[Settings]\r\nStoneGroup0=0\r\nNote=caf\xE9 au lait\r\n";
    WriteBytes(file, stored);
    IniSettingsStore store(QString::fromStdString(user.Str()));
    std::vector<std::optional<std::string>> read; // checked once the disk has room for a report
    {
        FullDisk full;
        store.Write("quillane", "Settings", "StoneGroup1", "1");
        for (const char* key : {"StoneGroup0", "StoneGroup0", "StoneGroup1"})
            read.push_back(store.Read("quillane", "Settings", key));
    }
    EXPECT_EQ(read, (std::vector<std::optional<std::string>>{"0", "0", std::nullopt}));
    EXPECT_EQ(ReadBytes(file), stored) << "a write that failed left the file whole";
    store.Write("quillane", "Settings", "StoneGroup1", "1");
    EXPECT_EQ(store.Read("quillane", "Settings", "StoneGroup1"), "1");
    EXPECT_EQ(store.Read("quillane", "Settings", "Note"), "caf\xE9 au lait");
    EXPECT_NE(ReadBytes(file).find("Note=caf\xE9 au lait\r\n"), std::string::npos)
        << "a line that no write was for stays byte for byte";

    // A header that can't be parsed still names its section, on every read.
    WriteBytes(file, "[Settings\nStoneGroup0=0\n");
    EXPECT_EQ(store.Read("quillane", "Settings", "StoneGroup0"), "0");
    EXPECT_EQ(store.Read("quillane", "Settings", "StoneGroup0"), "0");
}

TEST(Settings, ALockThatStaysNeverHoldsTheProgramUp) {
    ScratchDir user;
    WriteBytes(user.Path() / "quillane.ini", "[Settings]\nStoneGroup0=0\n");
    // A folder in the lock's place, old enough to look left behind, which
    // can't be removed as a lock file can.
    const auto lock = user.Path() / "quillane.ini.lock";
    std::filesystem::create_directory(lock);
    std::filesystem::last_write_time(lock, std::filesystem::file_time_type::clock::now() -
                                               std::chrono::hours(1));
    const auto a = Drive({"--user-dir", user.Str()}, {"start", "forms", "setting StoneGroup0",
                                                      "setting TestType 1", "setting TestType"});
    EXPECT_EQ(a[1], R"(["frmMDI"])") << "the program starts";
    EXPECT_EQ(a[2], R"("0")") << "and reads what is stored";
    EXPECT_EQ(a[3], "ok");
    EXPECT_EQ(a[4], "null") << "a write that finds the lock is not stored";
}
