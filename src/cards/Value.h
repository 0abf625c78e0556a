#pragma once
// One field's value at one row, as the store gave it.
#include <string>
#include <vector>

namespace quillane::modDB {

class Value {
public:
    enum class Type { Null, Integer, Real, Text, Blob };

    Value() = default;
    static Value Integer(long long v);
    static Value Real(double v);
    static Value Text(std::string v);
    static Value Blob(std::vector<unsigned char> v);

    Type GetType() const { return type_; }
    bool IsNull() const { return type_ == Type::Null; }
    // The value as a 32-bit integer (a number, or text that holds one);
    // RuntimeError 94 for Null and 13 for anything else.
    long AsLong() const;
    // The value as text; RuntimeError 94 for Null.
    std::string AsString() const;
    // The bytes of a long field (binary or text); empty for Null.
    const std::string& Raw() const { return text_; }

private:
    Type type_ = Type::Null;
    long long integer_ = 0;
    double real_ = 0;
    std::string text_; // text, or the bytes of a blob
};

} // namespace quillane::modDB
