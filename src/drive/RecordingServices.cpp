#include "RecordingServices.h"

#include <chrono>

namespace quillane::drive {

namespace {
const char* IconName(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::Information:
        return "information";
    case MsgIcon::Critical:
        return "critical";
    case MsgIcon::Exclamation:
        return "exclamation";
    case MsgIcon::Question:
        return "question";
    default:
        return "none";
    }
}
const char* AnswerName(MsgAnswer answer) {
    switch (answer) {
    case MsgAnswer::Yes:
        return "yes";
    case MsgAnswer::No:
        return "no";
    default:
        return "ok";
    }
}
} // namespace

MsgAnswer RecordingMessageBox::Show(const std::string& text, const std::string& title, MsgIcon icon,
                                    MsgButtons buttons) {
    MsgAnswer answer = MsgAnswer::Ok;
    if (buttons == MsgButtons::YesNo) {
        answer = MsgAnswer::No;
        if (!answers_.empty()) {
            answer = answers_.front();
            answers_.pop_front();
        }
    }
    shown_.push_back(Json::Object{{"text", text},
                                  {"title", title},
                                  {"icon", IconName(icon)},
                                  {"buttons", buttons == MsgButtons::YesNo ? "yesno" : "ok"},
                                  {"answer", AnswerName(answer)}});
    return answer;
}

Json RecordingMessageBox::TakeOldest() {
    if (shown_.empty())
        return Json();
    Json oldest = shown_.front();
    shown_.pop_front();
    return oldest;
}

bool RecordingPrinter::Print(const std::vector<TextRun>& document) {
    if (!present_)
        return false;
    std::string text;
    for (const auto& run : document)
        text += run.text;
    printed.push_back(text);
    return true;
}

std::optional<std::string> QueuedSaveDialog::GetSaveFileName(const std::string&) {
    if (answers_.empty())
        return std::nullopt;
    auto answer = answers_.front();
    answers_.pop_front();
    return answer;
}

double DriverClock::Timer() {
    if (!seed_) {
        using namespace std::chrono;
        const auto now = system_clock::now().time_since_epoch();
        return duration<double>(now - floor<days>(now)).count();
    }
    // Moves on by a hundredth of a second with each reading, as a clock would.
    const long long n = (*seed_ % 8640000 + 8640000) % 8640000 + ticks_++;
    return double(n % 8640000) / 100.0;
}

} // namespace quillane::drive
