#pragma once
#include <string>

namespace quillane {

// A run of text of a printed or shown report.
struct TextRun {
    std::string text;
    bool bold = false;
    double pointSize = 0; // 0: the default size
};

} // namespace quillane
