#include "Json.h"

#include "Numbers.h"
#include "TextFiles.h"

#include <cmath>
#include <cstdio>

namespace quillane {

namespace {

// The text with its control characters escaped as JSON escapes them; in a
// JSON string, the quote and the backslash too.
std::string Escape(const std::string& text, bool quoted) {
    std::string out;
    out.reserve(text.size() + 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        // C1 control characters (U+0080 to U+009F) are invisible: escaped too.
        if (c == 0xC2 && i + 1 < text.size() && (unsigned char)text[i + 1] >= 0x80 &&
            (unsigned char)text[i + 1] <= 0x9F) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", unsigned((unsigned char)text[++i]));
            out += buf;
            continue;
        }
        switch (c) {
        case '"':
            out += quoted ? "\\\"" : "\"";
            break;
        case '\\':
            out += quoted ? "\\\\" : "\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (c < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            } else {
                out += char(c);
            }
        }
    }
    return out;
}

} // namespace

std::string JsonQuote(const std::string& text) {
    // Appended, not "\"" + text: GCC 12 warns falsely (-Wrestrict) on
    // a literal put before a temporary string.
    std::string quoted(1, '"');
    quoted += Escape(text, true);
    quoted += '"';
    return quoted;
}

std::string EscapeControls(const std::string& text) {
    return Escape(text, false);
}

const Json* Json::Find(const std::string& key) const {
    if (!IsObject())
        return nullptr;
    for (const auto& [k, v] : AsObject())
        if (k == key)
            return &v;
    return nullptr;
}

std::string Json::Dump() const {
    struct Visitor {
        std::string operator()(std::monostate) const { return "null"; }
        std::string operator()(bool b) const { return b ? "true" : "false"; }
        std::string operator()(std::int64_t n) const { return std::to_string(n); }
        std::string operator()(double d) const {
            return std::isfinite(d) ? WriteNumber(d, 9) : "null";
        }
        std::string operator()(const std::string& s) const { return JsonQuote(s); }
        std::string operator()(const std::shared_ptr<Array>& a) const {
            std::string out = "[";
            for (std::size_t i = 0; i < a->size(); ++i) {
                if (i)
                    out += ',';
                out += (*a)[i].Dump();
            }
            return out + "]";
        }
        std::string operator()(const std::shared_ptr<Object>& o) const {
            std::string out = "{";
            bool first = true;
            for (const auto& [k, v] : *o) {
                if (!first)
                    out += ',';
                out += JsonQuote(k);
                out += ':';
                out += v.Dump();
                first = false;
            }
            return out + "}";
        }
    };
    return std::visit(Visitor{}, v_);
}

namespace {

class Parser {
public:
    explicit Parser(const std::string& t) : t_(t) {}

    std::optional<Json> Document() {
        auto v = Value();
        Skip();
        if (!v || i_ != t_.size())
            return std::nullopt;
        return v;
    }

private:
    void Skip() {
        while (i_ < t_.size() &&
               (t_[i_] == ' ' || t_[i_] == '\t' || t_[i_] == '\n' || t_[i_] == '\r'))
            ++i_;
    }
    bool Eat(const char* word) {
        std::string w(word);
        if (t_.compare(i_, w.size(), w) != 0)
            return false;
        i_ += w.size();
        return true;
    }
    std::optional<unsigned> Hex4() {
        if (i_ + 4 > t_.size())
            return std::nullopt;
        unsigned v = 0;
        for (int k = 0; k < 4; ++k) {
            char c = t_[i_++];
            v <<= 4;
            if (c >= '0' && c <= '9')
                v |= unsigned(c - '0');
            else if (c >= 'a' && c <= 'f')
                v |= unsigned(c - 'a' + 10);
            else if (c >= 'A' && c <= 'F')
                v |= unsigned(c - 'A' + 10);
            else
                return std::nullopt;
        }
        return v;
    }
    std::optional<std::string> String() {
        if (i_ >= t_.size() || t_[i_] != '"')
            return std::nullopt;
        ++i_;
        std::string out;
        while (i_ < t_.size()) {
            char c = t_[i_++];
            if (c == '"')
                return out;
            if (c != '\\') {
                out += c;
                continue;
            }
            if (i_ >= t_.size())
                return std::nullopt;
            char e = t_[i_++];
            switch (e) {
            case '"':
                out += '"';
                break;
            case '\\':
                out += '\\';
                break;
            case '/':
                out += '/';
                break;
            case 'b':
                out += '\b';
                break;
            case 'f':
                out += '\f';
                break;
            case 'n':
                out += '\n';
                break;
            case 'r':
                out += '\r';
                break;
            case 't':
                out += '\t';
                break;
            case 'u': {
                auto cp = Hex4();
                if (!cp)
                    return std::nullopt;
                unsigned code = *cp;
                if (code >= 0xD800 && code < 0xDC00 && Eat("\\u")) {
                    auto lo = Hex4();
                    if (!lo)
                        return std::nullopt;
                    code = 0x10000 + ((code - 0xD800) << 10) + (*lo - 0xDC00);
                }
                AppendUtf8(out, char32_t(code));
                break;
            }
            default:
                return std::nullopt;
            }
        }
        return std::nullopt;
    }
    std::optional<Json> Value() {
        Skip();
        if (i_ >= t_.size())
            return std::nullopt;
        char c = t_[i_];
        if (c == '"') {
            auto s = String();
            return s ? std::optional<Json>(Json(*s)) : std::nullopt;
        }
        if (Eat("null"))
            return Json();
        if (Eat("true"))
            return Json(true);
        if (Eat("false"))
            return Json(false);
        if (c == '[') {
            ++i_;
            Json::Array a;
            Skip();
            if (Eat("]"))
                return Json(std::move(a));
            for (;;) {
                auto v = Value();
                if (!v)
                    return std::nullopt;
                a.push_back(*v);
                Skip();
                if (Eat("]"))
                    return Json(std::move(a));
                if (!Eat(","))
                    return std::nullopt;
            }
        }
        if (c == '{') {
            ++i_;
            Json::Object o;
            Skip();
            if (Eat("}"))
                return Json(std::move(o));
            for (;;) {
                Skip();
                auto k = String();
                Skip();
                if (!k || !Eat(":"))
                    return std::nullopt;
                auto v = Value();
                if (!v)
                    return std::nullopt;
                o.emplace_back(*k, *v);
                Skip();
                if (Eat("}"))
                    return Json(std::move(o));
                if (!Eat(","))
                    return std::nullopt;
            }
        }
        std::size_t start = i_;
        while (i_ < t_.size() && (std::isdigit((unsigned char)t_[i_]) || t_[i_] == '-' ||
                                  t_[i_] == '+' || t_[i_] == '.' || t_[i_] == 'e' || t_[i_] == 'E'))
            ++i_;
        if (start == i_)
            return std::nullopt;
        std::string num = t_.substr(start, i_ - start);
        if (num.find_first_of(".eE") != std::string::npos) {
            if (auto d = ReadNumber(num))
                return Json(*d);
            return std::nullopt;
        }
        try {
            return Json(std::stoll(num));
        } catch (...) {
            return std::nullopt;
        }
    }

    const std::string& t_;
    std::size_t i_ = 0;
};

} // namespace

std::optional<Json> Json::Parse(const std::string& text) {
    return Parser(text).Document();
}

} // namespace quillane
