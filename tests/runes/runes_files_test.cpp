// The goal notes' file format: encodings both ways, lines, replacement that
// leaves the old file whole when it fails, and a long note read in one go.
#include "common/Application.h"
#include "common/Errors.h"
#include "common/TextFiles.h"
#include "platform/DesktopServices.h"
#include "runes/RegisterRunes.h"
#include "runes/ResumeNext.h"
#include "runes/frmLearnRunesMain.h"

#include "DriveSession.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <thread>

namespace {

using namespace quillane;
using namespace quillane::runes;
using quillane::testing::ReadBytes;
using quillane::testing::WriteBytes;

TEST(GoalEncoding, TextsRoundTripThroughTheirFileBytes) {
    struct Case {
        std::string text;  // UTF-8
        std::string bytes; // as written
    };
    const Case cases[] = {
        {"caf\xC3\xA9 na\xC3\xAFve\r\n", "caf\xE9 na\xEFve\r\n"},                   // é ï
        {"\xE2\x82\xAC 5 \xE2\x80\x94 ok\r\n", "\x80 5 \x97 ok\r\n"},               // € —
        {"rune \xE1\x9A\xA0 fehu\r\n", "rune \xE1\x9A\xA0 fehu\r\n"},               // ᚠ: UTF-8
        {"\xE2\x82\xAC and \xE1\x9A\xA0\r\n", "\xE2\x82\xAC and \xE1\x9A\xA0\r\n"}, // mixed
        // Bytes that are no UTF-8: each is taken as Windows-1252.
        {std::string("\xC3\xBF\xC3\xBE\x00x\xC2\x81\xC3\x83", 10),
         std::string("\xFF\xFE\x00x\x81\xC3", 6)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(EncodeFileText(c.text), c.bytes) << c.text;
        EXPECT_EQ(DecodeFileText(c.bytes), c.text) << c.text;
    }
    for (const char* bad : {"\xC0\xAF", "\xED\xA0\x80", "\xE2\x82", "\xF5\x80\x80\x80"})
        EXPECT_FALSE(IsValidUtf8(bad)) << "overlong, surrogate, cut short, beyond Unicode";
    EXPECT_EQ(DecodeFileText("\xEF\xBB\xBFGoal"), "Goal") << "a byte order mark is dropped";
}

// Every pair of the characters beyond ASCII that Windows-1252 has, after a
// letter: the single-byte form of some pairs is valid UTF-8 as well.
TEST(GoalEncoding, EveryTextReadsBackAsTyped) {
    std::vector<std::string> high;
    for (int b = 0x80; b <= 0xFF; ++b)
        high.push_back(Cp1252ToUtf8(std::string(1, char(b))));
    std::vector<std::string> texts{"Lunch at the CAF\xC3\x89\xE2\x80\xA6",
                                   "\xEF\xBB\xBFtyped first", "\xEF\xBB\xBF",
                                   "\xC3\xAF\xC2\xBB\xC2\xBF\r\n", ""};
    for (const auto& a : high)
        for (const auto& b : high)
            texts.push_back("x" + a + b);
    int changed = 0;
    for (const auto& text : texts)
        if (DecodeFileText(EncodeFileText(text)) != text && ++changed <= 5)
            ADD_FAILURE() << "comes back changed: " << text;
    EXPECT_EQ(changed, 0);
}

TEST(GoalFile, ReplacingWritesTheBytesAndFailsWithoutHarm) {
    quillane::testing::ScratchDir dir;
    const auto path = dir.Path() / "Goal2.txt";
    ReplaceFile(path.string(), "na\xC3\xAFve\r\n");
    EXPECT_EQ(ReadBytes(path), "na\xEFve\r\n");
    // A folder in the file's place can be neither read nor replaced; the
    // failures are run-time errors that resume-next skips.
    const auto blocked = dir.Path() / "Goal1.txt";
    std::filesystem::create_directory(blocked);
    EXPECT_THROW(ReadLines(blocked.string()), RuntimeError);
    const auto pipe = dir.Path() / "pipe.txt";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THROW(ReadLines(pipe.string()), RuntimeError) << "a pipe is not read: it may never end";
    EXPECT_THROW(ReplaceFile(blocked.string(), "x\r\n"), RuntimeError);
    EXPECT_TRUE(std::filesystem::is_directory(blocked));
    EXPECT_THROW(ReplaceFile((dir.Path() / "missing" / "Goal1.txt").string(), "x"), RuntimeError);
    EXPECT_THROW(ReadLines((dir.Path() / "none.txt").string()), RuntimeError);
}

TEST(GoalFile, SavingChangesTheNoteAloneAndKeepsItsLinkAndRights) {
    namespace fs = std::filesystem;
    quillane::testing::ScratchDir dir;
    const auto note = dir.Path() / "Goal1.txt";
    const auto victim = dir.Path() / "victim.txt";
    WriteBytes(note, "old\r\n");
    WriteBytes(victim, "someone else's");
    const auto mine = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(note, mine);
    // A link planted where a fixed temporary name would be.
    fs::create_symlink(victim, note.string() + ".saving");
    ReplaceFile(note.string(), "new\r\n");
    EXPECT_EQ(ReadBytes(note), "new\r\n");
    EXPECT_EQ(ReadBytes(victim), "someone else's");
    EXPECT_EQ(fs::status(note).permissions() & fs::perms::all, mine);
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.Path()), {}), 3) << "nothing left behind";

    // A note that is a link: the file it names takes the text, the link stays.
    const auto named = dir.Path() / "notes" / "mine.txt";
    fs::create_directory(named.parent_path());
    WriteBytes(named, "old\r\n");
    const auto linked = dir.Path() / "Goal2.txt";
    fs::create_symlink(named, linked);
    ReplaceFile(linked.string(), "through\r\n");
    EXPECT_TRUE(fs::is_symlink(linked));
    EXPECT_EQ(ReadBytes(named), "through\r\n");

    // A read-only note is left as it is.
    fs::permissions(named, fs::perms::owner_read);
    EXPECT_THROW(ReplaceFile(linked.string(), "lost\r\n"), RuntimeError);
    EXPECT_EQ(ReadBytes(named), "through\r\n");
}

