#include "runes/RuneWalk.h"
#include "common/StateJson.h"

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
    picture.resource = "runes/" + ImgFileName(int(entry));
    // "09 Hagalaz" is the stone Hagalaz.
    picture.description = "Rune stone " + std::string(kImgKey[std::size_t(entry - 1)].substr(3));
    return picture;
}

Json Variables() {
    return Json::Object{
        {"intStoneSlot", ListJson(intStoneSlot)},
        {"intSelectedStone", ListJson(intSelectedStone)},
        {"intStoneIndex", Json(intStoneIndex)},
        {"strStoneName", ListJson(strStoneName)},
        {"strNormalMeaning", ListJson(strNormalMeaning)},
        {"strReverseMeaning", ListJson(strReverseMeaning)},
        {"strMarkstaveMeaning", ListJson(strMarkstaveMeaning)},
        {"strKeyword", ListJson(strKeyword)},
        {"strAlternativeName", ListJson(strAlternativeName)},
    };
}

} // namespace quillane::modLearnRunes
