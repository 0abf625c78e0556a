// The services the desktop program and the driver take from the platform.
#include "DriveSession.h"
#include "platform/DesktopServices.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

using namespace quillane;
using quillane::testing::ScratchDir;

namespace {
QString Q(const std::filesystem::path& p) {
    return QString::fromStdString(p.string());
}
} // namespace

TEST(ProgramFolder, FilesLiveBesideTheProgramWhenItsFolderCanBeWritten) {
    ScratchDir dir;
    ProgramFolder folder(Q(dir.Path()), "quillane", "/STARTUP");
    EXPECT_EQ(folder.FilesDir(), dir.Str());
    EXPECT_EQ(folder.CommandLine(), "/STARTUP");
    EXPECT_TRUE(std::filesystem::is_empty(dir.Path())) << "the probe leaves nothing behind";
}

TEST(ProgramFolder, AFolderThatCannotBeWrittenSendsTheFilesToTheUsersDataFolder) {
    ScratchDir dir, data;
    // A folder below a plain file can never be written, whoever runs the test.
    std::ofstream(dir.Path() / "plain") << "x";
    qputenv("XDG_DATA_HOME", Q(data.Path()).toUtf8());
    ProgramFolder folder(Q(dir.Path() / "plain" / "bin"), "quillane", "");
    EXPECT_EQ(folder.FilesDir(), (data.Path() / "quillane").string());
    EXPECT_TRUE(std::filesystem::is_directory(data.Path() / "quillane"));
    qunsetenv("XDG_DATA_HOME");
}

TEST(InstanceLock, OnlyTheFirstInstanceRunsAndALeftLockIsTakenOver) {
    ScratchDir runtime;
    std::filesystem::permissions(runtime.Path(), std::filesystem::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", Q(runtime.Path()).toUtf8());
    {
        LockFileInstance first("quillane-test");
        EXPECT_FALSE(first.AnotherInstanceRunning());
        LockFileInstance second("quillane-test");
        EXPECT_TRUE(second.AnotherInstanceRunning());
        LockFileInstance other("another-program");
        EXPECT_FALSE(other.AnotherInstanceRunning()) << "one lock per program";
    }
    // A lock whose owner is gone does not keep the program out.
    std::ofstream(runtime.Path() / "quillane-test.lock")
        << "999999\nquillane-test\n"
        << QSysInfo::machineHostName().toStdString() << "\n";
    LockFileInstance again("quillane-test");
    EXPECT_FALSE(again.AnotherInstanceRunning());
    qunsetenv("XDG_RUNTIME_DIR");
}

TEST(SystemLocale, ShortDatesReadBackAsTheSameDay) {
    SystemLocale locale;
    EXPECT_TRUE(SystemLocale::ShortFormat().contains("yyyy"));
    for (const Date& d : {Date(2026, 1, 31), Date(1999, 12, 1), Date(2031, 7, 4)}) {
        const auto back = locale.ParseShortDate(locale.ShortDate(d));
        ASSERT_TRUE(back) << locale.ShortDate(d);
        EXPECT_EQ(*back, d);
    }
    EXPECT_FALSE(locale.ParseShortDate("not a date"));
    EXPECT_FALSE(locale.MonthName(1).empty());
}
