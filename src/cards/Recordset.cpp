#include "cards/Recordset.h"

#include "common/Ascii.h"
#include "common/Errors.h"

#include <algorithm>
#include <charconv>

namespace quillane::modDB {

namespace {

[[noreturn]] void NoCurrentRecord() {
    throw RuntimeError(3021, "Either BOF or EOF is True, or the current record has been deleted. "
                             "Requested operation requires a current record.");
}

[[noreturn]] void BadFilter(const std::string& filter) {
    throw RuntimeError(3001, "Arguments are of the wrong type, are out of acceptable range, or "
                             "are in conflict with one another (Filter \"" +
                                 filter + "\").");
}

std::string_view Trim(std::string_view s) {
    while (!s.empty() && s.front() == ' ')
        s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ')
        s.remove_suffix(1);
    return s;
}

} // namespace

Recordset::Recordset(std::vector<std::string> fieldNames, std::vector<std::vector<Value>> rows)
    : names_(std::move(fieldNames)), rows_(std::move(rows)) {
    SetFilter("");
}

void Recordset::Place(long position) {
    position_ = position;
    chunkField_ = -1;
    chunkOffset_ = 0;
}

void Recordset::MoveFirst() {
    if (visible_.empty())
        NoCurrentRecord();
    Place(0);
}

void Recordset::MoveLast() {
    if (visible_.empty())
        NoCurrentRecord();
    Place(RecordCount() - 1);
}

void Recordset::MoveNext() {
    if (Eof())
        NoCurrentRecord();
    Place(position_ + 1);
}

void Recordset::MovePrevious() {
    if (Bof())
        NoCurrentRecord();
    Place(position_ - 1);
}

void Recordset::Move(long n) {
    if (visible_.empty() || (n > 0 && Eof()) || (n < 0 && Bof()))
        NoCurrentRecord();
    if (n == 0 && (Bof() || Eof()))
        NoCurrentRecord();
    long target = position_ + n;
    Place(std::clamp(target, -1L, RecordCount()));
}

void Recordset::SetFilter(const std::string& filter) {
    std::vector<std::size_t> visible;
    std::string_view text = Trim(filter);
    if (text.empty()) {
        for (std::size_t i = 0; i < rows_.size(); ++i)
            visible.push_back(i);
    } else {
        auto eq = text.find('=');
        if (eq == std::string_view::npos)
            BadFilter(filter);
        int field = FieldIndex(Trim(text.substr(0, eq)));
        std::string_view literal = Trim(text.substr(eq + 1));
        bool quoted = literal.size() >= 2 && literal.front() == '\'' && literal.back() == '\'';
        long long number = 0;
        if (!quoted) {
            auto [end, ec] =
                std::from_chars(literal.data(), literal.data() + literal.size(), number);
            if (ec != std::errc() || end != literal.data() + literal.size() || literal.empty())
                BadFilter(filter);
        } else {
            literal = literal.substr(1, literal.size() - 2);
        }
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            const Value& v = rows_[i][std::size_t(field)];
            bool match = false;
            if (quoted) {
                match = !v.IsNull() && SameTextIgnoringCase(v.AsString(), literal);
            } else if (v.GetType() == Value::Type::Integer || v.GetType() == Value::Type::Real) {
                match = v.AsLong() == number;
            }
            if (match)
                visible.push_back(i);
        }
    }
    visible_ = std::move(visible);
    filter_ = filter;
    Place(0);
}

int Recordset::FieldIndex(std::string_view name) const {
    for (std::size_t i = 0; i < names_.size(); ++i) {
        if (SameTextIgnoringCase(names_[i], name))
            return static_cast<int>(i);
    }
    throw RuntimeError(3265, "Item cannot be found in the collection corresponding to the "
                             "requested name or ordinal (" +
                                 std::string(name) + ").");
}

const std::vector<Value>& Recordset::CurrentRow() const {
    if (Bof() || Eof())
        NoCurrentRecord();
    return rows_[visible_[std::size_t(position_)]];
}

const Value& Recordset::Field(std::string_view name) const {
    int index = FieldIndex(name);
    const Value& value = CurrentRow()[std::size_t(index)];
    if (index != chunkField_) {
        chunkField_ = -1;
        chunkOffset_ = 0;
    }
    return value;
}

long Recordset::ActualSize(std::string_view name) const {
    return static_cast<long>(Field(name).Raw().size());
}

std::vector<unsigned char> Recordset::GetChunk(std::string_view name, long n) {
    int index = FieldIndex(name);
    const Value& v = CurrentRow()[std::size_t(index)];
    if (v.GetType() != Value::Type::Blob && v.GetType() != Value::Type::Text &&
        v.GetType() != Value::Type::Null)
        throw RuntimeError(3001, "GetChunk needs a long field (" + std::string(name) + ").");
    if (index != chunkField_) {
        chunkField_ = index;
        chunkOffset_ = 0;
    }
    const std::string& raw = v.Raw();
    std::size_t take = n > 0 ? std::min(raw.size() - chunkOffset_, static_cast<std::size_t>(n)) : 0;
    const char* first = raw.data() + chunkOffset_;
    std::vector<unsigned char> chunk(first, first + take);
    chunkOffset_ += take;
    return chunk;
}

} // namespace quillane::modDB
