#include "IniText.h"

#include "common/TextFiles.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quillane::ini {

namespace {

constexpr auto npos = std::string_view::npos;

bool IsBlank(char32_t c) {
    return c == ' ' || c == '\t';
}

std::string_view Trim(std::string_view s) {
    while (!s.empty() && IsBlank(char32_t(s.front())))
        s.remove_prefix(1);
    while (!s.empty() && IsBlank(char32_t(s.back())))
        s.remove_suffix(1);
    return s;
}

int Digit(char c, int base) {
    const int d = c >= '0' && c <= '9'   ? c - '0'
                  : c >= 'a' && c <= 'f' ? c - 'a' + 10
                  : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                         : -1;
    return d < base ? d : -1;
}

std::string LowerHex(unsigned c) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string out;
    do {
        out.insert(out.begin(), digits[c % 16]);
        c /= 16;
    } while (c);
    return out;
}

// Code points as the store's bytes: each the byte of its code when they all
// fit in a byte, else the text as UTF-8.
std::string ToBytes(const std::u32string& points) {
    std::string out;
    const bool narrow =
        std::all_of(points.begin(), points.end(), [](char32_t c) { return c <= 0xFF; });
    for (char32_t c : points)
        if (narrow)
            out += char(c);
        else
            AppendUtf8(out, c);
    return out;
}

// Bytes of the file as code points: UTF-8 where the text they stand in is
// UTF-8, else byte for byte.
void AppendText(std::u32string& out, std::string_view bytes, bool utf8) {
    if (utf8)
        if (auto points = DecodeUtf8(std::string(bytes))) {
            out += *points;
            return;
        }
    for (char c : bytes)
        out += char32_t(std::uint8_t(c));
}

// The value before a ';' outside quotes, which begins a comment.
std::string_view CutComment(std::string_view value) {
    bool quoted = false;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\')
            ++i;
        else if (value[i] == '"')
            quoted = !quoted;
        else if (value[i] == ';' && !quoted)
            return value.substr(0, i);
    }
    return value;
}

// One line of the file, as the parts that a reader and a writer look at.
struct Line {
    enum Kind { Header, Pair, Other } kind = Other;
    std::string name;       // a header's section, a pair's key
    std::string_view value; // a pair's value as written, its comment cut off
    std::size_t begin = 0;  // where the line starts
    std::size_t end = 0;    // where its text ends
    std::size_t next = 0;   // where the next line starts
};

std::vector<Line> Lines(std::string_view file) {
    std::vector<Line> lines;
    std::size_t begin = 0;
    while (begin < file.size()) {
        Line line;
        line.begin = begin;
        line.end = std::min(file.find_first_of("\r\n", begin), file.size());
        line.next = file.compare(line.end, 2, "\r\n") == 0 ? line.end + 2
                                                           : std::min(line.end + 1, file.size());
        const std::string_view text = Trim(file.substr(begin, line.end - begin));
        const auto equals = text.find('=');
        if (!text.empty() && text[0] == '[') {
            // A header without its ']' still names its section, as QSettings
            // reads it.
            line.kind = Line::Header;
            const auto close = text.find(']');
            line.name = UnescapeName(Trim(text.substr(1, close == npos ? npos : close - 1)));
        } else if (!text.empty() && text[0] != ';' && equals != npos && equals > 0) {
            line.kind = Line::Pair;
            line.name = UnescapeName(Trim(text.substr(0, equals)));
            line.value = CutComment(text.substr(equals + 1));
        }
        begin = line.next;
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace

std::string EscapeName(const std::string& name) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string out;
    for (const char ch : name) {
        const auto c = std::uint8_t(ch);
        if (c == '/') {
            out += '\\';
        } else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                   c == '_' || c == '-' || c == '.') {
            out += ch;
        } else {
            out += '%';
            out += digits[c >> 4];
            out += digits[c & 15];
        }
    }
    return out;
}

std::string UnescapeName(std::string_view text) {
    const bool utf8 = IsValidUtf8(std::string(text));
    std::u32string out;
    std::size_t i = 0;
    while (i < text.size()) {
        if (text[i] == '\\') {
            out += U'/';
            ++i;
            continue;
        }
        if (text[i] == '%' && i + 1 < text.size()) {
            // %XX, or %UXXXX for a character beyond a byte
            const bool wide = text[i + 1] == 'U';
            const std::size_t first = i + (wide ? 2 : 1), digits = wide ? 4 : 2;
            char32_t code = 0;
            bool ok = first + digits <= text.size();
            for (std::size_t k = 0; ok && k < digits; ++k) {
                const int d = Digit(text[first + k], 16);
                ok = d >= 0;
                code = code * 16 + char32_t(d);
            }
            if (ok) {
                out += code;
                i = first + digits;
                continue;
            }
        }
        const std::size_t stop = std::min(text.find_first_of("\\%", i + 1), text.size());
        AppendText(out, text.substr(i, stop - i), utf8);
        i = stop;
    }
    return ToBytes(out);
}

