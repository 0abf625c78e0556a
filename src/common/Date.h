#pragma once
// A calendar date without time. Differences are whole days.
#include <chrono>
#include <optional>
#include <string>

namespace quillane {

class Date {
public:
    Date() = default;
    Date(int year, int month, int day)
        : ymd_{std::chrono::year{year}, std::chrono::month(unsigned(month)),
               std::chrono::day(unsigned(day))} {}

    int Year() const { return int(ymd_.year()); }
    int Month() const { return int(unsigned(ymd_.month())); }
    int Day() const { return int(unsigned(ymd_.day())); }
    bool Valid() const { return ymd_.ok(); }

    // Days since 1970-01-01 (a year's range of days fits in 32 bits).
    long Serial() const { return long(std::chrono::sys_days(ymd_).time_since_epoch().count()); }
    static Date FromSerial(long days) {
        Date d;
        d.ymd_ = std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(days)));
        return d;
    }
    Date AddDays(long n) const { return FromSerial(Serial() + n); }
    // Whole days from a to b (positive when b is later).
    static long DaysBetween(const Date& a, const Date& b) { return b.Serial() - a.Serial(); }

    // "YYYY-MM-DD"
    std::string Iso() const;
    static std::optional<Date> FromIso(const std::string& text);

    friend bool operator==(const Date& a, const Date& b) { return a.ymd_ == b.ymd_; }
    friend auto operator<=>(const Date& a, const Date& b) { return a.Serial() <=> b.Serial(); }

private:
    std::chrono::year_month_day ymd_{std::chrono::year{1899}, std::chrono::December,
                                     std::chrono::day{30}};
};

} // namespace quillane
