#pragma once
// The connection to the card database: a read-only SQLite file reached by the
// connection string that the program composes.
#include "cards/Recordset.h"

#include <memory>
#include <string>

struct sqlite3;

namespace quillane::modDB {

inline constexpr int adUseClient = 3;
inline constexpr int adOpenKeyset = 1;
inline constexpr int adLockOptimistic = 3;
inline constexpr int adCmdText = 1;

class Connection {
public:
    Connection() = default;
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    std::string ConnectionString;
    int CursorLocation = 2;

    // Opens the file named by DBQ= read-only. Throws FatalError naming the
    // file when it is missing, not a database, or the string is unusable.
    void Open();
    bool IsOpen() const { return db_ != nullptr; }
    // The database file of the open connection.
    const std::string& DatabasePath() const { return path_; }

    // Runs one SQL text of the program and returns every row it gives.
    // Throws FatalError naming the file and the text on any SQL error.
    Recordset Query(const std::string& sql) const;

private:
    sqlite3* db_ = nullptr;
    std::string path_;
};

// The value of a key of a "KEY=value;KEY=value" string; keys compare without
// regard to case. Empty when absent.
std::string ConnectionStringValue(const std::string& connectionString, const std::string& key);

} // namespace quillane::modDB
