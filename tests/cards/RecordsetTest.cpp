// The card store's row sets: the program's SQL texts, cursor moves, filters
// and field reads, over a small database written here.
#include "TestDatabase.h"
#include "cards/AccessDialect.h"
#include "cards/modDB.h"
#include "common/Errors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <set>
#include <sstream>

using namespace quillane;
using namespace quillane::modDB;

namespace {

class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override {
        path = folder.File("learn.dll");
        cardtest::MakeDatabase(path, cardtest::SmallDeck());
        OpenConnection(cn, path);
    }

    std::vector<long> Ids(Recordset& rs) {
        std::vector<long> ids;
        if (rs.RecordCount() == 0)
            return ids;
        for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
            ids.push_back(rs.Field("Id").AsLong());
        return ids;
    }

    std::multiset<std::string> Keywords(Recordset& rs) {
        std::multiset<std::string> words;
        for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
            words.insert(rs.Field("Keyword").AsString());
        return words;
    }

    cardtest::TempFolder folder;
    std::string path;
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
};

TEST(AccessDialect, QuotesGroupOnlyWhereItIsAColumn) {
    EXPECT_EQ(ToSqlite("SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) ORDER BY ID"),
              "SELECT * FROM tblCards WHERE  (\"Group\"=0) OR  (\"Group\"=1) ORDER BY ID");
    EXPECT_EQ(ToSqlite("SELECT group FROM t GROUP BY group"),
              "SELECT \"group\" FROM t GROUP BY \"group\"");
    EXPECT_EQ(ToSqlite("SELECT Groups, [Group], \"Group\" FROM t WHERE Name='Group'"),
              "SELECT Groups, [Group], \"Group\" FROM t WHERE Name='Group'");
    EXPECT_EQ(ToSqlite("SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=5"),
              "SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=5");
}

TEST_F(RecordsetTest, SelectionTextPicksTheTickedGroupsInIdOrder) {
    OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) ORDER BY ID");
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(Ids(*rs), (std::vector<long>{1, 2, 5}));

    OpenRecordset(rs, cn,
                  "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) OR  (Group=2) OR  "
                  "(Group=3) OR  (Group=4) ORDER BY ID");
    EXPECT_EQ(Ids(*rs), (std::vector<long>{1, 2, 3, 5, 9, 12}));
    rs->MoveLast();
    EXPECT_EQ(rs->Field("Group").AsLong(), 4);
    OpenRecordset(rs, cn, "SELECT * FROM tblCards"); // the report's text
    EXPECT_EQ(Ids(*rs), (std::vector<long>{1, 2, 3, 5, 9, 12}));
}

TEST_F(RecordsetTest, KeywordTextsKeepDistinctRowsOnly) {
    OpenRecordset(rs, cn, "SELECT DISTINCT * FROM tblKeywords WHERE CardID=2");
    EXPECT_EQ(rs->RecordCount(), 2); // the duplicated "skill" row counts once
    EXPECT_EQ(Keywords(*rs), (std::multiset<std::string>{"skill", "will"}));

    OpenRecordset(rs, cn, "SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=2");
    // "change" stands under cards 1 and 5, and so stays twice.
    EXPECT_EQ(Keywords(*rs),
              (std::multiset<std::string>{"beginnings", "change", "change", "love"}));

    OpenRecordset(rs, cn, "SELECT DISTINCT * FROM tblKeywords WHERE CardID=77");
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_TRUE(rs->Bof());
    EXPECT_TRUE(rs->Eof());
}

