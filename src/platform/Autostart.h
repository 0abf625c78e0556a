#pragma once
// The start-at-logon entry as a desktop entry in an autostart folder, as
// freedesktop.org desktops read them (~/.config/autostart/<name>.desktop).
#include "common/Services.h"

#include <QString>

namespace quillane {

class XdgAutostart : public IAutostart {
public:
    explicit XdgAutostart(QString folder) : folder_(std::move(folder)) {}
    // The user's autostart folder.
    static QString DefaultFolder();

    std::optional<std::string> Read(const std::string& name) override;
    SystemError Open() override;
    SystemError Write(const std::string& name, const std::string& command) override;
    void Remove(const std::string& name) override;

private:
    QString FileFor(const std::string& name) const;
    QString folder_;
};

} // namespace quillane
