#include "runes/ResumeNext.h"

#include "common/Errors.h"

#include <exception>

namespace quillane::runes {

bool Resume(const std::function<void()>& statement) noexcept {
    try {
        statement();
        return true;
    } catch (const RuntimeError&) {
        return false;
    } catch (const std::exception&) {
        return false;
    }
}

std::function<void()> Guard(std::function<void()> handler) {
    return [handler = std::move(handler)] { Resume(handler); };
}

std::function<void(int)> Guard(std::function<void(int)> handler) {
    return [handler = std::move(handler)](int index) { Resume([&] { handler(index); }); };
}

} // namespace quillane::runes