TEST_F(RecordsetTest, MovesAreRelativeToTheCurrentRow) {
    OpenRecordset(rs, cn, "SELECT * FROM tblCards");
    EXPECT_FALSE(rs->Bof());
    EXPECT_EQ(rs->Field("ID").AsLong(), 1); // open stands on the first row
    rs->MoveFirst();
    rs->Move(3);
    EXPECT_EQ(rs->Field("ID").AsLong(), 5);
    rs->Move(-2);
    EXPECT_EQ(rs->Field("ID").AsLong(), 2);
    rs->MoveNext();
    EXPECT_EQ(rs->Field("ID").AsLong(), 3);
    rs->MovePrevious();
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    rs->MoveLast();
    EXPECT_EQ(rs->Field("ID").AsLong(), 12);

    rs->MoveNext();
    EXPECT_TRUE(rs->Eof());
    EXPECT_THROW(rs->MoveNext(), RuntimeError);
    try {
        rs->Field("Name");
        FAIL() << "a field read at EOF must fail";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number(), 3021);
    }
    rs->MoveFirst();
    rs->MovePrevious();
    EXPECT_TRUE(rs->Bof());
    EXPECT_THROW(rs->MovePrevious(), RuntimeError);
    rs->MoveFirst();
    rs->Move(40);
    EXPECT_TRUE(rs->Eof());
}

TEST_F(RecordsetTest, FilterShowsOneCardAndEmptyFilterRestoresAll) {
    OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=3) ORDER BY ID");
    ASSERT_EQ(rs->RecordCount(), 3);
    rs->MoveLast();

    rs->MoveFirst();
    rs->SetFilter("ID=9");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Field("Name").AsString(), "Ace of Pentacles");
    EXPECT_EQ(rs->Filter(), "ID=9");

    rs->SetFilter("");
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(rs->Field("Id").AsLong(), 1); // back on the first visible row

    rs->SetFilter("ID=5"); // a card outside this selection
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_TRUE(rs->Bof() && rs->Eof());
    EXPECT_THROW(rs->Field("Name"), RuntimeError);
    EXPECT_THROW(rs->MoveFirst(), RuntimeError);
    rs->SetFilter("");
    EXPECT_EQ(rs->RecordCount(), 3);

    EXPECT_THROW(rs->SetFilter("ID=abc"), RuntimeError);
    EXPECT_THROW(rs->SetFilter("Colour=3"), RuntimeError);
}

TEST_F(RecordsetTest, GetChunkReadsOnFromWhereItStopped) {
    OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE ID=9");
    ASSERT_EQ(rs->ActualSize("PictureData"), 5);
    EXPECT_EQ(rs->GetChunk("PictureData", 2), (std::vector<unsigned char>{1, 2}));
    EXPECT_EQ(rs->GetChunk("PictureData", 10), (std::vector<unsigned char>{3, 4, 5}));
    EXPECT_TRUE(rs->GetChunk("PictureData", 10).empty());
    rs->Field("Name"); // reading another field starts the chunks afresh
    EXPECT_EQ(rs->GetChunk("PictureData", 5).size(), 5u);

    rs->SetFilter("");
    OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE ID=5");
    EXPECT_EQ(rs->ActualSize("PictureData"), 0); // Null
    EXPECT_TRUE(rs->GetChunk("PictureData", 0).empty());
}

// Failures end the program with one box naming the file: each throws
// FatalError with the file and a message that says what failed.
std::string FatalMessage(const std::function<void()>& action, const std::string& file) {
    try {
        action();
    } catch (const FatalError& e) {
        EXPECT_EQ(e.File(), file);
        return e.what();
    }
    ADD_FAILURE() << "expected a FatalError";
    return {};
}

TEST(CardStoreFailures, AMissingFileAWrongPasswordAndAnotherFileAreRefused) {
    cardtest::TempFolder folder;
    const std::string path = folder.File("learn.dll");
    std::shared_ptr<Connection> cn;
    std::string what = FatalMessage([&] { OpenConnection(cn, path); }, path);
    EXPECT_NE(what.find("cannot be found"), std::string::npos) << what;
    EXPECT_FALSE(std::filesystem::exists(path)) << "nor created";
    EXPECT_EQ(cn, nullptr);

    cardtest::MakeDatabase(path, cardtest::SmallDeck());
    Connection guess;
    guess.ConnectionString = "DRIVER=Microsoft Access Driver (*.mdb);UID=;PWD=guess;DBQ=" + path;
    what = FatalMessage([&] { guess.Open(); }, path);
    EXPECT_NE(what.find("password"), std::string::npos) << what;
    EXPECT_FALSE(guess.IsOpen());

    std::ofstream(path, std::ios::binary | std::ios::trunc)
        << "MZ this is a program, not a card database, and it is long enough "
           "to fill the header that a database file would have.";
    what = FatalMessage([&] { OpenConnection(cn, path); }, path);
    EXPECT_NE(what.find("not a card database"), std::string::npos) << what;
}

