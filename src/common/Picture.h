#pragma once
// What a picture control shows: the program's own picture by its resource
// (the file below assets/), or the bytes of a picture file where the picture
// came from data (a card); a turn; and the descriptor that names it for the
// driver.
#include <memory>
#include <string>
#include <vector>

namespace quillane {

struct Picture {
    // "" for none; "IMG 9", "imgSign 3", "imgPlanet 3", "card 17".
    std::string descriptor;
    // The program's own picture, "runes/stone-09-hagalaz.svg"; "" otherwise.
    std::string resource;
    // The complete picture file, for pictures loaded from data; null otherwise.
    std::shared_ptr<const std::vector<unsigned char>> bytes;
    bool rot180 = false;
    // What the picture shows, in words, for those who can't see it.
    std::string description;

    bool empty() const { return descriptor.empty(); }
    // The text that the driver shows: the descriptor, " rot180" when turned.
    std::string Describe() const {
        return empty() ? std::string() : descriptor + (rot180 ? " rot180" : "");
    }
    friend bool operator==(const Picture& a, const Picture& b) {
        return a.descriptor == b.descriptor && a.resource == b.resource && a.rot180 == b.rot180 &&
               a.bytes == b.bytes;
    }
};

} // namespace quillane
