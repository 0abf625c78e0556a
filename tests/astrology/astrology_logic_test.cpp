// The Astrology window through the driver: the choice panel and its combos,
// browsing and its two ends, and a whole test from the launcher to the report
// and back.
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

// Opens the window from the launcher, runs the commands and answers theirs.
std::vector<std::string> InWindow(std::vector<std::string> commands, int seed = 1) {
    commands.insert(commands.begin(), {"start", "click frmMDI.cmdSelectOption(0)"});
    auto answers = Drive({"--today", "2026-04-01", "--seed", std::to_string(seed)}, commands);
    answers.erase(answers.begin(), answers.begin() + 2);
    return answers;
}

std::string Str(const std::string& answer) {
    auto value = Json::Parse(answer);
    return value && value->IsString() ? value->AsString() : "<" + answer + ">";
}

const char* const kLastRecord =
    R"({"text":"You are at the last record","title":"Quillane","icon":"information","buttons":"ok","answer":"ok"})";
const char* const kFirstRecord =
    R"({"text":"You are at the first record","title":"Quillane","icon":"information","buttons":"ok","answer":"ok"})";

} // namespace

TEST(AstrologyWindow, OpensOnTheChoiceWithItsCaptionsAndCombos) {
    auto a = InWindow({"get " + F + "Caption",
                       "get " + F + "Frame1.InFront",
                       "get " + F + "Label1(0).Caption",
                       "get " + F + "Label1(2).Caption",
                       "get " + F + "optOption(0).Caption",
                       "get " + F + "optOption(0).Value",
                       "get " + F + "optOption(1).Caption",
                       "get " + F + "cboLearnOptionMain.List",
                       "get " + F + "cboTestOptionMain.List",
                       "get " + F + "cboLearnOptionSub.ListCount",
                       "get " + F + "cboTestOptionSub.ListIndex",
                       "get " + F + "cboLearnOptionMain.Enabled",
                       "get " + F + "cboTestOptionMain.Enabled",
                       "get " + F + "cboTestOptionSub.Enabled",
                       "get " + F + "cmdNext.Caption",
                       "get " + F + "cmdBackToMain(0).Caption",
                       "get " + F + "cmdBackToMain(1).Caption",
                       "get " + F + "cmdNextQuestion.Caption",
                       "get " + F + "optAnswer_Choice(0).Value",
                       "get " + F + "lblTest(3).Caption",
                       "get " + F + "intCurrent",
                       "get " + F + "strValues",
                       "get " + F + "nuFile.Caption",
                       "get " + F + "Label61.Caption"});
    EXPECT_EQ(a[0], R"("Quillane Learn Astrology")");
    EXPECT_EQ(a[1], "true");
    EXPECT_EQ(Str(a[2]), "Welcome to the world of learning the significance of astrology, signs, "
                         "stars, planets and houses!");
    EXPECT_EQ(Str(a[3]), "Select one option below and click on the Next button to continue.");
    EXPECT_EQ(a[4], R"("Learn Option")");
    EXPECT_EQ(a[5], "true");
    EXPECT_EQ(a[6], R"("Test Criteria")");
    EXPECT_EQ(a[7], R"(["Learn By Signs","Learn By Planets","Learn By Houses"])");
    EXPECT_EQ(a[8], R"(["Test By Signs","Test By Planets","Test By Houses"])");
    EXPECT_EQ(a[9], "16");
    EXPECT_EQ(a[10], "0");
    EXPECT_EQ(a[11], "true");
    EXPECT_EQ(a[12], "false");
    EXPECT_EQ(a[13], "false");
    EXPECT_EQ(a[14], R"("Next")");
    EXPECT_EQ(a[15], R"("&Back To Main")");
    EXPECT_EQ(a[16], R"("&Back To Main")");
    EXPECT_EQ(a[17], R"("Next Question")");
    EXPECT_EQ(a[18], "true");
    EXPECT_EQ(a[19], R"("Select one option from the given choices below.")");
    EXPECT_EQ(a[20], "0");
    EXPECT_EQ(a[21], "null");
    EXPECT_EQ(a[22], R"("&File")");
    EXPECT_NE(a[23].rfind("error", 0), 0u) << a[23];
}

