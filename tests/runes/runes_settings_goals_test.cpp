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

std::string Slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}
void Spit(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

const char* const kKeys[8] = {"StoneGroup0",   "StoneGroup1",   "StoneGroup2",  "StoneMeaning0",
                              "StoneMeaning1", "StoneMeaning2", "StoneObject0", "StoneObject1"};

TEST(RuneSettings, FirstRunTicksAllAndStoresThem) {
    std::vector<std::string> commands{"get frmLearnRunesMain.picSettings.InFront"};
    for (const char* key : kKeys)
        commands.push_back(std::string("setting ") + key);
    commands.push_back("get frmLearnRunesMain.chkObjects(1).Value");
    const auto a = RunesSession().Run(commands);
    EXPECT_EQ(a[0], "true");
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(a[std::size_t(i)], "\"1\"") << kKeys[i - 1];
    EXPECT_EQ(a[9], "1");
}

TEST(RuneSettings, StoredValuesAreReadBack) {
    RunesSession session;
    // A first session stores what the user chose.
    session.Run({"click frmLearnRunesMain.chkGroups(0)", "click frmLearnRunesMain.chkMeanings(1)",
                 "click frmLearnRunesMain.chkObjects(0)",
                 "click frmLearnRunesMain.cmdSaveSettings"});
    std::vector<std::string> commands;
    for (const char* key : kKeys)
        commands.push_back(std::string("setting ") + key);
    for (const char* box :
         {"chkGroups(0)", "chkGroups(1)", "chkMeanings(1)", "chkObjects(0)", "chkObjects(1)"})
        commands.push_back(std::string("get frmLearnRunesMain.") + box + ".Value");
    commands.push_back("get modLearnRunes.intSelectedStone");
    const auto a = session.Run(commands);
    const std::vector<std::string> stored{"\"0\"", "\"1\"", "\"1\"", "\"1\"",
                                          "\"0\"", "\"1\"", "\"0\"", "\"1\""};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(a[i], stored[i]) << kKeys[i];
    EXPECT_EQ(std::vector<std::string>(a.begin() + 8, a.begin() + 13),
              (std::vector<std::string>{"0", "1", "0", "0", "1"}));
    EXPECT_EQ(a[13], "[8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,0]");
}

TEST(RuneSettings, ValidationMessagesStoreNothing) {
    RunesSession session;
    const auto a = session.Run({"setting StoneGroup1 7",
                                "click frmLearnRunesMain.chkGroups(0)",
                                "click frmLearnRunesMain.chkGroups(1)",
                                "click frmLearnRunesMain.chkGroups(2)",
                                "click frmLearnRunesMain.cmdSaveSettings",
                                "msgbox",
                                "setting StoneGroup0",
                                "click frmLearnRunesMain.chkGroups(1)",
                                "click frmLearnRunesMain.chkMeanings(0)",
                                "click frmLearnRunesMain.chkMeanings(1)",
                                "click frmLearnRunesMain.chkMeanings(2)",
                                "click frmLearnRunesMain.chkObjects(0)",
                                "click frmLearnRunesMain.chkObjects(1)",
                                "click frmLearnRunesMain.cmdSaveSettings",
                                "msgbox",
                                "msgbox",
                                "click frmLearnRunesMain.chkObjects(1)",
                                "click frmLearnRunesMain.cmdMemorize",
                                "msgbox",
                                "get frmLearnRunesMain.picMemorizeStones.InFront",
                                "get frmLearnRunesMain.txtMeaning(2).Text",
                                "setting StoneObject1",
                                "setting StoneMeaning0"});
    EXPECT_EQ(
        a[5],
        R"({"text":"Please Select A Stone Group","title":"Quillane","icon":"critical","buttons":"ok","answer":"ok"})");
    EXPECT_EQ(a[6], "\"1\"") << "nothing stored";
    EXPECT_NE(a[14].find("Please Select A Stone Meaning"), std::string::npos);
    EXPECT_EQ(a[15], "null") << "the Object message is never reached";
    EXPECT_EQ(a[18], "null") << "a group and only Also Known As is valid";
    EXPECT_EQ(a[19], "true");
    EXPECT_NE(a[20], "\"\"") << "all meanings still shown";
    EXPECT_EQ(a[21], "\"1\"");
    EXPECT_EQ(a[22], "\"0\"");
}

TEST(RuneGoals, FilesAppearAndGrowOneLineEndPerSave) {
    RunesSession session;
    const fs::path goal1 = fs::path(session.programDir) / "Goal1.txt";
    const fs::path goal2 = fs::path(session.programDir) / "Goal2.txt";
    const auto a = session.Run(
        {"click frmLearnRunesMain.cmdSubjects(3)", "get frmLearnRunesMain.txtGoal1.Text",
         "get frmLearnRunesMain.txtGoal1.Enabled", "get frmLearnRunesMain.chkGoal2.Caption",
         "click frmLearnRunesMain.cmdGoal1", "click frmLearnRunesMain.chkGoal1",
         "click frmLearnRunesMain.cmdGoal1"});
    EXPECT_EQ(Slurp(goal2), "This is Goal 2.\r\n");
    EXPECT_EQ(a[1], R"("This is Goal 1.\r\n")");
    EXPECT_EQ(a[2], "false");
    EXPECT_EQ(a[3], R"("Goal 1")");
    EXPECT_EQ(a[4], "error: disabled");
    EXPECT_EQ(Slurp(goal1), "This is Goal 1.\r\n\r\n");
    session.Run({"click frmLearnRunesMain.cmdSubjects(3)", "click frmLearnRunesMain.chkGoal1",
                 "click frmLearnRunesMain.cmdGoal1"});
    EXPECT_EQ(Slurp(goal1), "This is Goal 1.\r\n\r\n\r\n");
    EXPECT_EQ(Slurp(goal2), "This is Goal 2.\r\n") << "the other note is untouched";
}

TEST(RuneGoals, TypedTextIsTrimmedOfBlanksOnlyAndKeptAsTyped) {
    RunesSession session;
    const fs::path goal2 = fs::path(session.programDir) / "Goal2.txt";
    const auto a = session.Run(
        {"click frmLearnRunesMain.cmdSubjects(3)", "click frmLearnRunesMain.chkGoal2",
         R"(set frmLearnRunesMain.txtGoal2.Text "  Learn caf\u00e9 runes \u20ac5  \r\n  ")",
         "click frmLearnRunesMain.cmdGoal2", "get frmLearnRunesMain.txtGoal2.Text"});
    EXPECT_EQ(Slurp(goal2), "Learn caf\xE9 runes \x80"
                            "5  \r\n\r\n");
    EXPECT_EQ(a[4], R"("  Learn café runes €5  \r\n  ")") << "the box keeps the text as typed";
    const auto b = session.Run({"get frmLearnRunesMain.txtGoal2.Text"});
    EXPECT_EQ(b[0], R"("Learn café runes €5  \r\n\r\n")");

    // A character without a single-byte code is kept: the file is UTF-8.
    session.Run({"click frmLearnRunesMain.cmdSubjects(3)", "click frmLearnRunesMain.chkGoal2",
                 R"(set frmLearnRunesMain.txtGoal2.Text "\u16a0 Fehu \u20ac")",
                 "click frmLearnRunesMain.cmdGoal2"});
    EXPECT_EQ(Slurp(goal2), "\xE1\x9A\xA0 Fehu \xE2\x82\xAC\r\n");
    EXPECT_EQ(session.Run({"get frmLearnRunesMain.txtGoal2.Text"})[0],
              "\"\xE1\x9A\xA0 Fehu \xE2\x82\xAC\\r\\n\"");
}

TEST(RuneGoals, EmptiedAndBrokenFilesNeverStopTheWindow) {
    RunesSession session;
    const fs::path dir(session.programDir);
    Spit(dir / "Goal1.txt", "");
    Spit(dir / "Goal2.txt", std::string("\xFF\x00\xFEok\x81", 6));
    const auto a = session.Run(
        {"get frmLearnRunesMain.txtGoal1.Text", "get frmLearnRunesMain.txtGoal2.Text", "forms"});
    EXPECT_EQ(a[0], "\"\"") << "an emptied file stays empty";
    EXPECT_EQ(a[1], R"("ÿ\u0000þok\u0081\r\n")") << "bytes that are no UTF-8 read as Windows-1252";
    EXPECT_EQ(a[2], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_EQ(Slurp(dir / "Goal1.txt"), "");
}

TEST(RuneGoals, AGoalFileThatCannotBeReadOrWrittenIsSkipped) {
    RunesSession session;
    const fs::path dir(session.programDir);
    fs::create_directory(dir / "Goal1.txt");
    const auto a = session.Run(
        {"get frmLearnRunesMain.txtGoal1.Text", "get frmLearnRunesMain.txtGoal2.Text",
         "click frmLearnRunesMain.cmdSubjects(3)", "click frmLearnRunesMain.chkGoal1",
         "set frmLearnRunesMain.txtGoal1.Text \"keep me\"", "click frmLearnRunesMain.cmdGoal1",
         "msgbox", "get frmLearnRunesMain.txtGoal1.Text", "click frmLearnRunesMain.chkGoal2",
         "click frmLearnRunesMain.cmdGoal2", "forms"});
    EXPECT_EQ(a[0], "\"\"");
    EXPECT_EQ(a[1], R"("This is Goal 2.\r\n")");
    EXPECT_EQ(a[5], "ok");
    EXPECT_EQ(a[6], "null") << "no word of the failure";
    EXPECT_EQ(a[7], "\"keep me\"") << "the typed text stays in its box";
    EXPECT_EQ(a[10], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_TRUE(fs::is_directory(dir / "Goal1.txt"));
    EXPECT_EQ(Slurp(dir / "Goal2.txt"), "This is Goal 2.\r\n\r\n");
}

TEST(RuneGoals, ASessionThatNamesNoProgramFolderWritesNothingBesideTheDriver) {
    const fs::path beside = fs::path(QUILLANE_DRIVE_PATH).parent_path();
    for (const char* note : {"Goal1.txt", "Goal2.txt"})
        fs::remove(beside / note);
    const auto a = Drive(
        {}, {"start", "click frmMDI.cmdSelectOption(3)", "get frmLearnRunesMain.txtGoal1.Text"});
    EXPECT_EQ(a[2], R"("This is Goal 1.\r\n")");
    EXPECT_FALSE(fs::exists(beside / "Goal1.txt"));
    EXPECT_FALSE(fs::exists(beside / "Goal2.txt"));
}

TEST(RuneGoals, AnUnwritableProgramFolderKeepsTheNotesInTheUsersDataFolder) {
    ScratchDir data;
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(data.Str()));
    RunesSession session;
    // A program folder that cannot hold files: a plain file stands in its place.
    Spit(session.program.Path() / "file", "x");
    session.programDir = (session.program.Path() / "file").string();
    const auto a =
        session.Run({"click frmLearnRunesMain.cmdSubjects(3)", "click frmLearnRunesMain.chkGoal1",
                     "set frmLearnRunesMain.txtGoal1.Text \"saved elsewhere\"",
                     "click frmLearnRunesMain.cmdGoal1", "forms"});
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(a[4], R"(["frmMDI","frmLearnRunesMain"])");
    EXPECT_EQ(Slurp(data.Path() / "quillane" / "Goal1.txt"), "saved elsewhere\r\n");
    EXPECT_EQ(Slurp(data.Path() / "quillane" / "Goal2.txt"), "This is Goal 2.\r\n");
}

} // namespace
