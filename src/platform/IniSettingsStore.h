#pragma once
// The settings store as INI files, one per application, in a per-user folder,
// in the form that QSettings reads and writes (platform/IniText). Values are
// byte strings; each byte is kept as the character of that code, so shifted
// entries survive byte for byte.
#include "common/Services.h"

#include <QString>

namespace quillane {

class IniSettingsStore : public ISettingsStore {
public:
    explicit IniSettingsStore(QString folder) : folder_(std::move(folder)) {}
    // The user's configuration folder for the program.
    static QString DefaultFolder();

    std::optional<std::string> Read(const std::string& application, const std::string& section,
                                    const std::string& key) override;
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override;

private:
    QString FileFor(const std::string& application) const;
    QString folder_;
    bool lockWaited_ = false; // a write of this run has waited for the lock in vain
};

} // namespace quillane