TEST(AstrologyWindow, AMainComboRefillsItsSubListFromTheTop) {
    const struct {
        std::string pair;
        std::string option;
    } pairs[] = {{"Learn", "optOption(0)"}, {"Test", "optOption(1)"}};
    const std::pair<int, std::string> lists[] = {{1, R"(8)"}, {2, R"(7)"}, {0, R"(16)"}};
    for (const auto& [pair, option] : pairs) {
        std::vector<std::string> commands = {"click " + F + option};
        for (const auto& [main, count] : lists) {
            commands.push_back("set " + F + "cbo" + pair + "OptionSub.ListIndex 5");
            commands.push_back("set " + F + "cbo" + pair + "OptionMain.ListIndex " +
                               std::to_string(main));
            commands.push_back("get " + F + "cbo" + pair + "OptionSub.ListCount");
            commands.push_back("get " + F + "cbo" + pair + "OptionSub.ListIndex");
            commands.push_back("get " + F + "cbo" + pair + "OptionSub.Text");
        }
        auto a = InWindow(commands);
        const char* firsts[] = {"Glyphs (Image)", "House Name", "Glyphs (Image)"};
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(a[1 + 5 * i], "ok") << pair;
            EXPECT_EQ(a[3 + 5 * i], lists[i].second) << pair << " main " << lists[i].first;
            EXPECT_EQ(a[4 + 5 * i], "0") << pair;
            EXPECT_EQ(Str(a[5 + 5 * i]), firsts[i]) << pair;
        }
    }
}

TEST(AstrologyWindow, OnlyTheChosenOptionsCombosCanBeChangedAndRead) {
    auto a = InWindow(
        {"set " + F + "cboTestOptionMain.ListIndex 1",
         "set " + F + "cboLearnOptionMain.ListIndex 1",
         "set " + F + "cboLearnOptionSub.ListIndex 2", "click " + F + "optOption(1)",
         "set " + F + "cboLearnOptionMain.ListIndex 2", "get " + F + "cboLearnOptionMain.ListIndex",
         "get " + F + "cboLearnOptionSub.Text", "set " + F + "cboTestOptionMain.ListIndex 2",
         "set " + F + "cboTestOptionSub.ListIndex 4", "click " + F + "cmdNext",
         "get " + F + "Frame3.InFront", "get " + F + "intMainIndex", "get " + F + "strSubCaption",
         "get " + F + "lblTest(0).Caption", "get " + F + "picTest.Visible"});
    EXPECT_EQ(a[0], "error: disabled");
    EXPECT_EQ(a[4], "error: disabled") << "the learn pair is shut while testing is chosen";
    EXPECT_EQ(a[5], "1") << "its selection stays";
    EXPECT_EQ(a[6], R"("Keywords")");
    EXPECT_EQ(a[10], "true");
    EXPECT_EQ(a[11], "2") << "the test pair was read, not the learn pair";
    EXPECT_EQ(a[12], R"("Keywords")");
    EXPECT_EQ(a[13], R"("Test By Houses")");
    EXPECT_EQ(a[14], "false") << "houses have no glyph";
}

TEST(AstrologyWindow, BrowsingStopsAtBothEndsWithItsMessages) {
    const struct {
        int main;
        int records;
        std::string last;
    } sets[] = {{0, 12, "Pisces"}, {1, 10, "Pluto"}, {2, 12, "12th House"}};
    for (const auto& set : sets) {
        std::vector<std::string> commands = {"set " + F + "cboLearnOptionMain.ListIndex " +
                                                 std::to_string(set.main),
                                             "click " + F + "cmdNext", "click " + F + "cmdBackDesc",
                                             "msgbox", "get " + F + "intCurrent"};
        for (int i = 1; i < set.records; ++i)
            commands.push_back("click " + F + "cmdNextDesc");
        commands.insert(commands.end(),
                        {"msgbox", "get " + F + "lblLabel(2).Caption", "click " + F + "cmdNextDesc",
                         "msgbox", "msgbox", "get " + F + "intCurrent",
                         "get " + F + "lblLabel(2).Caption", "get " + F + "strValues"});
        auto a = InWindow(commands);
        const std::size_t n = std::size_t(set.records - 1);
        EXPECT_EQ(a[3], kFirstRecord) << set.main;
        EXPECT_EQ(a[4], "0");
        EXPECT_EQ(a[5 + n], "null") << "no box on the way";
        EXPECT_EQ(Str(a[6 + n]), set.last);
        EXPECT_EQ(a[8 + n], kLastRecord) << set.main;
        EXPECT_EQ(a[9 + n], "null") << "one box only";
        EXPECT_EQ(a[10 + n], std::to_string(set.records - 1));
        EXPECT_EQ(Str(a[11 + n]), set.last) << "the record shown stays";
        auto values = Json::Parse(a[12 + n]);
        ASSERT_TRUE(values && values->IsArray());
        EXPECT_EQ(values->AsArray().size(), std::size_t(set.records + 1));
    }
}

