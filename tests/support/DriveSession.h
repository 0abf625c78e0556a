#pragma once
// Runs quillane-drive as a process: a script in, one answer a command out.
#include "RunProgram.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace quillane::testing {

// A folder that is removed with the object.
class ScratchDir {
public:
    ScratchDir() {
        std::random_device rd;
        path_ = std::filesystem::temp_directory_path() /
                ("quillane-test-" + std::to_string(rd()) + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchDir() {
        std::error_code ec;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(path_, ec);
    }
    ScratchDir(const ScratchDir&) = delete;
    const std::filesystem::path& Path() const { return path_; }
    std::string Str() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

// Runs one driver process over the commands and answers the lines it printed.
inline std::vector<std::string> Drive(const std::vector<std::string>& options,
                                      const std::vector<std::string>& commands) {
    const char* drive = std::getenv("QUILLANE_DRIVE");
#ifdef QUILLANE_DRIVE_PATH
    if (!drive)
        drive = QUILLANE_DRIVE_PATH;
#endif
    std::size_t expected = 0;
    for (const auto& c : commands)
        if (c.find_first_not_of(" \t") != std::string::npos && c[c.find_first_not_of(" \t")] != '#')
            ++expected;
    // Every command has an answer, so a test can index them; missing ones say so.
    auto padded = [expected](std::vector<std::string> lines) {
        while (lines.size() < expected)
            lines.push_back("error: no answer");
        return lines;
    };
    if (!drive)
        return padded({});
    std::string script;
    for (const auto& c : commands)
        script += c + '\n';
    // A session that names no program folder gets one of its own, with the
    // card database beside it, so that no test writes into the build.
    ScratchDir io;
    std::vector<std::string> arguments = options;
    if (std::find(options.begin(), options.end(), "--program-dir") == options.end()) {
        const auto program = io.Path() / "program";
        std::filesystem::create_directory(program);
        std::error_code ec;
        const auto deck = std::filesystem::path(drive).parent_path() / "learn.dll";
        // A link where the system lets us make one, else a copy.
        if (std::filesystem::exists(deck, ec)) {
            std::filesystem::create_symlink(deck, program / "learn.dll", ec);
            if (ec)
                std::filesystem::copy_file(deck, program / "learn.dll", ec);
        }
        arguments.insert(arguments.end(), {"--program-dir", program.string()});
    }
    // A driver that hangs is stopped, and its test fails on the missing answers.
    const auto output = RunProgram(drive, arguments, script, 90);
    if (!output)
        return padded({});
    std::istringstream answers(*output);
    std::vector<std::string> lines;
    for (std::string line; std::getline(answers, line);)
        lines.push_back(line);
    return padded(lines);
}

// One command's answer, for scripts where only the last answer matters.
inline std::string Last(const std::vector<std::string>& answers) {
    return answers.empty() ? "" : answers.back();
}

} // namespace quillane::testing
