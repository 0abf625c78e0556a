// The card store's row sets: the program's SQL texts, cursor moves, filters
// and field reads, over a small database written here.
#include "TestDatabase.h"
#include "cards/AccessDialect.h"
#include "cards/modDB.h"
#include "common/Errors.h"

#include <gtest/gtest.h>

#include <functional>

using namespace quillane;
using namespace quillane::modDB;

namespace {

class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override { OpenConnection(cn, cardtest::SmallDeckIn(folder)); }

    quillane::testing::ScratchDir folder;
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

// The program's SQL texts: the ticked groups in ID order, the report's whole
// table, a card's keywords and the other cards', as distinct rows (the
// duplicated "skill" row of card 2 counts once; "change" stands under cards 1
// and 5, and so stays twice).
TEST_F(RecordsetTest, TheProgramsQueriesGiveTheirRowsInOrder) {
    const struct {
        const char *sql, *field;
        std::vector<std::string> rows;
    } queries[] = {
        {"SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) ORDER BY ID",
         "ID",
         {"1", "2", "5"}},
        {"SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) OR  (Group=2) OR  (Group=3) OR  "
         "(Group=4) ORDER BY ID",
         "ID",
         {"1", "2", "3", "5", "9", "12"}},
        {"SELECT * FROM tblCards", "ID", {"1", "2", "3", "5", "9", "12"}},
        {"SELECT DISTINCT * FROM tblKeywords WHERE CardID=2", "Keyword", {"skill", "will"}},
        {"SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=2",
         "Keyword",
         {"beginnings", "change", "love", "change"}},
        {"SELECT DISTINCT * FROM tblKeywords WHERE CardID=77", "Keyword", {}},
    };
    for (const auto& q : queries) {
        OpenRecordset(rs, cn, q.sql);
        EXPECT_EQ(rs->RecordCount(), long(q.rows.size())) << q.sql;
        std::vector<std::string> rows; // from the first row, where a set opens
        for (; !rs->Eof(); rs->MoveNext())
            rows.push_back(rs->Field(q.field).AsString());
        EXPECT_EQ(rows, q.rows) << q.sql;
    }
    EXPECT_TRUE(rs->Bof()) << "an empty set stands at both ends";
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
    rs->SetFilter("ID=9");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Field("Name").AsString(), "Ace of Pentacles");

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

    OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE ID=5");
    EXPECT_EQ(rs->ActualSize("PictureData"), 0); // Null
    EXPECT_TRUE(rs->GetChunk("PictureData", 0).empty());
}

// A failure ends the program with one box: FatalError, naming the file and
// saying what happened to it.
TEST(CardStoreFailures, EachBoxNamesTheFileAndSaysWhatHappened) {
    quillane::testing::ScratchDir folder;
    const std::string path = PathToUtf8(folder.Path() / "learn.dll");
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
    const auto fails = [](const std::function<void()>& action, const std::string& file,
                          const std::vector<std::string>& says) {
        try {
            action();
            ADD_FAILURE() << "no FatalError for " << says.at(0);
        } catch (const FatalError& e) {
            EXPECT_EQ(e.File(), file);
            for (const std::string& part : says)
                EXPECT_NE(std::string(e.what()).find(part), std::string::npos) << e.what();
        }
    };
    fails([&] { OpenConnection(cn, path); }, path, {"cannot be found"});
    EXPECT_FALSE(std::filesystem::exists(path)) << "nor created";
    EXPECT_EQ(cn, nullptr);

    cardtest::SmallDeckIn(folder);
    Connection guess;
    guess.ConnectionString = "DRIVER=Microsoft Access Driver (*.mdb);UID=;PWD=guess;DBQ=" + path;
    fails([&] { guess.Open(); }, path, {"password"});
    EXPECT_FALSE(guess.IsOpen());

    sqlite3* other = nullptr; // another program holds the file under its exclusive lock
    sqlite3_open(path.c_str(), &other);
    sqlite3_exec(other, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE;", nullptr, nullptr,
                 nullptr);
    fails([&] { OpenConnection(cn, path); }, path, {"is locked by another program"});
    sqlite3_close(other);

    // A program stopped half-way through a change, and left its journal: a
    // copy that could finish or undo the change is refused (one installed where
    // it can't change is read, below).
    const std::string left = cardtest::LeaveUnfinishedChange(path, folder.Path() / "left", false);
    fails([&] { OpenConnection(cn, left); }, left, {"half-changed", left + "-journal"});
    EXPECT_EQ(cn, nullptr);

    // The database is only read, and a query names itself when it fails.
    const std::string before = quillane::testing::ReadBytes(path);
    OpenConnection(cn, path);
    fails([&] { OpenRecordset(rs, cn, "DELETE FROM tblCards"); }, path, {"readonly"});
    fails([&] { OpenRecordset(rs, cn, "SELECT * FROM tblCards WHERE"); }, path,
          {"failed the query"});
    fails([&] { OpenRecordset(rs, cn, "SELECT DISTINCT * FROM tblKeys WHERE CardID=1"); }, path,
          {"no such table: tblKeys", "SELECT DISTINCT * FROM tblKeys WHERE CardID=1"});
    cn.reset();
    EXPECT_EQ(quillane::testing::ReadBytes(path), before);
    EXPECT_FALSE(std::filesystem::exists(path + "-journal"));

    // Where the file can't change, it is read whatever was left beside it: a
    // journal, or a log.
    for (const std::string& installed :
         {left, cardtest::LeaveUnfinishedChange(path, folder.Path() / "wal", true)}) {
        const auto place = std::filesystem::path(installed).parent_path();
        std::filesystem::permissions(place, std::filesystem::perms::owner_read |
                                                std::filesystem::perms::owner_exec);
        rs.reset();
        EXPECT_NO_THROW({
            OpenConnection(cn, installed);
            OpenRecordset(rs, cn, "SELECT * FROM tblCards");
        }) << installed;
        EXPECT_EQ(rs ? rs->RecordCount() : 0, 6) << installed;
        std::filesystem::permissions(place, std::filesystem::perms::owner_all);
    }
    cn.reset();

    quillane::testing::WriteBytes(path, "MZ this is a program, not a card database, and it is "
                                        "long enough to fill the header that a database file "
                                        "would have.");
    fails([&] { OpenConnection(cn, path); }, path, {"not a card database"});
}

} // namespace
