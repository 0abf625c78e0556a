#pragma once
// The program writes its SQL in the Access dialect. SQLite takes almost all of
// it as written; this is the one place where the two differ for our texts.
#include <string>

namespace quillane::modDB {

// Returns the text as SQLite should read it: a bare Group used as a column
// name (not the GROUP BY clause) is quoted, since SQLite reserves the word.
// String literals and names already quoted ("..", [..], `..`) are left alone.
std::string ToSqlite(const std::string& accessSql);

} // namespace quillane::modDB