TEST(CardStoreFailures, MissingTableAndSqlErrorsNameTheQuery) {
    cardtest::TempFolder folder;
    std::string path = folder.File("learn.dll");
    cardtest::MakeDatabase(path, {"CREATE TABLE tblCards (ID INTEGER PRIMARY KEY, Name TEXT)"});
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
    OpenConnection(cn, path);

    std::string what = FatalMessage(
        [&] { OpenRecordset(rs, cn, "SELECT DISTINCT * FROM tblKeywords WHERE CardID=1"); }, path);
    EXPECT_NE(what.find("no such table: tblKeywords"), std::string::npos) << what;
    EXPECT_NE(what.find("SELECT DISTINCT * FROM tblKeywords WHERE CardID=1"), std::string::npos);

    what = FatalMessage([&] { OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE"); }, path);
    EXPECT_NE(what.find("failed the query"), std::string::npos) << what;
}

TEST(CardStoreFailures, TheDatabaseIsOnlyRead) {
    cardtest::TempFolder folder;
    std::string path = folder.File("learn.dll");
    cardtest::MakeDatabase(path, cardtest::SmallDeck());
    auto read = [&] {
        std::ifstream in(path, std::ios::binary);
        std::stringstream s;
        s << in.rdbuf();
        return s.str();
    };
    std::string before = read();
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
    OpenConnection(cn, path);
    std::string what = FatalMessage([&] { OpenRecordset(rs, cn, "DELETE FROM tblCards"); }, path);
    EXPECT_NE(what.find("readonly"), std::string::npos) << what;
    OpenRecordset(rs, cn, "SELECT * FROM tblCards");
    cn.reset();
    EXPECT_EQ(read(), before);
    EXPECT_FALSE(std::filesystem::exists(path + "-journal"));
}

TEST(CardStoreFailures, EachBoxSaysWhatHappenedToTheFile) {
    cardtest::TempFolder folder;
    std::string path = folder.File("learn.dll");
    cardtest::MakeDatabase(path, cardtest::SmallDeck());
    std::shared_ptr<Connection> cn;

    // Another program holds the file under its exclusive lock.
    sqlite3* other = nullptr;
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE;", nullptr, nullptr,
                 nullptr);
    std::string what = FatalMessage([&] { OpenConnection(cn, path); }, path);
    EXPECT_NE(what.find("is locked by another program"), std::string::npos) << what;
    sqlite3_close(other);

    // A program stopped half-way through a change, and left its journal.
    std::filesystem::create_directory(folder.Path() / "left");
    const std::string left = cardtest::LeaveUnfinishedChange(path, folder.Path() / "left", false);
    what = FatalMessage([&] { OpenConnection(cn, left); }, left);
    EXPECT_NE(what.find("half-changed"), std::string::npos) << what;
    EXPECT_NE(what.find(left + "-journal"), std::string::npos) << what;
    EXPECT_EQ(cn, nullptr);
}

TEST(CardStoreFailures, AFileThatCantChangeIsReadWhateverWasLeftBesideIt) {
    for (const bool wal : {false, true}) {
        cardtest::TempFolder folder;
        std::string path = folder.File("learn.dll");
        cardtest::MakeDatabase(path, cardtest::SmallDeck());
        const auto installed = folder.Path() / "installed";
        std::filesystem::create_directory(installed);
        const std::string left = cardtest::LeaveUnfinishedChange(path, installed, wal);
        std::filesystem::permissions(installed, std::filesystem::perms::owner_read |
                                                    std::filesystem::perms::owner_exec);
        std::shared_ptr<Connection> cn;
        std::shared_ptr<Recordset> rs;
        EXPECT_NO_THROW({
            OpenConnection(cn, left);
            OpenRecordset(rs, cn, "SELECT * FROM tblCards");
        }) << (wal ? "a log" : "a journal");
        EXPECT_EQ(rs ? rs->RecordCount() : 0, 6);
        std::filesystem::permissions(installed, std::filesystem::perms::owner_all);
    }
}

} // namespace
