#pragma once
// The driver's platform: nothing waits for a person. Message boxes and dialogs
// are recorded and answered from queues; the browser and printer record.
#include "common/Json.h"
#include "common/Services.h"

#include <deque>
#include <functional>
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

class FixedInstanceLock : public IInstanceLock {
public:
    explicit FixedInstanceLock(bool other) : other_(other) {}
    bool AnotherInstanceRunning() override { return other_; }

private:
    bool other_;
};

// The tray icon as the program left it; mouse messages come from the script.
class RecordingTray : public ITray {
public:
    explicit RecordingTray(bool available) : available_(available) {}
    bool Available() override { return available_; }
    void Add(const std::string& tip, std::function<void(int)> onMouse) override {
        icon = true;
        this->tip = tip;
        onMouse_ = std::move(onMouse);
    }
    void Remove() override {
        icon = false;
        onMouse_ = nullptr;
    }
    // A mouse message on the icon; false when there is no icon to take it.
    bool Mouse(int message) {
        if (!onMouse_)
            return false;
        auto handler = onMouse_; // the handler may remove the icon
        handler(message);
        return true;
    }
    bool icon = false;
    std::string tip;

private:
    bool available_;
    std::function<void(int)> onMouse_;
};

// The start-at-logon entry, failing where the script asks it to.
class ScriptedAutostart : public IAutostart {
public:
    enum class Failure { None, Open, Write };
    ScriptedAutostart(IAutostart& real, Failure failure) : real_(real), failure_(failure) {}
    std::optional<std::string> Read(const std::string& name) override {
        return failure_ == Failure::Open ? std::nullopt : real_.Read(name);
    }
    SystemError Open() override {
        return failure_ == Failure::Open ? SystemError{5, "Access is denied."} : real_.Open();
    }
    SystemError Write(const std::string& name, const std::string& command) override {
        return failure_ == Failure::Write ? SystemError{5, "Access is denied."}
                                          : real_.Write(name, command);
    }
    void Remove(const std::string& name) override {
        if (failure_ != Failure::Open)
            real_.Remove(name);
    }

private:
    IAutostart& real_;
    Failure failure_;
};

} // namespace quillane::drive
