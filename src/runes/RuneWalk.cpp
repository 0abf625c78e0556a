#include "runes/RuneWalk.h"

#include "common/Errors.h"
#include "runes/modLearnRunes.h"

namespace quillane::modLearnRunes {

VBArray<std::int16_t> intStoneSlot(0, 24);
VBArray<std::int16_t> intSelectedStone;
std::int16_t intStoneIndex = 0;

Picture Img(long entry) {
    if (entry < 1 || entry > long(kImgKey.size()))
        throw RuntimeError(35600, "Index out of bounds");
    Picture picture;
    picture.descriptor = "IMG " + std::to_string(entry);
    return picture;
}

namespace {
template <class T> Json ArrayJson(const VBArray<T>& a) {
    if (!a.IsInitialised())
        return Json();
    Json::Array items;
    for (const T& item : a.Items())
        items.emplace_back(item);
    return Json(std::move(items));
}
template <std::size_t N> Json TableJson(const std::array<std::string, N>& table) {
    Json::Array items;
    for (const std::string& item : table)
        items.emplace_back(item);
    return Json(std::move(items));
}
} // namespace

Json Variables() {
    return Json::Object{
        {"intStoneSlot", ArrayJson(intStoneSlot)},
        {"intSelectedStone", ArrayJson(intSelectedStone)},
        {"intStoneIndex", Json(intStoneIndex)},
        {"strStoneName", TableJson(strStoneName)},
        {"strNormalMeaning", TableJson(strNormalMeaning)},
        {"strReverseMeaning", TableJson(strReverseMeaning)},
        {"strMarkstaveMeaning", TableJson(strMarkstaveMeaning)},
        {"strKeyword", TableJson(strKeyword)},
        {"strAlternativeName", TableJson(strAlternativeName)},
    };
}

} // namespace quillane::modLearnRunes
