#include "RegisterAstrology.h"
#include "common/StateJson.h"

#include "astrology/modLearnAstrology.h"
#include "frmLearnAstrologyMain.h"

#include <span>

namespace quillane {

namespace {

// The knowledge base's columns as they stand: empty until a Load routine
// has filled them.
Json KnowledgeBase() {
    namespace m = modLearnAstrology;
    return Json::Object{
        {"strSign", ListJson(m::strSign)},
        {"strSignDates", ListJson(m::strSignDates)},
        {"strSignNumber", ListJson(m::strSignNumber)},
        {"strSignOpposite", ListJson(m::strSignOpposite)},
        {"strSignKeywords", ListJson(m::strSignKeywords)},
        {"strSignElement", ListJson(m::strSignElement)},
        {"strSignRulingPlanet", ListJson(m::strSignRulingPlanet)},
        {"strSignLuckyNumber", ListJson(m::strSignLuckyNumber)},
        {"strSignLuckyColor", ListJson(m::strSignLuckyColor)},
        {"strSignLuckyDay", ListJson(m::strSignLuckyDay)},
        {"strSignBirthstone", ListJson(m::strSignBirthstone)},
        {"strSignQuality", ListJson(m::strSignQuality)},
        {"strSignAnatomy", ListJson(m::strSignAnatomy)},
        {"strSignFlowerEssence", ListJson(m::strSignFlowerEssence)},
        {"strSignPositive", ListJson(m::strSignPositive)},
        {"strSignNegative", ListJson(m::strSignNegative)},
        {"strPlanet", ListJson(m::strPlanet)},
        {"strPlanetRulerForSign", ListJson(m::strPlanetRulerForSign)},
        {"strPlanetKeywords", ListJson(m::strPlanetKeywords)},
        {"strPlanetCycle", ListJson(m::strPlanetCycle)},
        {"strPlanetAnatomy", ListJson(m::strPlanetAnatomy)},
        {"strPlanetRulerForHouse", ListJson(m::strPlanetRulerForHouse)},
        {"strPlanetPositive", ListJson(m::strPlanetPositive)},
        {"strPlanetNegative", ListJson(m::strPlanetNegative)},
        {"strHouseKey", ListJson(m::strHouseKey)},
        {"strHouseNumber", ListJson(m::strHouseNumber)},
        {"strHouseName", ListJson(m::strHouseName)},
        {"strHousePlanetRuler", ListJson(m::strHousePlanetRuler)},
        {"strHouseSignRuler", ListJson(m::strHouseSignRuler)},
        {"strHouseKeywords", ListJson(m::strHouseKeywords)},
        {"strHouseMantra", ListJson(m::strHouseMantra)},
        {"strHouseType", ListJson(m::strHouseType)},
        {"strHouseAttributes", ListJson(m::strHouseAttributes)},
    };
}

} // namespace

void RegisterAstrology(Application& app) {
    app.RegisterForm("frmLearnAstrologyMain",
                     [](Application& a) { return std::make_unique<frmLearnAstrologyMain>(a); });
    app.RegisterModule("modLearnAstrology", KnowledgeBase);
}

} // namespace quillane
