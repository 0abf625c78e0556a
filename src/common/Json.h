#pragma once
// A small JSON value: what the driver answers and how forms and modules show
// their state variables.
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace quillane {

class Json {
public:
    using Array = std::vector<Json>;
    using Object = std::vector<std::pair<std::string, Json>>; // keeps insertion order

    Json() = default; // null
    Json(std::nullptr_t) {}
    Json(bool b) : v_(b) {}
    Json(int n) : v_(std::int64_t(n)) {}
    Json(long n) : v_(std::int64_t(n)) {}
    Json(long long n) : v_(std::int64_t(n)) {}
    Json(unsigned n) : v_(std::int64_t(n)) {}
    Json(short n) : v_(std::int64_t(n)) {}
    Json(double d) : v_(d) {}
    Json(float f) : v_(double(f)) {}
    Json(const char* s) : v_(std::string(s)) {}
    Json(std::string s) : v_(std::move(s)) {}
    Json(Array a) : v_(std::make_shared<Array>(std::move(a))) {}
    Json(Object o) : v_(std::make_shared<Object>(std::move(o))) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(v_); }
    bool IsBool() const { return std::holds_alternative<bool>(v_); }
    bool IsInt() const { return std::holds_alternative<std::int64_t>(v_); }
    bool IsString() const { return std::holds_alternative<std::string>(v_); }
    bool IsArray() const { return std::holds_alternative<std::shared_ptr<Array>>(v_); }
    bool IsObject() const { return std::holds_alternative<std::shared_ptr<Object>>(v_); }

    bool AsBool() const { return std::get<bool>(v_); }
    std::int64_t AsInt() const { return std::get<std::int64_t>(v_); }
    const std::string& AsString() const { return std::get<std::string>(v_); }
    const Array& AsArray() const { return *std::get<std::shared_ptr<Array>>(v_); }
    const Object& AsObject() const { return *std::get<std::shared_ptr<Object>>(v_); }
    // The member of an object, or null.
    const Json* Find(const std::string& key) const;

    std::string Dump() const;
    // Parses one JSON value; nothing on malformed text.
    static std::optional<Json> Parse(const std::string& text);

    friend bool operator==(const Json& a, const Json& b) { return a.Dump() == b.Dump(); }

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, std::shared_ptr<Array>,
                 std::shared_ptr<Object>>
        v_;
};

// A JSON string literal for the text.
std::string JsonQuote(const std::string& text);
// The text with its control characters escaped as in a JSON string (CR as
// \r, NUL as \u0000), so that it stays on one line.
std::string EscapeControls(const std::string& text);

} // namespace quillane
