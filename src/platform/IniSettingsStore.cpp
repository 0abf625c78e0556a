#include "IniSettingsStore.h"

#include "IniText.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace quillane {

namespace {

// How long a write waits for another writer's lock, once in a run.
constexpr int kLockWaitMs = 1000;

std::string_view View(const QByteArray& bytes) {
    return {bytes.constData(), std::size_t(bytes.size())};
}

} // namespace

QString IniSettingsStore::DefaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quillane";
}

QString IniSettingsStore::FileFor(const std::string& application) const {
    return folder_ + "/" + QString::fromLatin1(application.data(), qsizetype(application.size())) +
           ".ini";
}

std::optional<std::string> IniSettingsStore::Read(const std::string& application,
                                                  const std::string& section,
                                                  const std::string& key) {
    // The file is replaced whole by each write, so a read needs no lock. A
    // file that cannot be read gives the defaults; a line that cannot be
    // read is passed over.
    QFile file(FileFor(application));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return ini::Find(View(file.readAll()), section, key);
}

void IniSettingsStore::Write(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& value) {
    // Write failures aren't looked for: a store that can't be written keeps
    // what it holds, and reads go on finding it.
    const QString path = FileFor(application);
    if (!QDir().mkpath(folder_))
        return;
    // Writers take turns through a lock beside the file. A lock that stays
    // (another writer that hangs, a folder in its place) is waited for once
    // in a run, briefly; after that a write that finds it goes without.
    QLockFile lock(path + ".lock");
    if (!lock.tryLock(lockWaited_ ? 0 : kLockWaitMs)) {
        if (lock.error() == QLockFile::LockFailedError && !lockWaited_)
            qWarning("The settings file %s stays locked by %s.lock: settings are not stored, and "
                     "the stored ones stay as they are.",
                     qPrintable(path), qPrintable(path));
        lockWaited_ = lockWaited_ || lock.error() == QLockFile::LockFailedError;
        return;
    }
    QByteArray before;
    bool exists = false;
    if (QFile file(path); file.exists()) {
        // What can't be read is not overwritten.
        if (!file.open(QIODevice::ReadOnly))
            return;
        before = file.readAll();
        exists = true;
    }
    const std::string after = ini::Set(View(before), section, key, value);
    // A value stored again as it is (the Runes window stores its settings at
    // each opening) leaves the file alone: a replaced file is a wait for the
    // disk.
    if (exists && View(before) == after)
        return;
    // Written whole beside the file and renamed over it, keeping its rights;
    // a write that fails (a full disk) leaves the file as it was.
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(after.data(), qint64(after.size())) >= 0)
        file.commit();
}

} // namespace quillane
