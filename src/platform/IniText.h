#pragma once
// The text of the settings store's INI files, in the form that QSettings
// reads and writes, on plain bytes (no Qt, so it can be fuzzed alone).
//
// A value is a byte string: each byte stands as the character of that code,
// written as UTF-8, with control characters escaped. Reading is lenient: a
// line that can't be read is passed over, and a line that is not UTF-8
// (written by another program in Latin-1) is taken byte for byte. Writing
// changes only the line of its key; every other byte stays as it was.
#include <optional>
#include <string>
#include <string_view>

namespace quillane::ini {

// The value of the key in the section; nothing when there is none. Where the
// key stands more than once, the last one counts.
std::optional<std::string> Find(std::string_view file, const std::string& section,
                                const std::string& key);
// The file with the key in the section set to the value: the key's own line
// replaced, or a line added at the end of the section, or the section added
// at the end of the file.
std::string Set(std::string_view file, const std::string& section, const std::string& key,
                const std::string& value);

// A section's or a key's name as it stands in the file, and back.
std::string EscapeName(const std::string& name);
std::string UnescapeName(std::string_view text);
// A value as it stands after the '=', and back.
std::string EscapeValue(const std::string& value);
std::string UnescapeValue(std::string_view text);

} // namespace quillane::ini
