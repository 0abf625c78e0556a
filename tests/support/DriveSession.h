#pragma once
// Runs quillane-drive as a process: a script in, one answer a command out.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace quillane::testing {

// Runs a program (a UTF-8 path, or a name on PATH) without a shell, `input` on
// its standard input. Its standard output, or nothing when it could not start,
// did not end with status 0, or ran longer than `seconds` (then it is killed).
std::optional<std::string> RunProgram(const std::string& program,
                                      const std::vector<std::string>& arguments,
                                      const std::string& input = {}, int seconds = 60);

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

// A file's bytes, and a file made of bytes.
inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}
inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// Runs one driver process over the commands and answers the lines it printed.
inline std::vector<std::string> Drive(const std::vector<std::string>& options,
                                      const std::vector<std::string>& commands) {
    const char* drive = std::getenv("QUILLANE_DRIVE");
#ifdef QUILLANE_DRIVE_PATH
    if (!drive)
        drive = QUILLANE_DRIVE_PATH;
#endif
    std::string script;
    std::size_t expected = 0; // blank lines and comments have no answer
    for (const auto& c : commands) {
        script += c + '\n';
        const auto first = c.find_first_not_of(" \t");
        expected += first != std::string::npos && c[first] != '#';
    }
    // A session that names no program folder gets one of its own, with the
    // card database beside it, so that no test writes into the build.
    ScratchDir io;
    std::vector<std::string> arguments = options;
    if (drive && std::find(options.begin(), options.end(), "--program-dir") == options.end()) {
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
    std::istringstream answers(drive ? RunProgram(drive, arguments, script, 20).value_or("") : "");
    std::vector<std::string> lines;
    for (std::string line; std::getline(answers, line);)
        lines.push_back(line);
    // Every command has an answer, so a test can index them; missing ones say so.
    lines.resize(std::max(lines.size(), expected), "error: no answer");
    return lines;
}

// A driver script with what each answer must be written beside its command.
// A path that starts with '.' belongs to the script's form: with the form
// frmX, "click .cmdNext" is "click frmX.cmdNext".
class Script {
public:
    explicit Script(std::string form = "", std::vector<std::string> opening = {})
        : form_(std::move(form)), opening_(std::move(opening)) {}

    // A command the driver must carry out: any answer but a refusal.
    Script& Do(const std::string& command) { return Add(command, Check::NotRefused, ""); }
    Script& Do(std::initializer_list<std::string> commands) {
        for (const std::string& c : commands)
            Do(c);
        return *this;
    }
    // A command and its whole answer, or a part of it.
    Script& Is(const std::string& command, const std::string& answer, const char* why = "") {
        return Add(command, Check::Is, answer, why);
    }
    Script& Has(const std::string& command, const std::string& part, const char* why = "") {
        return Add(command, Check::Has, part, why);
    }
    // A command whose answer the test reads itself after the run: its number.
    std::size_t Ask(const std::string& command) {
        Add(command, Check::None, "");
        return steps_.size() - 1;
    }

    // Runs the script in one driver process and checks every answer; the
    // answers of the script's own commands, by the numbers Ask gave.
    std::vector<std::string> Run(const std::vector<std::string>& options) const {
        std::vector<std::string> commands = opening_;
        for (const Step& step : steps_)
            commands.push_back(step.command);
        auto answers = Drive(options, commands);
        answers.erase(answers.begin(), answers.begin() + std::ptrdiff_t(opening_.size()));
        for (std::size_t i = 0; i < steps_.size(); ++i) {
            const Step& step = steps_[i];
            const std::string& a = answers[i];
            if (step.check == Check::NotRefused) {
                EXPECT_NE(a.rfind("error", 0), 0u) << step.command << ": " << a;
            } else if (step.check == Check::Is) {
                EXPECT_EQ(a, step.expected) << step.command << " " << step.why;
            } else if (step.check == Check::Has) {
                EXPECT_NE(a.find(step.expected), std::string::npos)
                    << step.command << ": " << a << " " << step.why;
            }
        }
        return answers;
    }

private:
    enum class Check { None, NotRefused, Is, Has };
    struct Step {
        std::string command;
        Check check;
        std::string expected;
        const char* why;
    };
    Script& Add(std::string command, Check check, std::string expected, const char* why = "") {
        const std::size_t blank = command.find(' ');
        if (blank != std::string::npos && command.compare(blank + 1, 1, ".") == 0)
            command.insert(blank + 1, form_);
        steps_.push_back({std::move(command), check, std::move(expected), why});
        return *this;
    }

    std::string form_;
    std::vector<std::string> opening_;
    std::vector<Step> steps_;
};

} // namespace quillane::testing
