// The Astrology window through the driver: the choice panel and its combos,
// browsing and its two ends, the records shown, and back to the choice.
#include "DriveSession.h"
#include "astrology/modLearnAstrology.h"
#include "common/Json.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace quillane::testing;
using quillane::Json;
namespace mla = quillane::modLearnAstrology;

namespace {

const std::string F = "frmLearnAstrologyMain.";

// Opens the window from the launcher, runs the commands (each "get X",
// "click X" and "set X" on the window) and answers theirs.
std::vector<std::string> InWindow(std::vector<std::string> commands) {
    for (std::string& c : commands)
        if (c != "msgbox")
            c.insert(c.find(' ') + 1, F);
    commands.insert(commands.begin(), {"start", "click frmMDI.cmdSelectOption(0)"});
    auto answers = Drive({"--today", "2026-04-01", "--seed", "1"}, commands);
    answers.erase(answers.begin(), answers.begin() + 2);
    return answers;
}

std::string Str(const std::string& answer) {
    auto value = Json::Parse(answer);
    return value && value->IsString() ? value->AsString() : "<" + answer + ">";
}

std::string Box(const std::string& text) {
    return R"({"text":")" + text +
           R"(","title":"Quillane","icon":"information","buttons":"ok","answer":"ok"})";
}

} // namespace

TEST(AstrologyWindow, OnlyTheChosenOptionsCombosCanBeChangedAndRefillTheirSubList) {
    auto a = InWindow({"get Caption",
                       "get Frame1.InFront",
                       "get cboLearnOptionMain.List",
                       "get cboTestOptionMain.List",
                       "get cboLearnOptionSub.ListCount",
                       "get cboTestOptionMain.Enabled",
                       "get strValues",
                       "set cboTestOptionMain.ListIndex 1",
                       "set cboLearnOptionMain.ListIndex 1",
                       "get cboLearnOptionSub.ListCount",
                       "set cboLearnOptionSub.ListIndex 2",
                       "click optOption(1)",
                       "set cboLearnOptionMain.ListIndex 2",
                       "get cboLearnOptionSub.Text",
                       "set cboTestOptionSub.ListIndex 4",
                       "set cboTestOptionMain.ListIndex 2",
                       "get cboTestOptionSub.ListIndex",
                       "get cboTestOptionSub.ListCount",
                       "set cboTestOptionSub.ListIndex 5",
                       "click cmdNext",
                       "get Frame3.InFront",
                       "get intMainIndex",
                       "get strSubCaption",
                       "get lblTest(0).Caption",
                       "get picTest.Visible"});
    EXPECT_EQ(a[0], R"("Quillane Learn Astrology")");
    EXPECT_EQ(a[1], "true");
    EXPECT_EQ(a[2], R"(["Learn By Signs","Learn By Planets","Learn By Houses"])");
    EXPECT_EQ(a[3], R"(["Test By Signs","Test By Planets","Test By Houses"])");
    EXPECT_EQ(a[4], "16");
    EXPECT_EQ(a[5], "false");
    EXPECT_EQ(a[6], "null") << "no run before Next";
    EXPECT_EQ(a[7], "error: disabled");
    EXPECT_EQ(a[9], "8") << "the planets' list";
    EXPECT_EQ(a[12], "error: disabled") << "the learn pair is shut while testing is chosen";
    EXPECT_EQ(a[13], R"("Keywords")") << "its selection stays";
    EXPECT_EQ(a[16], "0") << "a new main list starts its sub-list from the top";
    EXPECT_EQ(a[17], "7") << "the houses' list";
    EXPECT_EQ(a[20], "true");
    EXPECT_EQ(a[21], "2") << "the test pair was read, not the learn pair";
    EXPECT_EQ(a[22], R"("Mantra")");
    EXPECT_EQ(a[23], R"("Test By Houses")");
    EXPECT_EQ(a[24], "false") << "houses have no glyph";
}

