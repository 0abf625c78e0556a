#pragma once
// The driver's command language: one command a line, one answer a line.
#include "DrivePlatform.h"
#include "common/Application.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillane::drive {

class Driver {
public:
    // Drives the program on that platform; the program's services are the
    // platform's.
    Driver(Application& app, DrivePlatform& platform);

    // The answer to one line, or nothing for a blank line or a comment.
    std::optional<std::string> Execute(const std::string& raw);

    Application& App() { return *app_; }

private:
    std::string Run(const std::string& command, const std::vector<std::string>& args);
    std::string Get(const std::string& path);
    std::string Set(const std::string& path, const std::string& value);
    std::string Act(const std::string& verb, const std::string& path);
    std::string Close(const std::string& name);
    std::string Setting(const std::vector<std::string>& args);

    // A path split into its control and what follows it (property, item).
    struct Target {
        Form* form = nullptr;
        Control* control = nullptr;
        std::vector<std::string> rest;
        std::string error;
    };
    // tail: how many trailing parts can't belong to the control's path.
    Target Resolve(const std::vector<std::string>& parts, std::size_t tail);
    std::string Tray(const std::vector<std::string>& args, bool menu);
    std::string Dump(const std::string& name);

    Application* app_;
    DrivePlatform& platform_;
};

// Splits a command line into words; a word that starts with a quote is a JSON
// string literal. Nothing when a literal is malformed.
std::optional<std::vector<std::string>> SplitWords(const std::string& line);

} // namespace quillane::drive
