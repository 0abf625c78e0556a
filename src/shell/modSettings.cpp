#include "modSettings.h"

namespace quillane::modSettings {

std::string AppName(Application& app) {
    return app.Svc().folder->ExeName();
}

std::string GetSetting(Application& app, const std::string& application, const std::string& section,
                       const std::string& key, const std::string& defaultValue) {
    auto value = app.Svc().settings->Read(application, section, key);
    return value ? *value : defaultValue;
}

void SaveSetting(Application& app, const std::string& application, const std::string& section,
                 const std::string& key, const std::string& value) {
    app.Svc().settings->Write(application, section, key, value);
}

std::string EncodeSettingText(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text)
        out += char((static_cast<unsigned char>(c) + 85) & 0xFF);
    return out;
}

std::string DecodeSettingText(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text)
        out += char((static_cast<unsigned char>(c) - 85) & 0xFF);
    return out;
}

} // namespace quillane::modSettings
