#pragma once
// UserControl1: the program's own date picker, three drop-down lists side by
// side for day, month and year. The lists' selections are the whole state:
// no date is stored apart from them.
#include "common/Date.h"
#include "common/UserControl.h"

#include <functional>

namespace quillane {

class UserControl1 : public UserControl {
public:
    // Made on today's date, in the month names of the system's language.
    UserControl1(Form& owner, std::string name, Control* container = nullptr);

    Date value() const;
    // Selects the day, the month and the year, in this order, each clamped
    // at once against what is selected then. A year outside 1980 to 2099 is
    // the caller's error.
    void setValue(const Date& date);

    // The stored flag, which starts false whatever the lists show.
    bool EnabledFlag() const { return enabled_; }
    void SetEnabledFlag(bool enabled);
    // The text colour, as 0xRRGGBB: read from the day list, written to all three.
    long ForeColor() const { return foreColor_; }
    void SetForeColor(long colour) { foreColor_ = colour; }

    // Raised after each selection in any of the lists, the clamp's own too.
    std::function<void()> DateChanged;
    long DateChangedCount() const { return dateChangedCount_; }

    std::optional<Json> Property(const std::string& name) const override;
    Json::Object Properties() const override;

    Control& cboDate;
    Control& cboMonth;
    Control& cboYear;

private:
    void List_Click();
    void AdjustDay();

    bool enabled_ = false;
    long foreColor_ = 0;
    long dateChangedCount_ = 0;
};

} // namespace quillane
