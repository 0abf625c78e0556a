// The Astrology window through the driver: the choice panel and its combos,
// browsing and its two ends, the records shown, and back to the choice.
#include "DriveSession.h"
#include "astrology/modLearnAstrology.h"
#include "common/Json.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace quillane::testing;
using quillane::JsonQuote;
namespace mla = quillane::modLearnAstrology;

namespace {

Script Astrology() {
    return Script("frmLearnAstrologyMain", {"start", "click frmMDI.cmdSelectOption(0)"});
}
const std::vector<std::string> kOptions = {"--today", "2026-04-01", "--seed", "1"};

std::string Box(const std::string& text) {
    return R"({"text":")" + text +
           R"(","title":"Quillane","icon":"information","buttons":"ok","answer":"ok"})";
}

} // namespace

TEST(AstrologyWindow, OnlyTheChosenOptionsCombosCanBeChangedAndRefillTheirSubList) {
    Script s = Astrology();
    s.Is("get .strValues", "null", "no run before Next");
    s.Is("set .cboTestOptionMain.ListIndex 1", "error: disabled");
    s.Do("set .cboLearnOptionMain.ListIndex 1");
    s.Is("get .cboLearnOptionSub.ListCount", "8", "the planets' list");
    s.Do({"set .cboLearnOptionSub.ListIndex 2", "click .optOption(1)"});
    s.Is("set .cboLearnOptionMain.ListIndex 2", "error: disabled",
         "the learn pair is shut while testing is chosen");
    s.Is("get .cboLearnOptionSub.Text", R"("Keywords")", "its selection stays");
    s.Do({"set .cboTestOptionSub.ListIndex 4", "set .cboTestOptionMain.ListIndex 2"});
    s.Is("get .cboTestOptionSub.ListIndex", "0",
         "a new main list starts its sub-list from the top");
    s.Is("get .cboTestOptionSub.ListCount", "7", "the houses' list");
    s.Do({"set .cboTestOptionSub.ListIndex 5", "click .cmdNext"});
    s.Is("get .Frame3.InFront", "true");
    s.Is("get .intMainIndex", "2", "the test pair was read, not the learn pair");
    s.Is("get .strSubCaption", R"("Mantra")");
    s.Is("get .lblTest(0).Caption", R"("Test By Houses")");
    s.Is("get .picTest.Visible", "false", "houses have no glyph");
    s.Run(kOptions);
}

TEST(AstrologyWindow, BrowsingStopsAtBothEndsWithItsMessages) {
    const struct {
        int main;
        int records;
        std::string last;
    } sets[] = {{0, 12, "Pisces"}, {1, 10, "Pluto"}, {2, 12, "12th House"}};
    for (const auto& set : sets) {
        Script s = Astrology();
        s.Do({"set .cboLearnOptionMain.ListIndex " + std::to_string(set.main), "click .cmdNext",
              "click .cmdBackDesc"});
        s.Is("msgbox", Box("You are at the first record"));
        s.Is("get .intCurrent", "0");
        for (int i = 1; i < set.records; ++i)
            s.Do("click .cmdNextDesc");
        s.Is("msgbox", "null", "no box on the way");
        s.Is("get .lblLabel(2).Caption", JsonQuote(set.last));
        s.Do("click .cmdNextDesc");
        s.Is("msgbox", Box("You are at the last record"));
        s.Is("msgbox", "null", "one box only");
        s.Is("get .intCurrent", std::to_string(set.records - 1));
        s.Is("get .lblLabel(2).Caption", JsonQuote(set.last), "the record shown stays");
        s.Run(kOptions);
    }
}

TEST(AstrologyWindow, RecordsShowTheirNameValueAndGlyphAndBackToMainErasesTheRun) {
    mla::LoadHouseTables();
    Script s = Astrology();
    s.Do({"set .cboLearnOptionSub.ListIndex 9", "click .cmdNext"}); // Lucky Number
    for (int i = 0; i < 4; ++i)
        s.Do("click .cmdNextDesc");
    s.Is("get .lblLabel(1).Caption", R"("Lucky Number")");
    s.Is("get .lblLabel(2).Caption", R"("Leo")");
    s.Is("get .lblLabel(3).Caption", R"("8 && 9")", "the doubled ampersand is stored");
    s.Is("get .picAstro.Picture", R"("imgSign 5")", "the glyph shows with every sub-category");
    s.Do("click .cmdBackToMain(0)");
    s.Is("get .Frame1.InFront", "true");
    s.Is("get .cboLearnOptionSub.ListIndex", "9", "the choice stays");
    s.Is("get .intCurrent", "0");
    s.Is("get .strValues", "null");
    s.Is("click .cmdNextDesc", "error: hidden", "the browsing panel is behind");
    s.Do({"set .cboLearnOptionMain.ListIndex 1", "click .cmdNext", "click .cmdNextDesc",
          "click .cmdNextDesc"});
    s.Is("get .lblLabel(2).Caption", R"("Jupiter")");
    s.Is("get .picAstro.Picture", R"("imgPlanet 3")", "Jupiter is the third planet picture");
    s.Do({"click .cmdBackToMain(0)", "set .cboLearnOptionMain.ListIndex 2",
          "set .cboLearnOptionSub.ListIndex 3", "click .cmdNext"});
    s.Is("get .lblLabel(2).Caption", R"("1st House")");
    s.Is("get .picAstro.Visible", "false");
    s.Is("get .lblLabel(3).Caption", JsonQuote(mla::strHouseAttributes[0]));
    s.Has("get .strNames", R"(["Aries",)", "house runs keep sign names as names");
    s.Run(kOptions);
}
