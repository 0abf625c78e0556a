#include "UserControl1.h"

#include "common/Application.h"
#include "common/Form.h"

namespace quillane {

namespace {
constexpr int kFirstYear = 1980;
constexpr int kLastYear = 2099;
} // namespace

UserControl1::UserControl1(Form& owner, std::string name, Control* container)
    : UserControl(owner, std::move(name), container),
      cboDate(owner.Add(ControlKind::ComboBox, "cboDate", this)),
      cboMonth(owner.Add(ControlKind::ComboBox, "cboMonth", this)),
      cboYear(owner.Add(ControlKind::ComboBox, "cboYear", this)) {
    for (int day = 1; day <= 31; ++day)
        cboDate.AddItem(std::to_string(day));
    for (Control* list : {&cboDate, &cboMonth, &cboYear})
        list->Click = [this] { List_Click(); };
    ILocale& locale = *owner.App().Svc().locale;
    for (int month = 1; month <= 12; ++month)
        cboMonth.AddItem(locale.MonthName(month));
    for (int year = kFirstYear; year <= kLastYear; ++year)
        cboYear.AddItem(std::to_string(year));
    // Today, selected as the user would, day first: on a 29 February the
    // month comes while no year is selected, and the day is clamped.
    const Date today = owner.App().Svc().clock->Today();
    cboDate.SetListIndex(today.Day() - 1);
    cboMonth.SetListIndex(today.Month() - 1);
    cboYear.SetListIndex(today.Year() - kFirstYear);
}

Date UserControl1::value() const {
    return Date(cboYear.ListIndex() + kFirstYear, cboMonth.ListIndex() + 1,
                cboDate.ListIndex() + 1);
}

void UserControl1::setValue(const Date& date) {
    cboDate.SetListIndex(date.Day() - 1);
    cboMonth.SetListIndex(date.Month() - 1);
    cboYear.SetListIndex(date.Year() - kFirstYear);
}

void UserControl1::SetEnabledFlag(bool enabled) {
    enabled_ = enabled;
    for (Control* list : {&cboDate, &cboMonth, &cboYear})
        list->SetEnabled(enabled);
}

void UserControl1::List_Click() {
    AdjustDay();
    ++dateChangedCount_;
    if (DateChanged)
        DateChanged();
}

void UserControl1::AdjustDay() {
    if (cboMonth.ListIndex() < 0)
        return;
    // Day 0 of the next month is the last of this one; no year selected
    // counts as the year before the first.
    const int year = cboYear.ListIndex() + kFirstYear;
    const int month = cboMonth.ListIndex() + 1;
    const int last =
        Date(month == 12 ? year + 1 : year, month == 12 ? 1 : month + 1, 1).AddDays(-1).Day();
    if (cboDate.ListIndex() + 1 > last)
        cboDate.SetListIndex(last - 1);
}

std::optional<Json> UserControl1::Property(const std::string& name) const {
    if (name == "value")
        return Json(value().Iso());
    if (name == "DateChangedCount")
        return Json(dateChangedCount_);
    if (name == "Enabled")
        return Json(enabled_);
    if (name == "ForeColor")
        return Json(foreColor_);
    return std::nullopt;
}

Json::Object UserControl1::Properties() const {
    return {{"value", Json(value().Iso())}, {"DateChangedCount", Json(dateChangedCount_)}};
}

} // namespace quillane
