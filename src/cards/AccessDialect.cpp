#include "cards/AccessDialect.h"

#include "common/Ascii.h"

#include <cctype>
#include <string_view>

namespace quillane::modDB {

namespace {

bool IsWordChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

bool SameWord(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (AsciiLower(a[i]) != b[i])
            return false;
    }
    return true;
}

// The next word after position i, skipping blanks.
std::string_view NextWord(const std::string& sql, std::size_t i) {
    while (i < sql.size() && std::isspace(static_cast<unsigned char>(sql[i])))
        ++i;
    std::size_t start = i;
    while (i < sql.size() && IsWordChar(sql[i]))
        ++i;
    return std::string_view(sql).substr(start, i - start);
}

} // namespace

std::string ToSqlite(const std::string& sql) {
    std::string out;
    out.reserve(sql.size() + 8);
    std::size_t i = 0;
    while (i < sql.size()) {
        char c = sql[i];
        if (c == '\'' || c == '"' || c == '[' || c == '`') {
            char close = c == '[' ? ']' : c;
            std::size_t end = sql.find(close, i + 1);
            end = end == std::string::npos ? sql.size() : end + 1;
            out.append(sql, i, end - i);
            i = end;
        } else if (IsWordChar(c)) {
            std::size_t end = i;
            while (end < sql.size() && IsWordChar(sql[end]))
                ++end;
            std::string_view word = std::string_view(sql).substr(i, end - i);
            if (SameWord(word, "group") && !SameWord(NextWord(sql, end), "by")) {
                out += '"';
                out += word;
                out += '"';
            } else {
                out += word;
            }
            i = end;
        } else {
            out += c;
            ++i;
        }
    }
    return out;
}

} // namespace quillane::modDB
