// The goal notes' text: whatever the bytes of a note, they read as UTF-8
// text; a text written reads back as it was; and its lines, joined with the
// line ends the program writes, split into the same lines.
#include "Property.h"
#include "common/TextFiles.h"

#include <cstdint>
#include <string>

using namespace quillane;
using fuzz::Holds;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = DecodeFileText(bytes);
    Holds(IsValidUtf8(text), "any bytes read as UTF-8 text");
    Holds(DecodeFileText(EncodeFileText(text)) == text, "a text read back is the text written");
    if (IsValidUtf8(bytes))
        Holds(DecodeFileText(EncodeFileText(bytes)) == bytes, "so is a text as typed");

    const auto lines = SplitLines(text);
    std::string joined;
    for (const auto& line : lines) {
        Holds(line.find_first_of("\r\n") == std::string::npos, "a line holds no line end");
        joined += line + "\r\n";
    }
    Holds(SplitLines(joined) == lines, "lines joined with CRLF split into the same lines");
    return 0;
}
