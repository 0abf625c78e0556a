// The Settings and Goals panels through the driver: the stored settings, the
// goal files byte for byte, and files that cannot be read or written.
#include "RunesDrive.h"

#include <QByteArray>
#include <QtGlobal>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using namespace quillane::testing;
namespace fs = std::filesystem;

const char* const kKeys[8] = {"StoneGroup0",   "StoneGroup1",   "StoneGroup2",  "StoneMeaning0",
                              "StoneMeaning1", "StoneMeaning2", "StoneObject0", "StoneObject1"};

// A first run ticks every box and stores that; what the user saves next is
// what the next session reads back.
TEST(RuneSettings, AFirstRunStoresAllTickedAndASavedChoiceIsReadBack) {
    RunesSession session;
    Script first = Runes();
    for (const char* key : kKeys)
        first.Is(std::string("setting ") + key, "\"1\"", key);
    first.Do({"click .chkGroups(0)", "click .chkMeanings(1)", "click .chkObjects(0)",
              "click .cmdSaveSettings"});
    session.Run(first);
    Script again = Runes();
    const char* const stored = "01110101";
    for (int i = 0; i < 8; ++i)
        again.Is(std::string("setting ") + kKeys[i], JsonQuote(std::string(1, stored[i])),
                 kKeys[i]);
    again.Is("get .chkMeanings(1).Value", "0");
    again.Is("get .chkObjects(1).Value", "1");
    again.Is("get modLearnRunes.intSelectedStone",
             "[8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,0]");
    session.Run(again);
}

// A group is checked first (the walk's empty selection says so), then a
// meaning: the Object message is never reached.
TEST(RuneSettings, ValidationMessagesStoreNothing) {
    Script s = Runes();
    s.Do({"click .chkGroups(0)", "click .chkGroups(2)", "click .chkMeanings(0)",
          "click .chkMeanings(1)", "click .chkMeanings(2)", "click .chkObjects(0)",
          "click .chkObjects(1)", "click .cmdSaveSettings"});
    s.Is("msgbox",
         R"({"text":"Please Select A Stone Meaning","title":"Quillane","icon":"critical",)"
         R"("buttons":"ok","answer":"ok"})");
    s.Is("msgbox", "null", "the Object message is never reached");
    s.Is("setting StoneMeaning1", "\"1\"", "nothing stored");
    s.Do({"click .chkObjects(1)", "click .cmdMemorize"});
    s.Is("msgbox", "null", "a group and only Also Known As is valid");
    s.Is("get .picMemorizeStones.InFront", "true");
    const std::size_t meaning = s.Ask("get .txtMeaning(2).Text");
    s.Is("setting StoneObject1", "\"1\"");
    s.Is("setting StoneMeaning0", "\"0\"");
    EXPECT_NE(RunesSession().Run(s)[meaning], "\"\"") << "all meanings still shown";
}

// The notes appear with their first texts. A save writes its box's text,
// trimmed of blanks at its ends only, and one line end more; the box keeps
// the text as typed.
TEST(RuneGoals, FilesAppearAndEachSaveWritesItsTrimmedTextAndALineEnd) {
    RunesSession session;
    const fs::path goal1 = fs::path(session.programDir) / "Goal1.txt";
    const fs::path goal2 = fs::path(session.programDir) / "Goal2.txt";
    Script s = Runes();
    s.Do("click .cmdSubjects(3)");
    s.Is("get .txtGoal1.Text", R"("This is Goal 1.\r\n")");
    s.Is("get .txtGoal1.Enabled", "false");
    s.Is("get .chkGoal2.Caption", R"("Goal 1")");
    s.Is("click .cmdGoal1", "error: disabled");
    s.Do({"click .chkGoal1", "click .cmdGoal1", "click .chkGoal2",
          R"(set .txtGoal2.Text "  Learn caf\u00e9 runes \u20ac5  \r\n  ")", "click .cmdGoal2"});
    s.Is("get .txtGoal2.Text", R"("  Learn café runes €5  \r\n  ")");
    session.Run(s);
    EXPECT_EQ(ReadBytes(goal1), "This is Goal 1.\r\n\r\n");
    EXPECT_EQ(ReadBytes(goal2), "Learn caf\xE9 runes \x80"
                                "5  \r\n\r\n");
    session.Run(Runes().Is("get .txtGoal2.Text", R"("Learn café runes €5  \r\n\r\n")"));
}

TEST(RuneGoals, EmptiedAndUnwritableFilesNeverStopTheWindow) {
    RunesSession session;
    const fs::path dir(session.programDir);
    WriteBytes(dir / "Goal1.txt", "");
    session.Run(Runes().Is("get .txtGoal1.Text", "\"\"", "an emptied file stays empty"));
    EXPECT_EQ(ReadBytes(dir / "Goal1.txt"), "");

    // A folder in the first note's place can be neither read nor written.
    fs::remove(dir / "Goal1.txt");
    fs::create_directory(dir / "Goal1.txt");
    Script t = Runes();
    t.Is("get .txtGoal1.Text", "\"\"");
    t.Is("get .txtGoal2.Text", R"("This is Goal 2.\r\n")");
    t.Do({"click .cmdSubjects(3)", "click .chkGoal1", "set .txtGoal1.Text \"keep me\"",
          "click .cmdGoal1"});
    t.Is("msgbox", "null", "no word of the failure");
    t.Is("get .txtGoal1.Text", "\"keep me\"", "the typed text stays in its box");
    t.Do({"click .chkGoal2", "click .cmdGoal2"});
    t.Is("forms", R"(["frmMDI","frmLearnRunesMain"])");
    session.Run(t);
    EXPECT_TRUE(fs::is_directory(dir / "Goal1.txt"));
    EXPECT_EQ(ReadBytes(dir / "Goal2.txt"), "This is Goal 2.\r\n\r\n");
}

TEST(RuneGoals, NotesGoToTheUsersDataFolderWhenTheProgramFolderCannotHoldThem) {
    // A session that names no program folder writes nothing beside the driver.
    const fs::path beside = fs::path(QUILLANE_DRIVE_PATH).parent_path();
    for (const char* note : {"Goal1.txt", "Goal2.txt"})
        fs::remove(beside / note);
    Runes().Is("get .txtGoal1.Text", R"("This is Goal 1.\r\n")").Run({});
    EXPECT_FALSE(fs::exists(beside / "Goal1.txt") || fs::exists(beside / "Goal2.txt"));

    ScratchDir data;
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(data.Str()));
    RunesSession session;
    // A program folder that cannot hold files: a plain file stands in its place.
    WriteBytes(session.program.Path() / "file", "x");
    session.programDir = (session.program.Path() / "file").string();
    session.Run(Runes().Do({"click .cmdSubjects(3)", "click .chkGoal1",
                            "set .txtGoal1.Text \"saved elsewhere\"", "click .cmdGoal1"}));
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(ReadBytes(data.Path() / "quillane" / "Goal1.txt"), "saved elsewhere\r\n");
    EXPECT_EQ(ReadBytes(data.Path() / "quillane" / "Goal2.txt"), "This is Goal 2.\r\n");
}

} // namespace
