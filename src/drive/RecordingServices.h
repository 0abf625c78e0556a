#pragma once
// The driver's platform: nothing waits for a person. Message boxes and dialogs
// are recorded and answered from queues; the browser and printer record.
#include "common/Json.h"
#include "common/Services.h"

#include <deque>
#include <string>
#include <vector>

namespace quillane::drive {

class RecordingMessageBox : public IMessageBox {
public:
    MsgAnswer Show(const std::string& text, const std::string& title, MsgIcon icon,
                   MsgButtons buttons) override;
    void QueueAnswer(MsgAnswer answer) { answers_.push_back(answer); }
    // The oldest box not yet read, or null.
    Json TakeOldest();

private:
    std::deque<MsgAnswer> answers_;
    std::deque<Json> shown_;
};

class RecordingBrowser : public IBrowser {
public:
    void Open(const std::string& address) override { opened.push_back(address); }
    std::vector<std::string> opened;
};

class RecordingPrinter : public IPrinter {
public:
    explicit RecordingPrinter(bool present) : present_(present) {}
    bool Print(const std::vector<TextRun>& document) override;
    std::vector<std::string> printed;

private:
    bool present_;
};

class QueuedSaveDialog : public ISaveDialog {
public:
    std::optional<std::string> GetSaveFileName(const std::string& filter) override;
    void Queue(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }

private:
    std::deque<std::optional<std::string>> answers_;
};

// Today as told; with a seed, the clock that seeding reads is derived from it.
class DriverClock : public IClock {
public:
    DriverClock(Date today, std::optional<long long> seed) : today_(today), seed_(seed) {}
    Date Today() override { return today_; }
    double Timer() override;
    void SetToday(Date today) { today_ = today; }

private:
    Date today_;
    std::optional<long long> seed_;
    long long ticks_ = 0;
};

// Dates as M/d/yyyy and English month names, the same on every machine.
class DriverLocale : public ILocale {
public:
    std::string ShortDate(const Date& date) override;
    std::optional<Date> ParseShortDate(const std::string& text) override;
    std::string MonthName(int month) override;
};

class FixedInstanceLock : public IInstanceLock {
public:
    explicit FixedInstanceLock(bool other) : other_(other) {}
    bool AnotherInstanceRunning() override { return other_; }

private:
    bool other_;
};

class RecordingTray : public ITray {
public:
    explicit RecordingTray(bool available) : available_(available) {}
    bool Available() override { return available_; }
    void Add(const std::string& tip) override {
        icon = true;
        this->tip = tip;
    }
    void Remove() override { icon = false; }
    bool icon = false;
    std::string tip;

private:
    bool available_;
};

class FixedScreen : public IScreen {
public:
    int WidthTwips() override { return 1920 * 15; }
    int HeightTwips() override { return 1080 * 15; }
};

} // namespace quillane::drive