TEST(AstrologyWindow, BrowsingStopsAtBothEndsWithItsMessages) {
    const struct {
        int main;
        int records;
        std::string last;
    } sets[] = {{0, 12, "Pisces"}, {1, 10, "Pluto"}, {2, 12, "12th House"}};
    for (const auto& set : sets) {
        std::vector<std::string> commands = {
            "set cboLearnOptionMain.ListIndex " + std::to_string(set.main), "click cmdNext",
            "click cmdBackDesc", "msgbox", "get intCurrent"};
        for (int i = 1; i < set.records; ++i)
            commands.push_back("click cmdNextDesc");
        commands.insert(commands.end(),
                        {"msgbox", "get lblLabel(2).Caption", "click cmdNextDesc", "msgbox",
                         "msgbox", "get intCurrent", "get lblLabel(2).Caption"});
        auto a = InWindow(commands);
        const std::size_t n = std::size_t(set.records - 1);
        EXPECT_EQ(a[3], Box("You are at the first record")) << set.main;
        EXPECT_EQ(a[4], "0");
        EXPECT_EQ(a[5 + n], "null") << "no box on the way";
        EXPECT_EQ(Str(a[6 + n]), set.last);
        EXPECT_EQ(a[8 + n], Box("You are at the last record")) << set.main;
        EXPECT_EQ(a[9 + n], "null") << "one box only";
        EXPECT_EQ(a[10 + n], std::to_string(set.records - 1));
        EXPECT_EQ(Str(a[11 + n]), set.last) << "the record shown stays";
    }
}

TEST(AstrologyWindow, RecordsShowTheirNameValueAndGlyphAndBackToMainErasesTheRun) {
    mla::LoadHouseTables();
    auto a = InWindow({"set cboLearnOptionSub.ListIndex 9", // Lucky Number
                       "click cmdNext",
                       "click cmdNextDesc",
                       "click cmdNextDesc",
                       "click cmdNextDesc",
                       "click cmdNextDesc",
                       "get lblLabel(0).Caption",
                       "get lblLabel(1).Caption",
                       "get lblLabel(2).Caption",
                       "get lblLabel(3).Caption",
                       "get picAstro.Picture",
                       "click cmdBackToMain(0)",
                       "get Frame1.InFront",
                       "get cboLearnOptionSub.ListIndex",
                       "get intCurrent",
                       "get strValues",
                       "click cmdNextDesc",
                       "set cboLearnOptionMain.ListIndex 1",
                       "click cmdNext",
                       "click cmdNextDesc",
                       "click cmdNextDesc",
                       "get lblLabel(2).Caption",
                       "get picAstro.Picture",
                       "click cmdBackToMain(0)",
                       "set cboLearnOptionMain.ListIndex 2",
                       "set cboLearnOptionSub.ListIndex 3",
                       "click cmdNext",
                       "get lblLabel(2).Caption",
                       "get picAstro.Visible",
                       "get lblLabel(3).Caption",
                       "get strNames"});
    EXPECT_EQ(a[6], R"("Learn By Signs")");
    EXPECT_EQ(a[7], R"("Lucky Number")");
    EXPECT_EQ(a[8], R"("Leo")");
    EXPECT_EQ(a[9], R"("8 && 9")") << "the doubled ampersand is stored";
    EXPECT_EQ(a[10], R"("imgSign 5")") << "the glyph shows with every sub-category";
    EXPECT_EQ(a[12], "true");
    EXPECT_EQ(a[13], "9") << "the choice stays";
    EXPECT_EQ(a[14], "0");
    EXPECT_EQ(a[15], "null");
    EXPECT_EQ(a[16], "error: hidden") << "the browsing panel is behind";
    EXPECT_EQ(a[21], R"("Jupiter")");
    EXPECT_EQ(a[22], R"("imgPlanet 3")") << "Jupiter is the third planet picture";
    EXPECT_EQ(a[27], R"("1st House")");
    EXPECT_EQ(a[28], "false");
    EXPECT_EQ(Str(a[29]), mla::strHouseAttributes[0]);
    auto names = Json::Parse(a[30]);
    ASSERT_TRUE(names && names->IsArray());
    EXPECT_EQ(names->AsArray()[0].AsString(), "Aries") << "house runs keep sign names as names";
}
