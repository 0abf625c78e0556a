#include "DriveSession.h"

#include <QProcess>
#include <QStringList>

namespace quillane::testing {

std::optional<std::string> RunProgram(const std::string& program,
                                      const std::vector<std::string>& arguments,
                                      const std::string& input, int seconds) {
    QStringList args;
    for (const std::string& a : arguments)
        args << QString::fromStdString(a);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QString::fromStdString(program), args);
    if (!process.waitForStarted(-1))
        return std::nullopt;
    process.write(input.data(), qint64(input.size()));
    process.closeWriteChannel();
    if (!process.waitForFinished(seconds * 1000)) {
        process.kill();
        process.waitForFinished(-1);
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput().toStdString();
}

} // namespace quillane::testing
