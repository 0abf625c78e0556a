#pragma once
// The per-user store of named strings: (application, section, key) -> text.
#include "common/Application.h"

#include <string>

namespace quillane::modSettings {

// The application name under which the program keeps its settings: the
// program's file name without its extension.
std::string AppName(Application& app);

std::string GetSetting(Application& app, const std::string& application, const std::string& section,
                       const std::string& key, const std::string& defaultValue = "");
void SaveSetting(Application& app, const std::string& application, const std::string& section,
                 const std::string& key, const std::string& value);

// Shifts every character's single-byte code up by 85 (and back). Only plain
// ASCII goes through these, so every shifted code stays within one byte.
std::string EncodeSettingText(const std::string& text);
std::string DecodeSettingText(const std::string& text);

} // namespace quillane::modSettings
