// The adapter of the Access dialect: it only ever puts quotes around a bare
// Group, so without the quotes its text is the one it was given, and a second
// pass changes nothing.
#include "Property.h"
#include "cards/AccessDialect.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace quillane;
using fuzz::Holds;

namespace {
std::string WithoutQuotes(std::string sql) {
    sql.erase(std::remove(sql.begin(), sql.end(), '"'), sql.end());
    return sql;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string access(reinterpret_cast<const char*>(data), size);
    const std::string sqlite = modDB::ToSqlite(access);
    Holds(WithoutQuotes(sqlite) == WithoutQuotes(access), "only quotes are added");
    Holds(modDB::ToSqlite(sqlite) == sqlite, "a second pass changes nothing");
    return 0;
}
