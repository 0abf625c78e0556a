#include "Date.h"

#include <cstdio>

namespace quillane {

std::string Date::Iso() const {
    char buf[16];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", Year(), Month(), Day());
    return buf;
}

std::optional<Date> Date::FromIso(const std::string& text) {
    int y = 0, m = 0, d = 0;
    char tail = 0;
    if (std::sscanf(text.c_str(), "%4d-%2d-%2d%c", &y, &m, &d, &tail) != 3)
        return std::nullopt;
    Date date(y, m, d);
    if (!date.Valid())
        return std::nullopt;
    return date;
}

} // namespace quillane
