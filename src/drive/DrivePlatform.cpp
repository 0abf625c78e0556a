#include "DrivePlatform.h"

#include <QDate>

namespace quillane::drive {

namespace {
Date SystemToday() {
    const QDate d = QDate::currentDate();
    return Date(d.year(), d.month(), d.day());
}
} // namespace

DrivePlatform::DrivePlatform(const DriverOptions& o)
    : options(o), printer(!o.noPrinter), clock(o.today.value_or(SystemToday()), o.seed),
      settings(QString::fromStdString(o.userDir)),
      folder(QString::fromStdString(o.programDir), "quillane", QString::fromStdString(o.args)),
      instanceLock(o.otherInstance), tray(!o.noTray),
      entries(QString::fromStdString(o.userDir) + "/autostart"),
      autostart(entries, o.autostartFails) {}

Services DrivePlatform::Wired() {
    return WireServices(*this);
}

} // namespace quillane::drive
