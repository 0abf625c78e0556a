#include "Paths.h"

#include <chrono>
#include <thread>

namespace quillane {

std::filesystem::path PathFromUtf8(const std::string& text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string PathToUtf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::FILE* OpenFile(const std::filesystem::path& path, const char* mode) {
#ifdef _WIN32
    std::wstring wide;
    for (const char* c = mode; *c; ++c)
        wide += wchar_t(*c);
    return _wfopen(path.c_str(), wide.c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

std::error_code RenameOver(const std::filesystem::path& from, const std::filesystem::path& to) {
#ifdef _WIN32
    constexpr int kTries = 20;
#else
    constexpr int kTries = 1; // a rename replaces an open file here
#endif
    std::error_code error;
    for (int attempt = 1;; ++attempt) {
        std::filesystem::rename(from, to, error);
        if (!error || attempt == kTries)
            return error;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

} // namespace quillane
