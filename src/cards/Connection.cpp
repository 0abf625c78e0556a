#include "cards/Connection.h"

#include "cards/AccessDialect.h"
#include "cards/modDB.h"
#include "common/Ascii.h"
#include "common/Errors.h"
#include "common/Paths.h"

#include <sqlite3.h>

#include <filesystem>
#include <optional>

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace quillane::modDB {

namespace {

Value ReadColumn(sqlite3_stmt* stmt, int column) {
    switch (sqlite3_column_type(stmt, column)) {
    case SQLITE_INTEGER:
        return Value::Integer(sqlite3_column_int64(stmt, column));
    case SQLITE_FLOAT:
        return Value::Real(sqlite3_column_double(stmt, column));
    case SQLITE_TEXT: {
        auto text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
        return Value::Text(std::string(text, std::size_t(sqlite3_column_bytes(stmt, column))));
    }
    case SQLITE_BLOB: {
        auto data = static_cast<const unsigned char*>(sqlite3_column_blob(stmt, column));
        int size = sqlite3_column_bytes(stmt, column);
        return Value::Blob(std::vector<unsigned char>(data, data + size));
    }
    default:
        return Value();
    }
}

// How long a read waits for another program that is changing the file.
constexpr int kBusyTimeoutMs = 1000;

bool Writable(const std::filesystem::path& path) {
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::perms perms = fs::status(path, ec).permissions();
    constexpr auto anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (ec || (perms & anyWrite) == fs::perms::none)
        return false;
#if defined(__unix__) || defined(__APPLE__)
    // The rights for this user, which the permission bits alone don't tell.
    return ::access(path.c_str(), W_OK) == 0;
#else
    return true;
#endif
}

// Nothing can change a file that can't be written, or whose folder can't be
// (a change needs a journal or a log beside it). SQLite reads such a file as
// immutable: it takes no locks and passes over a journal or a log that a
// crashed writer left, which it could neither play back nor clear.
bool CannotChange(const std::string& path) {
    const std::filesystem::path file = PathFromUtf8(path);
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    return !Writable(file) || !Writable(folder);
}

// The file as an SQLite URI: read only, and immutable where it can't change.
std::string ReadOnlyUri(const std::string& path) {
    // An absolute path takes an empty authority: "file:///home/..." and, on
    // Windows, "file:///C:/...".
#ifdef _WIN32
    constexpr bool windows = true;
#else
    constexpr bool windows = false;
#endif
    const bool drive = windows && path.size() > 1 && path[1] == ':';
    std::string uri = path.rfind('/', 0) == 0 ? "file://" : drive ? "file:///" : "file:";
    for (char c : path)
        uri += c == '%'               ? "%25"
               : c == '?'             ? "%3f"
               : c == '#'             ? "%23"
               : windows && c == '\\' ? "/"
                                      : std::string(1, c);
    return uri + "?mode=ro" + (CannotChange(path) ? "&immutable=1" : "");
}

// The words for a failure that comes from the state of the file rather than
// from the SQL text; nothing for any other.
std::optional<std::string> WhatHappened(sqlite3* db, int rc, const std::string& path) {
    const std::string why = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
    const std::string database = "The card database " + path;
    std::error_code ec;
    const std::string left = std::filesystem::exists(PathFromUtf8(path + "-wal"), ec)
                                 ? path + "-wal"
                                 : path + "-journal";
    switch (db ? sqlite3_extended_errcode(db) : rc) {
    case SQLITE_READONLY_ROLLBACK:
    case SQLITE_READONLY_RECOVERY:
    case SQLITE_READONLY_CANTINIT:
    case SQLITE_READONLY_CANTLOCK:
        return database + " was left half-changed by a program that stopped while writing it (" +
               left +
               " lies beside it). Quillane only reads the database and can't finish or "
               "undo that change; install learn.dll again.";
    default:
        break;
    }
    switch (rc & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return database + " is locked by another program that is changing it. Close that "
                          "program and start Quillane again.";
    case SQLITE_NOTADB:
        return "The file " + path + " is not a card database.";
    case SQLITE_CORRUPT:
        return database + " is damaged: " + why + ".";
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_IOERR:
        return database + " cannot be read: " + why + ".";
    default:
        return std::nullopt;
    }
}

} // namespace

std::string ConnectionStringValue(const std::string& connectionString, const std::string& key) {
    std::string wanted = AsciiUpper(key);
    std::size_t start = 0;
    while (start <= connectionString.size()) {
        std::size_t end = connectionString.find(';', start);
        if (end == std::string::npos)
            end = connectionString.size();
        std::string part = connectionString.substr(start, end - start);
        std::size_t eq = part.find('=');
        if (eq != std::string::npos && AsciiUpper(part.substr(0, eq)) == wanted)
            return part.substr(eq + 1);
        start = end + 1;
    }
    return {};
}

Connection::~Connection() {
    if (db_)
        sqlite3_close_v2(db_);
}

void Connection::Open() {
    std::string path = ConnectionStringValue(ConnectionString, "DBQ");
    if (path.empty())
        throw FatalError(path, "The connection string names no database file.");
    if (ConnectionStringValue(ConnectionString, "DRIVER") != kDriver)
        throw FatalError(path, "The connection string names an unknown driver.");
    if (ConnectionStringValue(ConnectionString, "PWD") != kPassword)
        throw FatalError(path, "The card database refused the password.");

    std::error_code ec;
    if (!std::filesystem::exists(PathFromUtf8(path), ec))
        throw FatalError(path, "The card database " + path + " cannot be found.");
    if (!std::filesystem::is_regular_file(PathFromUtf8(path), ec))
        throw FatalError(path, "The card database " + path + " is not a file.");

    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(ReadOnlyUri(path).c_str(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI,
                             nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_busy_timeout(db, kBusyTimeoutMs);
    // SQLite reads the file lazily; read its schema now so that a file that is
    // not a database fails here and not at the first query.
    if (rc == SQLITE_OK)
        rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK) {
        const std::string what =
            WhatHappened(db, rc, path)
                .value_or("The card database " + path + " cannot be opened: " +
                          (db ? sqlite3_errmsg(db) : sqlite3_errstr(rc)) + ".");
        sqlite3_close_v2(db);
        throw FatalError(path, what);
    }
    if (db_)
        sqlite3_close_v2(db_);
    db_ = db;
    path_ = path;
}

Recordset Connection::Query(const std::string& sql) const {
    if (!db_)
        throw FatalError(path_, "The card database is not open.");
    std::string text = ToSqlite(sql);
    sqlite3_stmt* stmt = nullptr;
    auto fail = [&](int rc) {
        const std::string what =
            WhatHappened(db_, rc, path_)
                .value_or("The card database " + path_ + " failed the query \"" + sql +
                          "\": " + sqlite3_errmsg(db_) + ".");
        sqlite3_finalize(stmt);
        throw FatalError(path_, what);
    };
    int rc = sqlite3_prepare_v2(db_, text.c_str(), static_cast<int>(text.size()), &stmt, nullptr);
    if (rc != SQLITE_OK)
        fail(rc);
    int columns = sqlite3_column_count(stmt);
    std::vector<std::string> names;
    names.reserve(std::size_t(columns));
    for (int c = 0; c < columns; ++c)
        names.emplace_back(sqlite3_column_name(stmt, c));
    std::vector<std::vector<Value>> rows;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        std::vector<Value> row;
        row.reserve(std::size_t(columns));
        for (int c = 0; c < columns; ++c)
            row.push_back(ReadColumn(stmt, c));
        rows.push_back(std::move(row));
    }
    if (rc != SQLITE_DONE)
        fail(rc);
    sqlite3_finalize(stmt);
    Recordset result(std::move(names), std::move(rows));
    result.SetSource(sql);
    return result;
}

} // namespace quillane::modDB
