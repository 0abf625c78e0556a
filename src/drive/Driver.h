#pragma once
// The driver's command language: one command a line, one answer a line.
#include "RecordingServices.h"
#include "common/Application.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillane::drive {

struct DriverOptions {
    std::string programDir;
    std::string userDir;
    std::optional<Date> today;
    std::optional<long long> seed;
    std::string args;
    bool otherInstance = false;
    bool noPrinter = false;
    bool noTray = false;
};

class Driver {
public:
    explicit Driver(const DriverOptions& options);
    ~Driver();

    // The answer to one line, or nothing for a blank line or a comment.
    std::optional<std::string> Execute(const std::string& line);

    Application& App() { return *app_; }

private:
    struct Platform;
    std::string Run(const std::string& command, const std::vector<std::string>& args);
    std::string Get(const std::string& path);
    std::string Set(const std::string& path, const std::string& value);
    std::string Act(const std::string& verb, const std::string& path);
    std::string Close(const std::string& form);
    std::string Setting(const std::vector<std::string>& args);

    std::unique_ptr<Platform> platform_;
    std::unique_ptr<Application> app_;
};

// Splits a command line into words; a word that starts with a quote is a JSON
// string literal. Nothing when a literal is malformed.
std::optional<std::vector<std::string>> SplitWords(const std::string& line);

} // namespace quillane::drive
