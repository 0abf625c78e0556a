#include "DesktopServices.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace quillane {

namespace {

// How long a lock that can't be read is given to be written, as a starting
// instance writes its own just after making it.
constexpr int kLockBeingWrittenMs = 100;

// A folder of the user's alone: the user owns it and nobody else may write
// in it.
bool IsUsersOwn(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.isDir())
        return false;
#ifdef Q_OS_UNIX
    if (info.ownerId() != ::geteuid())
        return false;
#endif
    return !(info.permissions() & (QFileDevice::WriteGroup | QFileDevice::WriteOther));
}

// A lock that names a process; an empty or garbled file, or a folder, names
// none.
bool NamesAProcess(QLockFile& lock) {
    qint64 pid = 0;
    QString host, application;
    return lock.getLockInfo(&pid, &host, &application);
}

} // namespace

QString UserRuntimeFolder(const QString& systemRoot) {
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!session.isEmpty() && IsUsersOwn(session))
        return QDir::cleanPath(session);
#ifdef Q_OS_UNIX
    // What the sessions that set the variable name, so that a session without
    // it finds the same lock.
    const QString system = systemRoot + "/" + QString::number(::geteuid());
    if (IsUsersOwn(system))
        return QDir::cleanPath(system);
#else
    (void)systemRoot;
#endif
    // A folder in the user's cache: never one that other users share.
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/quillane";
    QDir().mkpath(own);
    QFile::setPermissions(own,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return QDir::cleanPath(own);
}

LockFileInstance::LockFileInstance(const QString& program, const QString& systemRuntimeRoot)
    : path_(UserRuntimeFolder(systemRuntimeRoot) + "/" + program + ".lock") {}

bool LockFileInstance::AnotherInstanceRunning() {
    lock_ = std::make_unique<QLockFile>(path_);
    lock_->setStaleLockTime(0); // a lock whose process is gone is taken over
    if (lock_->tryLock(0))
        return false;
    // Where no lock can be made at all, nothing tells of another run.
    if (lock_->error() != QLockFile::LockFailedError)
        return false;
    if (NamesAProcess(*lock_))
        return true;
    // A lock that names no process is stale as well, once it has had the
    // moment that an instance starting right now needs to write it.
    if (lock_->tryLock(kLockBeingWrittenMs))
        return false;
    if (NamesAProcess(*lock_))
        return true;
    if (!QFile::remove(path_))
        QDir().rmdir(path_);
    if (!lock_->tryLock(0))
        qWarning("The lock %s can't be taken: a second start of the program would go unnoticed.",
                 qPrintable(path_));
    return false;
}

ProgramFolder::ProgramFolder(QString programDir, QString exeName, QString commandLine)
    : dir_(std::move(programDir)), exe_(std::move(exeName)), commandLine_(std::move(commandLine)) {}

std::string ProgramFolder::ProgramDir() {
    return QDir::cleanPath(dir_).toStdString();
}

std::string ProgramFolder::FilesDir() {
    // An installed program's folder is not the user's to write; its files then
    // live in the user's data folder, under the same names.
    QTemporaryFile probe(dir_ + "/.quillane-probe-XXXXXX");
    if (probe.open())
        return ProgramDir();
    const QString data =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/" + exe_;
    QDir().mkpath(data);
    return QDir::cleanPath(data).toStdString();
}

QString SystemLocale::ShortFormat() {
    QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"))
        format.replace("yy", "yyyy");
    return format;
}

std::string SystemLocale::ShortDate(const Date& date) {
    return QDate(date.Year(), date.Month(), date.Day()).toString(ShortFormat()).toStdString();
}

std::optional<Date> SystemLocale::ParseShortDate(const std::string& text) {
    const QDate d = QDate::fromString(QString::fromStdString(text), ShortFormat());
    if (!d.isValid())
        return std::nullopt;
    return Date(d.year(), d.month(), d.day());
}

std::string SystemLocale::MonthName(int month) {
    return QLocale::system().standaloneMonthName(month, QLocale::LongFormat).toStdString();
}

void QtEventPump::DoEvents() {
    // The window repaints; a click made meanwhile waits until the handler
    // that pumps has finished, so it never lands in the middle of it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool ImageDecoder::CanDecode(const std::vector<unsigned char>& bytes) {
    return !Decode(bytes).isNull();
}

QImage ImageDecoder::Decode(const std::vector<unsigned char>& bytes) {
    static std::vector<unsigned char> lastBytes;
    static QImage last;
    if (bytes != lastBytes) {
        last = QImage();
        if (!bytes.empty())
            last.loadFromData(bytes.data(), int(bytes.size()));
        lastBytes = bytes;
    }
    return last;
}

} // namespace quillane
