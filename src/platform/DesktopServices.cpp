#include "DesktopServices.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace quillane {

LockFileInstance::LockFileInstance(const QString& program) {
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty())
        dir = QDir::tempPath();
    path_ = dir + "/" + program + ".lock";
}

bool LockFileInstance::AnotherInstanceRunning() {
    lock_ = std::make_unique<QLockFile>(path_);
    lock_->setStaleLockTime(0); // a lock left by a crashed run is taken over
    return !lock_->tryLock(0);
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
    if (bytes.empty())
        return false;
    QImage image;
    return image.loadFromData(bytes.data(), int(bytes.size())) && !image.isNull();
}

} // namespace quillane
