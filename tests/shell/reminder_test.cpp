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

// A start on the given day, with the date of the last reminder stored before
// it when one is given.
Script StartOn(const std::string& stored, const std::string& answer = "no") {
    Script s("frmMDI");
    if (!stored.empty())
        s.Do("setting " + kDuration + " " + Shifted(stored));
    return s.Do({"answer " + answer, "start"});
}

} // namespace

TEST(Reminder, ComesAfterMoreThanFourteenDaysEitherWayAndPostponesByTheAnswersDay) {
    const struct {
        std::string stored, today;
        bool box;
        std::string after;
    } cases[] = {
        {"", "2026-03-10", false, "3/10/2026"},          // a first run
        {"3/1/2026", "2026-03-15", false, "3/1/2026"},   // 14 days on
        {"3/1/2026", "2026-03-16", true, "3/16/2026"},   // 15 days on
        {"3/1/2026", "2026-02-15", false, "3/1/2026"},   // 14 days back
        {"3/1/2026", "2026-02-14", true, "2/14/2026"},   // a clock set back 15 days
        {"not a date", "2026-05-05", false, "5/5/2026"}, // counts as a first run
    };
    for (const auto& c : cases) {
        ScratchDir user;
        Script s = StartOn(c.stored);
        s.Is("msgbox", c.box ? kReminderBox : "null", c.today.c_str());
        s.Is("forms", R"(["frmMDI"])", "the launcher comes up after the box");
        s.Is("setting " + kDuration, Shifted(c.after), c.today.c_str());
        s.Is("opened", "[]");
        s.Run({"--user-dir", user.Str(), "--today", c.today});
    }
    // A yes opens the download page; so does Check for Update, which leaves the date alone.
    const std::string page = R"("https://quillane.zenthora.net/download-quillane.html")";
    ScratchDir user;
    StartOn("1/1/2026", "yes")
        .Is("opened", "[" + page + "]")
        .Is("setting " + kDuration, Shifted("2/1/2026"))
        .Do("setting " + kDuration + " " + Shifted("1/1/2026"))
        .Do("click .mnuUpdate")
        .Is("opened", "[" + page + "," + page + "]")
        .Is("setting " + kDuration, Shifted("1/1/2026"))
        .Run({"--user-dir", user.Str(), "--today", "2026-02-01"});
}

TEST(Reminder, TheTarotWindowRunsItAgain) {
    Script s = StartOn("");
    s.Do("click .cmdSelectOption(2)");
    s.Is("msgbox", "null", "the date was just written");
    s.Do({"today 2026-06-20", "click .cmdSelectOption(2)"});
    s.Is("msgbox", kReminderBox);
    s.Run({"--today", "2026-06-01"});
}
