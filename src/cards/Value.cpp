#include "cards/Value.h"

#include "common/Errors.h"

#include <charconv>
#include <cmath>
#include <sstream>

namespace quillane::modDB {

Value Value::Integer(long long v) {
    Value value;
    value.type_ = Type::Integer;
    value.integer_ = v;
    return value;
}

Value Value::Real(double v) {
    Value value;
    value.type_ = Type::Real;
    value.real_ = v;
    return value;
}

Value Value::Text(std::string v) {
    Value value;
    value.type_ = Type::Text;
    value.text_ = std::move(v);
    return value;
}

Value Value::Blob(std::vector<unsigned char> v) {
    Value value;
    value.type_ = Type::Blob;
    value.text_.assign(v.begin(), v.end());
    return value;
}

namespace {
[[noreturn]] void InvalidUseOfNull() {
    throw RuntimeError(94, "Invalid use of Null");
}
[[noreturn]] void TypeMismatch() {
    throw RuntimeError(13, "Type mismatch");
}

long CheckedLong(long long v) {
    if (v < -2147483648LL || v > 2147483647LL)
        throw RuntimeError(6, "Overflow");
    return static_cast<long>(v);
}
} // namespace

long Value::AsLong() const {
    switch (type_) {
    case Type::Null:
        InvalidUseOfNull();
    case Type::Integer:
        return CheckedLong(integer_);
    case Type::Real:
        return CheckedLong(static_cast<long long>(std::nearbyint(real_)));
    case Type::Text: {
        long long v = 0;
        const char* first = text_.data();
        const char* last = first + text_.size();
        while (first < last && *first == ' ')
            ++first;
        auto [end, ec] = std::from_chars(first, last, v);
        if (ec != std::errc() || end == first)
            TypeMismatch();
        while (end < last && *end == ' ')
            ++end;
        if (end != last)
            TypeMismatch();
        return CheckedLong(v);
    }
    case Type::Blob:
        break;
    }
    TypeMismatch();
}

std::string Value::AsString() const {
    switch (type_) {
    case Type::Null:
        InvalidUseOfNull();
    case Type::Integer:
        return std::to_string(integer_);
    case Type::Real: {
        std::ostringstream out;
        out << real_;
        return out.str();
    }
    case Type::Text:
    case Type::Blob:
        break;
    }
    return text_;
}

} // namespace quillane::modDB
