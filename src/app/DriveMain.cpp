// quillane-drive: runs the whole program without a window and reads the
// user's actions from standard input, one command a line.
#include "Composition.h"
#include "drive/Driver.h"
#include "drive/WholeNumber.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdio>
#include <iostream>
#include <memory>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

int Usage(const char* message) {
    std::fprintf(stderr,
                 "quillane-drive: %s\nusage: quillane-drive [--program-dir DIR] [--user-dir DIR] "
                 "[--today YYYY-MM-DD] [--seed N] [--args TEXT] [--other-instance] [--no-printer] "
                 "[--no-tray] [--autostart-fails open|write]\n",
                 message);
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication qt(argc, argv);
#ifdef _WIN32
    // Each answer ends in "\n", as elsewhere, not in a text-mode stream's "\r\n".
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    quillane::drive::DriverOptions options;
    options.programDir = QCoreApplication::applicationDirPath().toStdString();
    // The arguments as Qt has them in Unicode: on Windows argv is in the ANSI
    // code page, which cannot hold every folder's name. Values are UTF-8.
    std::vector<std::string> utf8;
    for (const QString& a : QCoreApplication::arguments())
        utf8.push_back(a.toStdString());
    for (std::size_t i = 1; i < utf8.size(); ++i) {
        const std::string arg = utf8[i];
        auto value = [&]() -> const char* {
            return i + 1 < utf8.size() ? utf8[++i].c_str() : nullptr;
        };
        if (arg == "--other-instance") {
            options.otherInstance = true;
        } else if (arg == "--no-printer") {
            options.noPrinter = true;
        } else if (arg == "--no-tray") {
            options.noTray = true;
        } else if (arg == "--autostart-fails") {
            const char* v = value();
            const std::string what = v ? v : "";
            using Failure = quillane::drive::ScriptedAutostart::Failure;
            if (what == "open")
                options.autostartFails = Failure::Open;
            else if (what == "write")
                options.autostartFails = Failure::Write;
            else
                return Usage("--autostart-fails takes open or write");
        } else if (arg == "--program-dir" || arg == "--user-dir" || arg == "--today" ||
                   arg == "--seed" || arg == "--args") {
            const char* v = value();
            if (!v)
                return Usage(("missing value for " + arg).c_str());
            if (arg == "--program-dir")
                options.programDir =
                    QFileInfo(QString::fromUtf8(v)).absoluteFilePath().toStdString();
            else if (arg == "--user-dir")
                options.userDir = QFileInfo(QString::fromUtf8(v)).absoluteFilePath().toStdString();
            else if (arg == "--args")
                options.args = v;
            else if (arg == "--today") {
                options.today = quillane::Date::FromIso(v);
                if (!options.today)
                    return Usage("--today takes YYYY-MM-DD");
            } else {
                options.seed = quillane::drive::WholeNumber<long long>(v);
                if (!options.seed)
                    return Usage("--seed takes a whole number");
            }
        } else {
            return Usage(("unknown option " + arg).c_str());
        }
    }
    std::unique_ptr<QTemporaryDir> scratch;
    if (options.userDir.empty()) {
        scratch = std::make_unique<QTemporaryDir>();
        options.userDir = scratch->path().toStdString();
    }

    quillane::drive::DrivePlatform platform(options);
    quillane::app::Program program(platform.Wired());
    quillane::drive::Driver driver(program.App(), platform);
    std::string line;
    while (std::getline(std::cin, line)) {
        if (auto answer = driver.Execute(line)) {
            std::fputs(answer->c_str(), stdout);
            std::fputc('\n', stdout);
            std::fflush(stdout);
        }
    }
    return 0;
}
