#include "TextFiles.h"

#include "Errors.h"
#include "Paths.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillane {

namespace {

// Windows-1252 codes 0x80 to 0x9F. The five codes without a character keep
// the control character of the same number, as the system's conversion does.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Decodes valid UTF-8 into code points; nothing when it is not valid.
std::optional<std::u32string> DecodeUtf8(const std::string& bytes) {
    std::u32string out;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const auto b = std::uint8_t(bytes[i]);
        int extra = 0;
        char32_t c = 0;
        if (b < 0x80) {
            c = b;
        } else if (b >= 0xC2 && b <= 0xDF) {
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
        if (i + std::size_t(extra) >= bytes.size())
            return std::nullopt; // a sequence cut short by the end
        for (int k = 1; k <= extra; ++k) {
            const auto t = std::uint8_t(bytes[i + std::size_t(k)]);
            if ((t & 0xC0) != 0x80)
                return std::nullopt;
            c = (c << 6) | (t & 0x3F);
        }
        // Overlong forms, surrogates and values beyond Unicode are not text.
        if ((extra == 2 && c < 0x800) || (extra == 3 && (c < 0x10000 || c > 0x10FFFF)) ||
            (c >= 0xD800 && c <= 0xDFFF))
            return std::nullopt;
        out += c;
        i += std::size_t(extra) + 1;
    }
    return out;
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
    return DecodeUtf8(bytes).has_value();
}

std::string Cp1252ToUtf8(const std::string& bytes) {
    std::string out;
    for (char ch : bytes) {
        const auto b = std::uint8_t(ch);
        AppendUtf8(out, b >= 0x80 && b <= 0x9F ? kHigh[b - 0x80] : char32_t(b));
    }
    return out;
}

std::optional<std::string> Utf8ToCp1252(const std::string& text) {
    auto points = DecodeUtf8(text);
    if (!points)
        return std::nullopt;
    std::string out;
    for (char32_t c : *points) {
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out += char(c);
            continue;
        }
        bool found = false;
        for (std::size_t k = 0; k < kHigh.size() && !found; ++k)
            if (kHigh[k] == c) {
                out += char(0x80 + k);
                found = true;
            }
        if (!found)
            return std::nullopt;
    }
    return out;
}

std::string DecodeFileText(const std::string& bytes) {
    if (IsValidUtf8(bytes))
        return bytes.rfind("\xEF\xBB\xBF", 0) == 0 ? bytes.substr(3) : bytes;
    return Cp1252ToUtf8(bytes);
}

std::string EncodeFileText(const std::string& text) {
    if (auto narrow = Utf8ToCp1252(text))
        return *narrow;
    return text;
}

bool FileExists(const std::string& path) {
    std::error_code ec;
    return std::filesystem::exists(PathFromUtf8(path), ec);
}

std::vector<std::string> ReadLines(const std::string& path) {
    std::error_code ec;
    if (std::filesystem::is_directory(PathFromUtf8(path), ec))
        throw RuntimeError(75, "Path/File access error");
    std::ifstream in(PathFromUtf8(path), std::ios::binary);
    if (!in)
        throw RuntimeError(53, "File not found");
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        throw RuntimeError(57, "Device I/O error");
    const std::string text = DecodeFileText(bytes);
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            lines.push_back(line);
            line.clear();
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            line += c;
        }
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

void ReplaceFile(const std::string& path, const std::string& text) {
    const std::string temporary = path + ".saving";
    const std::string bytes = EncodeFileText(text);
    {
        std::ofstream out(PathFromUtf8(temporary), std::ios::binary | std::ios::trunc);
        if (!out)
            throw RuntimeError(75, "Path/File access error");
        out.write(bytes.data(), std::streamsize(bytes.size()));
        out.close();
        if (!out) {
            std::error_code ec;
            std::filesystem::remove(PathFromUtf8(temporary), ec);
            throw RuntimeError(57, "Device I/O error");
        }
    }
    std::error_code ec;
    std::filesystem::rename(PathFromUtf8(temporary), PathFromUtf8(path), ec);
    if (ec) {
        std::error_code ignored;
        std::filesystem::remove(PathFromUtf8(temporary), ignored);
        throw RuntimeError(75, "Path/File access error");
    }
}

} // namespace quillane
