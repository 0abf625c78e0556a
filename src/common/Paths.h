#pragma once
// Paths in the program are UTF-8 text. The standard library reads a plain
// string as the system's narrow encoding, which on Windows is the ANSI code
// page and not UTF-8, so a path goes to and from std::filesystem through these.
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

namespace quillane {

std::filesystem::path PathFromUtf8(const std::string& text);
std::string PathToUtf8(const std::filesystem::path& path);

// std::fopen of a path: on Windows through its wide form, so that any path
// opens. `mode` as for std::fopen ("x" included).
std::FILE* OpenFile(const std::filesystem::path& path, const char* mode);

// Renames `from` over `to`, which may exist. On Windows a file that another
// program holds open for a moment (a virus scanner, an indexer) cannot be
// replaced: the rename is tried again for about a second before it fails.
std::error_code RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace quillane
