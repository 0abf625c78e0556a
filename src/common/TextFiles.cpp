#include "TextFiles.h"

#include "Errors.h"
#include "Paths.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <utility>

namespace quillane {

namespace {

// Windows-1252 codes 0x80 to 0x9F. The five codes without a character keep
// the control character of the same number, as the system's conversion does.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

const std::string kByteOrderMark = "\xEF\xBB\xBF";

// The code point of the UTF-8 sequence at p, and where the next one begins;
// nothing when the bytes there are not valid UTF-8.
std::optional<std::pair<char32_t, const char*>> Sequence(const char* p, const char* end) {
    const auto b = std::uint8_t(*p);
    int extra = 0;
    char32_t c = 0;
    if (b < 0x80)
        return std::pair{char32_t(b), p + 1};
    if (b >= 0xC2 && b <= 0xDF) {
        extra = 1;
        c = b & 0x1F;
    } else if (b >= 0xE0 && b <= 0xEF) {
        extra = 2;
        c = b & 0x0F;
    } else if (b >= 0xF0 && b <= 0xF4) {
        extra = 3;
        c = b & 0x07;
    } else {
        return std::nullopt;
    }
    if (end - p <= extra)
        return std::nullopt; // a sequence cut short by the end
    for (int k = 1; k <= extra; ++k) {
        const auto t = std::uint8_t(p[k]);
        if ((t & 0xC0) != 0x80)
            return std::nullopt;
        c = (c << 6) | (t & 0x3F);
    }
    // Overlong forms, surrogates and values beyond Unicode are not text.
    if ((extra == 2 && c < 0x800) || (extra == 3 && (c < 0x10000 || c > 0x10FFFF)) ||
        (c >= 0xD800 && c <= 0xDFFF))
        return std::nullopt;
    return std::pair{c, p + extra + 1};
}

// Walks valid UTF-8 and hands each code point to emit; false as soon as the
// bytes are not valid UTF-8.
template <class Emit> bool WalkUtf8(const std::string& bytes, Emit emit) {
    const char* const end = bytes.data() + bytes.size();
    for (const char* p = bytes.data(); p != end;) {
        const auto sequence = Sequence(p, end);
        if (!sequence)
            return false;
        emit(sequence->first);
        p = sequence->second;
    }
    return true;
}

} // namespace

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

bool IsValidUtf8(const std::string& bytes) {
    const char* const end = bytes.data() + bytes.size();
    for (const char* p = bytes.data(); p != end;) {
        if (!(*p & 0x80)) { // ASCII, the most of any note, is passed over
            ++p;
            continue;
        }
        const auto sequence = Sequence(p, end);
        if (!sequence)
            return false;
        p = sequence->second;
    }
    return true;
}

std::optional<std::u32string> DecodeUtf8(const std::string& bytes) {
    std::u32string points;
    if (!WalkUtf8(bytes, [&](char32_t c) { points += c; }))
        return std::nullopt;
    return points;
}

std::string Cp1252ToUtf8(const std::string& bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    const char* const end = bytes.data() + bytes.size();
    for (const char* p = bytes.data(); p != end;) {
        // Runs of ASCII stand as they are.
        const char* const ascii = p;
        while (p != end && !(*p & 0x80))
            ++p;
        out.append(ascii, p);
        if (p == end)
            break;
        const auto b = std::uint8_t(*p++);
        AppendUtf8(out, b <= 0x9F ? kHigh[b - 0x80] : char32_t(b));
    }
    return out;
}

std::optional<std::string> Utf8ToCp1252(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    bool fits = true;
    const bool valid = WalkUtf8(text, [&](char32_t c) {
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out += char(c);
            return;
        }
        const auto* high = std::find(kHigh.begin(), kHigh.end(), c);
        if (high == kHigh.end())
            fits = false;
        else
            out += char(0x80 + (high - kHigh.begin()));
    });
    if (!valid || !fits)
        return std::nullopt;
    return out;
}

