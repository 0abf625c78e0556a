// The update reminder, at most once a fortnight, through the driver.
#include "DriveSession.h"

#include <cstdio>
#include <gtest/gtest.h>

using namespace quillane::testing;

namespace {

// The shifted text as a JSON string literal, each byte as \u00XX.
std::string Shifted(const std::string& text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "\\u%04x", unsigned(c + 85));
        out += buf;
    }
    return out + "\"";
}

const std::string kDuration = Shifted("Duration");
const std::string kReminderBox =
    R"({"text":"There maybe an update to this software available\rDo you want to check for an update?",)"
    R"("title":"Quillane","icon":"information","buttons":"yesno","answer":"no"})";

struct Reminder : ::testing::Test {
    ScratchDir user;
    std::vector<std::string> Run(const std::string& today, std::vector<std::string> commands) {
        return Drive({"--user-dir", user.Str(), "--today", today}, commands);
    }
    void StoreDate(const std::string& shortDate) {
        Run("2026-01-01", {"setting " + kDuration + " " + Shifted(shortDate)});
    }
    std::string StoredDate() { return Last(Run("2026-01-01", {"setting " + kDuration})); }
};

} // namespace

TEST_F(Reminder, AFirstRunShowsNothingAndRemembersToday) {
    auto a = Run("2026-03-10", {"start", "msgbox", "setting Duration", "forms"});
    EXPECT_EQ(a, (std::vector<std::string>{"ok", "null", "null", R"(["frmMDI"])"}));
    EXPECT_EQ(StoredDate(), Shifted("3/10/2026"));
}

TEST_F(Reminder, ComesAfterMoreThanFourteenDaysEitherWay) {
    const std::pair<std::string, bool> cases[] = {
        {"2026-03-15", true},  // 14 days on: no box
        {"2026-03-16", false}, // 15 days on
        {"2026-02-15", true},  // 14 days back
        {"2026-02-14", false}, // a clock set back 15 days
    };
    for (const auto& [today, quiet] : cases) {
        StoreDate("3/1/2026");
        auto a = Run(today, {"start", "msgbox", "forms"});
        EXPECT_EQ(a[1] == "null", quiet) << today << ": " << a[1];
        if (!quiet) {
            EXPECT_EQ(a[1], kReminderBox);
            EXPECT_EQ(a[2], R"(["frmMDI"])") << "the launcher comes up after the box";
        }
    }
}

TEST_F(Reminder, YesOpensTheDownloadPageAndBothAnswersPostpone) {
    StoreDate("1/1/2026");
    auto yes = Run("2026-02-01", {"answer yes", "start", "opened"});
    EXPECT_EQ(yes[2], R"(["https://quillane.zenthora.net/download-quillane.html"])");
    EXPECT_EQ(StoredDate(), Shifted("2/1/2026"));

    StoreDate("1/1/2026");
    auto no = Run("2026-02-01", {"answer no", "start", "opened"});
    EXPECT_EQ(no[2], "[]");
    EXPECT_EQ(StoredDate(), Shifted("2/1/2026"));
    EXPECT_EQ(Run("2026-02-15", {"start", "msgbox"})[1], "null") << "postponed by a fortnight";
}

TEST_F(Reminder, AStoredDateThatCannotBeReadCountsAsAFirstRun) {
    StoreDate("not a date");
    auto a = Run("2026-05-05", {"start", "msgbox"});
    EXPECT_EQ(a[1], "null");
    EXPECT_EQ(StoredDate(), Shifted("5/5/2026"));
}

TEST_F(Reminder, TheTarotWindowRunsItAgain) {
    auto a = Run("2026-06-01", {"start", "click frmMDI.cmdSelectOption(2)", "msgbox",
                                "today 2026-06-20", "click frmMDI.cmdSelectOption(2)", "msgbox"});
    EXPECT_EQ(a[2], "null") << "the date was just written";
    EXPECT_EQ(a[5], kReminderBox);
}

TEST_F(Reminder, CheckForUpdateOpensThePageAndLeavesTheDateAlone) {
    StoreDate("1/1/2026");
    auto a = Run("2026-01-02", {"start", "click frmMDI.mnuUpdate", "opened"});
    EXPECT_EQ(a[2], R"(["https://quillane.zenthora.net/download-quillane.html"])");
    EXPECT_EQ(StoredDate(), Shifted("1/1/2026"));
}
