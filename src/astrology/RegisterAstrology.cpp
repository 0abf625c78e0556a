#include "RegisterAstrology.h"

#include "astrology/modLearnAstrology.h"
#include "frmLearnAstrologyMain.h"

#include <span>

namespace quillane {

namespace {

Json Column(std::span<const std::string> column) {
    Json::Array rows;
    for (const std::string& row : column)
        rows.emplace_back(row);
    return rows;
}

// The knowledge base's columns as they stand: empty until a Load routine
// has filled them.
Json KnowledgeBase() {
    namespace m = modLearnAstrology;
    return Json::Object{
        {"strSign", Column(m::strSign)},
        {"strSignDates", Column(m::strSignDates)},
        {"strSignNumber", Column(m::strSignNumber)},
        {"strSignOpposite", Column(m::strSignOpposite)},
        {"strSignKeywords", Column(m::strSignKeywords)},
        {"strSignElement", Column(m::strSignElement)},
        {"strSignRulingPlanet", Column(m::strSignRulingPlanet)},
        {"strSignLuckyNumber", Column(m::strSignLuckyNumber)},
        {"strSignLuckyColor", Column(m::strSignLuckyColor)},
        {"strSignLuckyDay", Column(m::strSignLuckyDay)},
        {"strSignBirthstone", Column(m::strSignBirthstone)},
        {"strSignQuality", Column(m::strSignQuality)},
        {"strSignAnatomy", Column(m::strSignAnatomy)},
        {"strSignFlowerEssence", Column(m::strSignFlowerEssence)},
        {"strSignPositive", Column(m::strSignPositive)},
        {"strSignNegative", Column(m::strSignNegative)},
        {"strPlanet", Column(m::strPlanet)},
        {"strPlanetRulerForSign", Column(m::strPlanetRulerForSign)},
        {"strPlanetKeywords", Column(m::strPlanetKeywords)},
        {"strPlanetCycle", Column(m::strPlanetCycle)},
        {"strPlanetAnatomy", Column(m::strPlanetAnatomy)},
        {"strPlanetRulerForHouse", Column(m::strPlanetRulerForHouse)},
        {"strPlanetPositive", Column(m::strPlanetPositive)},
        {"strPlanetNegative", Column(m::strPlanetNegative)},
        {"strHouseKey", Column(m::strHouseKey)},
        {"strHouseNumber", Column(m::strHouseNumber)},
        {"strHouseName", Column(m::strHouseName)},
        {"strHousePlanetRuler", Column(m::strHousePlanetRuler)},
        {"strHouseSignRuler", Column(m::strHouseSignRuler)},
        {"strHouseKeywords", Column(m::strHouseKeywords)},
        {"strHouseMantra", Column(m::strHouseMantra)},
        {"strHouseType", Column(m::strHouseType)},
        {"strHouseAttributes", Column(m::strHouseAttributes)},
    };
}

} // namespace

void RegisterAstrology(Application& app) {
    app.RegisterForm("frmLearnAstrologyMain",
                     [](Application& a) { return std::make_unique<frmLearnAstrologyMain>(a); });
    app.RegisterModule("modLearnAstrology", KnowledgeBase);
}

} // namespace quillane
