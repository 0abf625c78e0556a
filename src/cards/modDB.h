#pragma once
// modDB: the connection to the card database and the current selection of
// cards. The Tarot window owns cnCards and rsCards while it is open; each new
// selection replaces both.
#include "cards/Connection.h"
#include "cards/Recordset.h"

#include <memory>
#include <string>

namespace quillane::modDB {

inline constexpr const char* kDriver = "Microsoft Access Driver (*.mdb)";
inline constexpr const char* kPassword = "Kq7Zt2mXw9Lr4dVn6B";
inline constexpr const char* kDatabaseFile = "learn.dll";
// Between the program's folder and the file name. The program runs on Linux
// first, so its folders are joined with '/'.
inline constexpr char kPathSeparator = '/';

extern std::shared_ptr<Connection> cnCards;
extern std::shared_ptr<Recordset> rsCards;

// The card database in the given program folder (no trailing separator).
std::string DatabasePath(const std::string& programDir);
// "DRIVER=...;UID=;PWD=<password>;DBQ=<path>".
std::string ConnectionString(const std::string& databasePath);

// A new connection with client-side cursors, opened on the database file.
// Throws FatalError when the file cannot serve as the card database.
void OpenConnection(std::shared_ptr<Connection>& connection, const std::string& databasePath);
// A new row set of the SQL text, keyset cursor, optimistic locks, text
// command; it replaces what `recordSet` held. Throws FatalError on SQL errors.
void OpenRecordset(std::shared_ptr<Recordset>& recordSet,
                   const std::shared_ptr<Connection>& connection, const std::string& sqlText);

} // namespace quillane::modDB
