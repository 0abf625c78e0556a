#pragma once
// The services that the desktop program and the driver both take from the
// platform: the instance lock, the program's folder, the locale's dates, the
// event loop, the picture decoder.
#include "common/Services.h"

#include <QImage>
#include <QLockFile>
#include <QString>
#include <memory>

namespace quillane {

// The user's runtime folder: $XDG_RUNTIME_DIR where it is the user's own,
// else the system's runtime folder of the user (systemRoot/<uid>, which the
// sessions that set the variable name), else a folder in the user's cache;
// never a folder that other users share.
QString UserRuntimeFolder(const QString& systemRoot = QStringLiteral("/run/user"));

// One lock per user and program, in the user's runtime folder. A lock that
// names no running process (one left by a crash, an empty or garbled file, a
// folder in its place) is stale and taken over.
class LockFileInstance : public IInstanceLock {
public:
    explicit LockFileInstance(const QString& program,
                              const QString& systemRuntimeRoot = QStringLiteral("/run/user"));
    bool AnotherInstanceRunning() override;

private:
    QString path_;
    std::unique_ptr<QLockFile> lock_;
};

class ProgramFolder : public IProgramFolder {
public:
    ProgramFolder(QString programDir, QString exeName, QString commandLine);
    std::string ProgramDir() override;
    std::string FilesDir() override;
    std::string ExeName() override { return exe_.toStdString(); }
    std::string CommandLine() override { return commandLine_.toStdString(); }

private:
    QString dir_, exe_, commandLine_;
};

// The system's short date form, always with a four-digit year so that a date
// written today reads back as the same date.
class SystemLocale : public ILocale {
public:
    std::string ShortDate(const Date& date) override;
    std::optional<Date> ParseShortDate(const std::string& text) override;
    std::string MonthName(int month) override;
    // The short date format used, with its year widened to four digits.
    static QString ShortFormat();
};

// Lets the events waiting in the event loop run.
class QtEventPump : public IEventPump {
public:
    void DoEvents() override;
};

class ImageDecoder : public IPictureDecoder {
public:
    bool CanDecode(const std::vector<unsigned char>& bytes) override;
    // The picture the bytes hold, or a null image. The last one is kept: a
    // card's picture is checked as it is read and drawn right after, and is
    // decoded once for both.
    static QImage Decode(const std::vector<unsigned char>& bytes);
};

} // namespace quillane