TEST(GoalFile, TwoWritersNeverMixTheirTexts) {
    quillane::testing::ScratchDir dir;
    const std::string note = (dir.Path() / "Goal1.txt").string();
    std::atomic<int> spoilt{0};
    auto writer = [&](char letter) {
        const std::string text(std::size_t(64) * 1024, letter);
        for (int i = 0; i < 40; ++i) {
            try {
                ReplaceFile(note, text);
                const std::string now = ReadBytes(note);
                if (now != std::string(text.size(), now.empty() ? '?' : now[0]))
                    ++spoilt;
            } catch (const RuntimeError&) {
                ++spoilt;
            }
        }
    };
    std::thread a(writer, 'a'), b(writer, 'b');
    a.join();
    b.join();
    EXPECT_EQ(spoilt, 0) << "each save leaves one writer's whole text";
}

// A note of some 400 KB: lines of every length, with every kind of line end,
// some of them empty, in Windows-1252. Each time its box is told of a new
// text, it lays the whole text out again: it is told once.
TEST(GoalFile, ALongNoteReachesItsBoxWholeAndInOneGo) {
    quillane::testing::ScratchDir dir;
    std::string bytes, expected;
    const char* const ends[] = {"\r\n", "\n", "\r", "\r\n\r\n"};
    for (int i = 0; i < 6000; ++i) {
        const std::string line = std::string(std::size_t(i % 97), 'a' + char(i % 26)) + "\xE9";
        bytes += line + ends[i % 4];
        expected += line.substr(0, line.size() - 1) + "\xC3\xA9\r\n" + (i % 4 == 3 ? "\r\n" : "");
    }
    WriteBytes(dir.Path() / "Goal1.txt", bytes + "last line, no line end");
    expected += "last line, no line end\r\n";
    ProgramFolder folder(QString::fromStdString(dir.Str()), "quillane", "");
    Services services;
    services.folder = &folder;
    Application app(services);
    RegisterRunes(app);
    int told = 0;
    app.RegisterForm("frmLearnRunesMain", [&told](Application& a) {
        auto form = std::make_unique<frmLearnRunesMain>(a);
        form->SetObserver(
            [&told](Control& c, Prop p) { told += c.Name() == "txtGoal1" && p == Prop::Text; });
        return form;
    });
    app.Dispatch([&] { app.Load("frmLearnRunesMain"); });
    EXPECT_EQ(app.Find("frmLearnRunesMain")->Find("txtGoal1")->Text(), expected);
    EXPECT_EQ(told, 1);
}

TEST(ResumeNext, SkipsAFailingStatementAndGoesOn) {
    int reached = 0;
    EXPECT_FALSE(Resume([&] { throw RuntimeError(9, "Subscript out of range"); }));
    EXPECT_FALSE(Resume([&] { throw std::out_of_range("at"); }));
    EXPECT_TRUE(Resume([&] { ++reached; }));
    auto handler = Guard([&] {
        ++reached;
        throw RuntimeError(53, "File not found");
    });
    EXPECT_NO_THROW(handler());
    EXPECT_EQ(reached, 2);
}

} // namespace
