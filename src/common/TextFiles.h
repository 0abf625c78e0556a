#pragma once
// The program's plain text files (the goal file and the goal notes), and the
// text encodings they are kept in. Texts inside the program are UTF-8.
//
// Reading: the bytes are taken as UTF-8 when they are valid UTF-8 (a leading
// byte order mark is dropped), and as Windows-1252 otherwise, so that any
// bytes at all give some text. Writing: Windows-1252 when every character of
// the text has a code there and those bytes are not UTF-8 as well, UTF-8
// otherwise, so that a text reads back exactly as it was typed.
//
// A file that cannot be opened, read or written raises a run-time error.
#include <optional>
#include <string>
#include <vector>

namespace quillane {

// Appends the UTF-8 bytes of one code point.
void AppendUtf8(std::string& out, char32_t c);
bool IsValidUtf8(const std::string& bytes);
// The code points of valid UTF-8; nothing when the bytes are not valid UTF-8.
std::optional<std::u32string> DecodeUtf8(const std::string& bytes);
std::string Cp1252ToUtf8(const std::string& bytes);
// Nothing when a character has no Windows-1252 code.
std::optional<std::string> Utf8ToCp1252(const std::string& text);

// The file's text as the program reads it.
std::string DecodeFileText(const std::string& bytes);
// The bytes the program writes for a text.
std::string EncodeFileText(const std::string& text);

// The lines of a text, without their line ends. A line ends at a carriage
// return and line feed, a lone carriage return or a lone line feed; a last
// line without a line end is a line all the same.
std::vector<std::string> SplitLines(const std::string& text);

bool FileExists(const std::string& path);
// The lines of a text file (SplitLines of its text).
std::vector<std::string> ReadLines(const std::string& path);
// Replaces the file with the text, through a new file of its own name beside
// it that is renamed over it: a failed write leaves the old file whole, and
// two writers never mix. The file keeps its rights; through a link, the file
// that the link names is replaced. A file that can't be written (read-only,
// another's, not a plain file) is left alone with a run-time error.
void ReplaceFile(const std::string& path, const std::string& text);

} // namespace quillane
