#include "Autostart.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTextStream>

namespace quillane {

namespace {
// The code that the system gives for a place the user may not write.
constexpr long kAccessDenied = 5;
} // namespace

QString XdgAutostart::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart";
}

QString XdgAutostart::FileFor(const std::string& name) const {
    return folder_ + "/" + QString::fromStdString(name) + ".desktop";
}

std::optional<std::string> XdgAutostart::Read(const std::string& name) {
    QFile file(FileFor(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    QTextStream in(&file);
    while (!in.atEnd()) {
        const QString line = in.readLine();
        if (line.startsWith("Exec="))
            return line.mid(5).toStdString();
    }
    return std::string();
}

SystemError XdgAutostart::Open() {
    if (QDir().mkpath(folder_) && QFileInfo(folder_).isWritable())
        return {};
    return {kAccessDenied, "The autostart folder " + folder_.toStdString() + " cannot be written."};
}

SystemError XdgAutostart::Write(const std::string& name, const std::string& command) {
    QSaveFile file(FileFor(name));
    if (file.open(QIODevice::WriteOnly)) {
        const std::string entry = "[Desktop Entry]\nType=Application\nName=" + name +
                                  "\nExec=" + command + "\nX-GNOME-Autostart-enabled=true\n";
        file.write(entry.data(), qint64(entry.size()));
        if (file.commit())
            return {};
    }
    return {kAccessDenied, file.errorString().toStdString()};
}

void XdgAutostart::Remove(const std::string& name) {
    QFile::remove(FileFor(name));
}

} // namespace quillane
