#pragma once
// Starts a program the same way on every system: no shell, so no quoting.
#include <optional>
#include <string>
#include <vector>

namespace quillane::testing {

// Runs the program (a UTF-8 path, or a name looked up on PATH) with the
// arguments and `input` on its standard input. Its standard output, or
// nothing when it could not start, did not end with status 0, or ran longer
// than `seconds` (then it is killed).
std::optional<std::string> RunProgram(const std::string& program,
                                      const std::vector<std::string>& arguments,
                                      const std::string& input = {}, int seconds = 60);

} // namespace quillane::testing
