#include "cards/Connection.h"

#include "cards/AccessDialect.h"
#include "cards/modDB.h"
#include "common/Ascii.h"
#include "common/Errors.h"
#include "common/Paths.h"

#include <sqlite3.h>

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
    if (!std::filesystem::is_regular_file(PathFromUtf8(path), ec))
        throw FatalError(path, "The card database " + path + " cannot be found.");

    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    if (rc != SQLITE_OK) {
        std::string why = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
        sqlite3_close_v2(db);
        throw FatalError(path, "The card database " + path + " cannot be opened: " + why + ".");
    }
    // SQLite reads the file lazily; read its schema now so that a file that is
    // not a database fails here and not at the first query.
    char* error = nullptr;
    rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, &error);
    if (rc != SQLITE_OK) {
        std::string why = error ? error : sqlite3_errstr(rc);
        sqlite3_free(error);
        sqlite3_close_v2(db);
        throw FatalError(path, "The file " + path + " is not a card database: " + why + ".");
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
    int rc = sqlite3_prepare_v2(db_, text.c_str(), static_cast<int>(text.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) {
        std::string why = sqlite3_errmsg(db_);
        sqlite3_finalize(stmt);
        throw FatalError(path_, "The card database " + path_ + " failed the query \"" + sql +
                                    "\": " + why + ".");
    }
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
    if (rc != SQLITE_DONE) {
        std::string why = sqlite3_errmsg(db_);
        sqlite3_finalize(stmt);
        throw FatalError(path_, "The card database " + path_ + " failed the query \"" + sql +
                                    "\": " + why + ".");
    }
    sqlite3_finalize(stmt);
    Recordset result(std::move(names), std::move(rows));
    result.SetSource(sql);
    return result;
}

} // namespace quillane::modDB