TEST(AstrologyWindow, RecordsShowTheirNameValueAndGlyph) {
    mla::LoadSignTables();
    mla::LoadHouseTables();
    auto a = InWindow({"set " + F + "cboLearnOptionSub.ListIndex 9", // Lucky Number
                       "click " + F + "cmdNext",
                       "click " + F + "cmdNextDesc",
                       "click " + F + "cmdNextDesc",
                       "click " + F + "cmdNextDesc",
                       "click " + F + "cmdNextDesc",
                       "get " + F + "lblLabel(0).Caption",
                       "get " + F + "lblLabel(1).Caption",
                       "get " + F + "lblLabel(2).Caption",
                       "get " + F + "lblLabel(3).Caption",
                       "get " + F + "picAstro.Picture",
                       "get " + F + "picAstro.Visible",
                       "click " + F + "cmdBackToMain(0)",
                       "set " + F + "cboLearnOptionMain.ListIndex 1",
                       "click " + F + "cmdNext",
                       "click " + F + "cmdNextDesc",
                       "click " + F + "cmdNextDesc",
                       "get " + F + "lblLabel(2).Caption",
                       "get " + F + "picAstro.Picture",
                       "click " + F + "cmdBackToMain(0)",
                       "set " + F + "cboLearnOptionMain.ListIndex 2",
                       "set " + F + "cboLearnOptionSub.ListIndex 3",
                       "click " + F + "cmdNext",
                       "get " + F + "lblLabel(2).Caption",
                       "get " + F + "picAstro.Visible",
                       "get " + F + "lblLabel(2).Visible",
                       "get " + F + "lblLabel(3).Caption",
                       "get " + F + "strNames"});
    EXPECT_EQ(a[6], R"("Learn By Signs")");
    EXPECT_EQ(a[7], R"("Lucky Number")");
    EXPECT_EQ(a[8], R"("Leo")");
    EXPECT_EQ(a[9], R"("8 && 9")") << "the doubled ampersand is stored";
    EXPECT_EQ(a[10], R"("imgSign 5")") << "the glyph shows with every sub-category";
    EXPECT_EQ(a[11], "true");
    EXPECT_EQ(a[17], R"("Jupiter")");
    EXPECT_EQ(a[18], R"("imgPlanet 3")") << "Jupiter is the third planet picture";
    EXPECT_EQ(a[23], R"("1st House")");
    EXPECT_EQ(a[24], "false");
    EXPECT_EQ(a[25], "true");
    EXPECT_EQ(Str(a[26]), mla::strHouseAttributes[0]);
    auto names = Json::Parse(a[27]);
    ASSERT_TRUE(names && names->IsArray());
    EXPECT_EQ(names->AsArray()[0].AsString(), "Aries") << "house runs keep sign names as names";
}

TEST(AstrologyWindow, BackToMainKeepsTheChoiceAndErasesTheRun) {
    auto a = InWindow({"set " + F + "cboLearnOptionMain.ListIndex 1",
                       "set " + F + "cboLearnOptionSub.ListIndex 4", "click " + F + "cmdNext",
                       "click " + F + "cmdNextDesc", "click " + F + "cmdBackToMain(0)",
                       "get " + F + "Frame1.InFront", "get " + F + "cboLearnOptionMain.ListIndex",
                       "get " + F + "cboLearnOptionSub.ListIndex", "get " + F + "intCurrent",
                       "get " + F + "strValues", "get " + F + "strNames",
                       "click " + F + "cmdNextDesc", "click " + F + "cmdNext",
                       "get " + F + "lblLabel(2).Caption", "get " + F + "lblLabel(1).Caption"});
    EXPECT_EQ(a[5], "true");
    EXPECT_EQ(a[6], "1");
    EXPECT_EQ(a[7], "4");
    EXPECT_EQ(a[8], "0");
    EXPECT_EQ(a[9], "null");
    EXPECT_EQ(a[10], "null");
    EXPECT_EQ(a[11], "error: hidden") << "the browsing panel is behind";
    EXPECT_EQ(a[13], R"("Sun")") << "one click repeats the run from its start";
    EXPECT_EQ(a[14], R"("Negative Traits")");
}
