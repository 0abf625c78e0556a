#include "IniSettingsStore.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace quillane {

namespace {
QString Bytes(const std::string& s) {
    return QString::fromLatin1(s.data(), qsizetype(s.size()));
}
std::string Latin1(const QString& s) {
    return s.toLatin1().toStdString();
}
} // namespace

QString IniSettingsStore::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quillane";
}

QString IniSettingsStore::FileFor(const std::string& application) const {
    return folder_ + "/" + Bytes(application) + ".ini";
}

std::optional<std::string> IniSettingsStore::Read(const std::string& application,
                                                  const std::string& section,
                                                  const std::string& key) {
    QSettings ini(FileFor(application), QSettings::IniFormat);
    // A file that cannot be read or parsed gives the defaults.
    if (ini.status() != QSettings::NoError)
        return std::nullopt;
    const QVariant value = ini.value(Bytes(section) + "/" + Bytes(key));
    if (!value.isValid())
        return std::nullopt;
    return Latin1(value.toString());
}

void IniSettingsStore::Write(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) {
    QDir().mkpath(folder_);
    QSettings ini(FileFor(application), QSettings::IniFormat);
    ini.setValue(Bytes(section) + "/" + Bytes(key), Bytes(value));
    ini.sync();
}

} // namespace quillane