std::string EscapeValue(const std::string& value) {
    // A value that begins with '@' would read as a typed one: the '@' doubles.
    const std::string text = !value.empty() && value[0] == '@' ? "@" + value : value;
    static constexpr std::string_view controls = "\a\b\f\n\r\t\v", letters = "abfnrtv";
    std::string out;
    bool quotes = false;
    // After an escape that ends in digits, a digit must not read as one more.
    bool escapeHex = false;
    for (const char ch : text) {
        const auto c = std::uint8_t(ch);
        quotes = quotes || c == ';' || c == ',' || c == '=';
        if (escapeHex && Digit(ch, 16) >= 0) {
            out += "\\x" + LowerHex(c);
            continue;
        }
        escapeHex = false;
        if (c == 0) {
            out += "\\0";
            escapeHex = true;
        } else if (const auto k = controls.find(ch); k != npos) {
            out += '\\';
            out += letters[k];
        } else if (c == '"' || c == '\\') {
            out += '\\';
            out += ch;
        } else if (c <= 0x1F) {
            out += "\\x" + LowerHex(c);
            escapeHex = true;
        } else if (c >= 0x80) {
            AppendUtf8(out, c);
        } else {
            out += ch;
        }
    }
    if (quotes || (!out.empty() && (out.front() == ' ' || out.back() == ' ')))
        return '"' + out + '"';
    return out;
}

std::string UnescapeValue(std::string_view text) {
    static constexpr std::string_view letters = "abfnrtv\"?'\\", meant = "\a\b\f\n\r\t\v\"?'\\";
    const bool utf8 = IsValidUtf8(std::string(text));
    std::u32string out;
    std::size_t i = 0;
    std::size_t kept = 0; // trailing blanks are cut back to here, no further
    bool quoted = false, inQuotes = false;
    auto skipBlanks = [&] {
        while (i < text.size() && IsBlank(char32_t(text[i])))
            ++i;
    };
    // The digits after \x or \0: as many as there are, in 16 bits.
    auto number = [&](int base, char32_t code) {
        for (int d; i < text.size() && (d = Digit(text[i], base)) >= 0; ++i)
            code = (code * char32_t(base) + char32_t(d)) & 0xFFFF;
        out += code;
    };
    skipBlanks();
    while (i < text.size()) {
        if (text[i] == '\\') {
            if (++i >= text.size())
                break;
            const char e = text[i++];
            if (const auto k = letters.find(e); k != npos)
                out += char32_t(meant[k]);
            else if (e == 'x' && i < text.size() && Digit(text[i], 16) >= 0)
                number(16, 0);
            else if (Digit(e, 8) >= 0)
                number(8, char32_t(Digit(e, 8)));
            // any other escaped character is dropped
            kept = out.size();
        } else if (text[i] == '"') {
            ++i;
            quoted = true;
            inQuotes = !inQuotes;
            if (!inQuotes)
                skipBlanks();
        } else {
            const std::size_t stop = std::min(text.find_first_of("\\\"", i + 1), text.size());
            AppendText(out, text.substr(i, stop - i), utf8);
            i = stop;
        }
    }
    if (!quoted)
        while (out.size() > kept && IsBlank(out.back()))
            out.pop_back();
    // QSettings doubles a leading '@', and wraps a text that holds a NUL, or
    // bytes, in a type's name.
    if (out.rfind(U"@@", 0) == 0)
        out.erase(0, 1);
    for (const std::u32string_view wrap : {U"@String(", U"@ByteArray("})
        if (out.size() > wrap.size() && out.rfind(wrap, 0) == 0 && out.back() == U')')
            out = out.substr(wrap.size(), out.size() - wrap.size() - 1);
    return ToBytes(out);
}

std::optional<std::string> Find(std::string_view file, const std::string& section,
                                const std::string& key) {
    std::optional<std::string> found;
    std::string current;
    for (const Line& line : Lines(file)) {
        if (line.kind == Line::Header)
            current = line.name;
        else if (line.kind == Line::Pair && current == section && line.name == key)
            found = UnescapeValue(line.value);
    }
    return found;
}

std::string Set(std::string_view file, const std::string& section, const std::string& key,
                const std::string& value) {
    const std::string eol = file.find("\r\n") != npos ? "\r\n" : "\n";
    const std::string pair = EscapeName(key) + "=" + EscapeValue(value);
    const auto lines = Lines(file);
    const Line* own = nullptr;  // the key's line
    const Line* last = nullptr; // the section's last line
    std::string current;
    for (const Line& line : lines) {
        if (line.kind == Line::Header)
            current = line.name;
        if (line.kind == Line::Other || current != section)
            continue;
        last = &line;
        if (line.kind == Line::Pair && line.name == key)
            own = &line;
    }
    std::string out(file);
    if (own)
        return out.replace(own->begin, own->end - own->begin, pair);
    if (last) {
        const bool ended = last->next > last->end;
        return out.insert(last->next, (ended ? "" : eol) + pair + eol);
    }
    if (!out.empty())
        out += out.back() == '\n' || out.back() == '\r' ? eol : eol + eol;
    return out + "[" + EscapeName(section) + "]" + eol + pair + eol;
}

} // namespace quillane::ini
