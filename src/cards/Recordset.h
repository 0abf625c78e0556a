#pragma once
// A row set with a client-side cursor: every row is fetched when it opens, so
// RecordCount is exact at once and Filter changes cost no query.
//
// Positions follow the usual rules: with rows visible the cursor stands on one
// of them, or before the first (BOF) or after the last (EOF). Reading a field
// or moving beyond an end where there is no current row raises RuntimeError
// 3021, as the program's error report expects.
#include "cards/Value.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillane::modDB {

class Recordset {
public:
    Recordset() = default;
    Recordset(std::vector<std::string> fieldNames, std::vector<std::vector<Value>> rows);

    const std::string& Source() const { return source_; }
    void SetSource(std::string sql) { source_ = std::move(sql); }

    // Rows visible under the current filter.
    long RecordCount() const { return static_cast<long>(visible_.size()); }
    bool Bof() const { return visible_.empty() || position_ < 0; }
    bool Eof() const { return visible_.empty() || position_ >= RecordCount(); }
    // 1-based place of the current row among the visible ones; 0 at BOF or EOF.
    long AbsolutePosition() const { return Bof() || Eof() ? 0 : position_ + 1; }

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    // Moves n rows from the current one; past an end the cursor stands at BOF
    // or EOF.
    void Move(long n);

    // "" shows every row; "<field>=<number>" or "<field>='<text>'" shows the
    // rows that match. The current row becomes the first visible row.
    void SetFilter(const std::string& filter);
    const std::string& Filter() const { return filter_; }

    int FieldCount() const { return static_cast<int>(names_.size()); }
    const std::string& FieldName(int index) const { return names_.at(std::size_t(index)); }
    // The field of the current row, found by name without regard to case.
    const Value& Field(std::string_view name) const;
    // Length in bytes of a long field at the current row (0 for Null).
    long ActualSize(std::string_view name) const;
    // The next n bytes of a long field; each call continues where the last
    // one ended, until the cursor moves or another field is read.
    std::vector<unsigned char> GetChunk(std::string_view name, long n);

private:
    int FieldIndex(std::string_view name) const;
    const std::vector<Value>& CurrentRow() const;
    void Place(long position);

    std::string source_;
    std::vector<std::string> names_;
    std::vector<std::vector<Value>> rows_;
    std::vector<std::size_t> visible_; // indices into rows_, in row order
    long position_ = 0;                // index into visible_; -1 is BOF
    std::string filter_;
    // GetChunk's place: reading another field, or moving, starts it afresh.
    mutable int chunkField_ = -1;
    mutable std::size_t chunkOffset_ = 0;
};

} // namespace quillane::modDB