std::string DecodeFileText(const std::string& bytes) {
    if (IsValidUtf8(bytes))
        return bytes.rfind(kByteOrderMark, 0) == 0 ? bytes.substr(3) : bytes;
    return Cp1252ToUtf8(bytes);
}

std::string EncodeFileText(const std::string& text) {
    // Windows-1252 unless those bytes happen to be UTF-8 as well, which they
    // would be read as ("\xC9\x85" is "É…" there, but "Ʌ" in UTF-8).
    if (auto narrow = Utf8ToCp1252(text); narrow && (*narrow == text || !IsValidUtf8(*narrow)))
        return *narrow;
    // A text that begins with a byte order mark of its own keeps it behind one
    // more, since reading drops the first.
    return text.rfind(kByteOrderMark, 0) == 0 ? kByteOrderMark + text : text;
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back(text.substr(start));
            break;
        }
        lines.push_back(text.substr(start, end - start));
        start = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return lines;
}

bool FileExists(const std::string& path) {
    std::error_code ec;
    return std::filesystem::exists(PathFromUtf8(path), ec);
}

std::vector<std::string> ReadLines(const std::string& path) {
    // Only a plain file is read: a folder can't be, and a pipe or a device
    // might never end.
    std::error_code ec;
    const auto status = std::filesystem::status(PathFromUtf8(path), ec);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw RuntimeError(75, "Path/File access error");
    std::ifstream in(PathFromUtf8(path), std::ios::binary);
    if (!in)
        throw RuntimeError(53, "File not found");
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad())
        throw RuntimeError(57, "Device I/O error");
    return SplitLines(DecodeFileText(std::move(bytes).str()));
}

namespace {

namespace fs = std::filesystem;

// Whether the program may change the file: it has a write permission at all
// (a file marked read-only for everyone stays so, even for an
// administrator), and it opens for writing.
bool MayChange(const fs::path& file, fs::perms perms) {
    constexpr auto anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((perms & anyWrite) == fs::perms::none)
        return false;
    std::FILE* probe = OpenFile(file, "r+b");
    if (!probe)
        return false;
    std::fclose(probe);
    return true;
}

// A new file beside the target, of a name nobody else has: it is made here
// and now ("x": never a file or a link that is already there).
std::FILE* CreateBeside(const fs::path& target, fs::path& made) {
    std::random_device entropy;
    for (int attempt = 0; attempt < 100; ++attempt) {
        char suffix[16];
        std::snprintf(suffix, sizeof suffix, "%08x", unsigned(entropy()));
        made = target.parent_path();
        std::string name(1, '.');
        name += PathToUtf8(target.filename());
        name += '-';
        name += suffix;
        made /= PathFromUtf8(name);
        if (std::FILE* file = OpenFile(made, "wbx"))
            return file;
        if (errno != EEXIST)
            break;
    }
    throw RuntimeError(75, "Path/File access error");
}

} // namespace

void ReplaceFile(const std::string& path, const std::string& text) {
    std::error_code ec;
    // Through a link, the file it names is replaced and the link stays.
    fs::path target = PathFromUtf8(path);
    if (fs::is_symlink(fs::symlink_status(target, ec)))
        if (fs::path named = fs::canonical(target, ec); !ec)
            target = named;
    const fs::file_status status = fs::status(target, ec);
    const bool exists = fs::exists(status);
    if (exists && !fs::is_regular_file(status))
        throw RuntimeError(75, "Path/File access error");
    if (exists && !MayChange(target, status.permissions()))
        throw RuntimeError(70, "Permission denied");

    const std::string bytes = EncodeFileText(text);
    fs::path temporary;
    std::FILE* out = CreateBeside(target, temporary);
    // The new file takes the old one's rights before it holds any text.
    std::error_code rights;
    if (exists)
        fs::permissions(temporary, status.permissions(), rights);
    const bool written = !rights && std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
    if (std::fclose(out) != 0 || !written) {
        fs::remove(temporary, ec);
        throw RuntimeError(57, "Device I/O error");
    }
    if (RenameOver(temporary, target)) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        throw RuntimeError(75, "Path/File access error");
    }
}

} // namespace quillane
