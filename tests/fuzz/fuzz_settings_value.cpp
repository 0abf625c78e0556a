// The settings store's text. The input is a key, a value and a file: the
// first two bytes give the lengths of the key and the value. A name or a
// value escaped reads back as it was; a value set in any file reads back as
// set, and another key, in its section or another, reads as before.
#include "Property.h"
#include "platform/IniText.h"

#include <cstdint>
#include <string>

using namespace quillane;
using fuzz::Holds;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    std::string input(reinterpret_cast<const char*>(data) + 2, size - 2);
    auto take = [&](std::size_t n) {
        std::string part = input.substr(0, n);
        input.erase(0, part.size());
        return part;
    };
    const std::string key = take(data[0] % 24), value = take(data[1]), file = input;

    Holds(ini::UnescapeValue(ini::EscapeValue(value)) == value, "a value reads back");
    Holds(ini::UnescapeName(ini::EscapeName(key)) == key, "a name reads back");
    ini::Find(file, "Settings", key);
    if (key.empty())
        return 0; // the program has no key without a name
    const std::string after = ini::Set(file, "Settings", key, value);
    Holds(ini::Find(after, "Settings", key) == value, "a value set reads back from the file");
    for (const char* section : {"Settings", "Other"})
        for (const std::string& other :
             {std::string("StoneGroup0"), std::string("Note"), key + "x"})
            if (other != key || section != std::string("Settings"))
                Holds(ini::Find(after, section, other) == ini::Find(file, section, other),
                      "any other key reads as before");
    return 0;
}
