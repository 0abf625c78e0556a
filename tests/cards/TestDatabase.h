#pragma once
// Small card databases written by the tests into a folder of their own.
#include "DriveSession.h"
#include "common/Paths.h"

#include <sqlite3.h>

#include <string>

namespace cardtest {

// A database in the folder of six cards over the five groups, with keywords
// that include an exact duplicate row (card 2) and a keyword shared by two
// cards ("change"); its path, as the program's UTF-8 text.
inline std::string SmallDeckIn(const quillane::testing::ScratchDir& folder) {
    const std::string path = quillane::PathToUtf8(folder.Path() / "learn.dll");
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    EXPECT_EQ(sqlite3_exec(
                  db,
                  "CREATE TABLE tblCards (ID INTEGER PRIMARY KEY, Name TEXT, \"Group\" INTEGER, "
                  "normalmeaning TEXT, reversedmeaning TEXT, PictureData BLOB);"
                  "CREATE TABLE tblKeywords (CardID INTEGER, Keyword TEXT);"
                  "INSERT INTO tblCards VALUES "
                  "(1, 'The Fool', 0, 'up 1', 'down 1', x'89504E470D0A1A0A0001'), "
                  "(2, 'The Magician', 0, 'up 2', 'down 2', x'FFD8FF00'), "
                  "(5, 'Ace of Cups', 1, 'up 5', 'down 5', NULL), "
                  "(3, 'Ace of Wands', 2, 'up 3', 'down 3', x''), "
                  "(9, 'Ace of Pentacles', 3, 'up 9', 'down 9', x'0102030405'), "
                  "(12, 'Ace of Swords', 4, 'up 12', 'down 12', x'474946383961');"
                  "INSERT INTO tblKeywords VALUES (1, 'beginnings'), (1, 'change'), (2, 'skill'), "
                  "(2, 'skill'), (2, 'will'), (5, 'love'), (5, 'change');",
                  nullptr, nullptr, nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(db);
    sqlite3_close(db);
    return path;
}

// A change that another program left unfinished, as a crash would leave it:
// the database and its rollback journal (or, in WAL mode, its log), copied
// into a new folder `into` while the change is under way. The copy's path.
inline std::string LeaveUnfinishedChange(const std::string& path, const std::filesystem::path& into,
                                         bool wal) {
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_exec(db,
                 wal ? "PRAGMA journal_mode=WAL; PRAGMA wal_autocheckpoint=0; "
                       "INSERT INTO tblKeywords VALUES (1, 'unfinished');"
                     // More than the cache holds, so that pages reach the file.
                     : "PRAGMA cache_size=1; BEGIN; "
                       "UPDATE tblCards SET normalmeaning = normalmeaning || ' unfinished'; "
                       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                       "WHERE i < 2000) INSERT INTO tblKeywords SELECT 1, hex(randomblob(100)) "
                       "FROM n;",
                 nullptr, nullptr, nullptr);
    std::filesystem::create_directory(into);
    const std::filesystem::path copy = into / "learn.dll";
    for (const char* part : {"", "-journal", "-wal"}) {
        std::error_code ec;
        std::filesystem::copy_file(path + part, copy.string() + part, ec);
    }
    sqlite3_close(db);
    return copy.string();
}

} // namespace cardtest
