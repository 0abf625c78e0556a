// The services the desktop program and the driver take from the platform.
#include "DriveSession.h"
#include "platform/DesktopServices.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <functional>
#include <unistd.h>

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

// Only the first instance of a program runs. A lock left by a run that
// crashed, or one that names no process, is taken over and works again.
TEST(InstanceLock, OnlyTheFirstInstanceRunsAndALeftLockIsTakenOver) {
    namespace fs = std::filesystem;
    ScratchDir runtime;
    fs::permissions(runtime.Path(), fs::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", Q(runtime.Path()).toUtf8());
    const auto path = runtime.Path() / "quillane-test.lock";
    const std::string host = QSysInfo::machineHostName().toStdString() + "\n";
    const std::pair<const char*, std::function<void()>> left[] = {
        {"no lock", [] {}},
        {"a crashed run's lock", [&] { std::ofstream(path) << "999999\nquillane-test\n" + host; }},
        {"an empty file", [&] { std::ofstream{path}; }},
        {"garbage", [&] { std::ofstream(path) << "\x01\x02 no process\n"; }},
        {"a folder", [&] { fs::create_directory(path); }},
    };
    for (const auto& [what, make] : left) {
        make();
        LockFileInstance first("quillane-test");
        EXPECT_FALSE(first.AnotherInstanceRunning()) << what;
        LockFileInstance second("quillane-test");
        EXPECT_TRUE(second.AnotherInstanceRunning()) << "the lock works after " << what;
        LockFileInstance other("another-program");
        EXPECT_FALSE(other.AnotherInstanceRunning()) << "one lock per program";
    }
    qunsetenv("XDG_RUNTIME_DIR");
}

TEST(InstanceLock, EverySessionOfAUserFindsOneLockThatNoOtherUserShares) {
    namespace fs = std::filesystem;
    ScratchDir system, cache, shared;
    qputenv("XDG_CACHE_HOME", Q(cache.Path()).toUtf8());
    // The user's runtime folder, which a session that sets the variable names.
    const auto own = system.Path() / std::to_string(::geteuid());
    fs::create_directory(own);
    fs::permissions(own, fs::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", Q(own).toUtf8());
    LockFileInstance first("quillane-test", Q(system.Path()));
    EXPECT_FALSE(first.AnotherInstanceRunning());
    qunsetenv("XDG_RUNTIME_DIR");
    LockFileInstance unset("quillane-test", Q(system.Path()));
    EXPECT_TRUE(unset.AnotherInstanceRunning()) << "a session without XDG_RUNTIME_DIR";
    // A runtime folder that others may write in is not the user's.
    fs::permissions(shared.Path(), fs::perms::all);
    qputenv("XDG_RUNTIME_DIR", Q(shared.Path()).toUtf8());
    LockFileInstance foreign("quillane-test", Q(system.Path()));
    EXPECT_TRUE(foreign.AnotherInstanceRunning()) << "a session with someone else's folder";
    // Without a runtime folder of the user's, the lock is in the user's cache.
    LockFileInstance none("quillane-test", Q(system.Path() / "none"));
    EXPECT_FALSE(none.AnotherInstanceRunning());
    EXPECT_TRUE(fs::exists(cache.Path() / "quillane" / "quillane-test.lock"));
    EXPECT_TRUE(fs::is_empty(shared.Path()));
    EXPECT_FALSE(fs::exists(fs::temp_directory_path() / "quillane-test.lock"));
    qunsetenv("XDG_RUNTIME_DIR");
    qunsetenv("XDG_CACHE_HOME");
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
