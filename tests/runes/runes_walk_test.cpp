// The walk through the stones, through the driver: the picture number comes
// from the walk position, so selections that do not start at stone 0 show
// pictures of other stones; each end takes one press more than the stones.
#include "RunesDrive.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace quillane::testing;

const char* const kNames[24] = {"Fehu",   "Uruz",    "Thurisaz", "Ansuz",   "Raidho", "Kenaz",
                                "Gebo",   "Wunjo",   "Hagalaz",  "Nauthiz", "Isa",    "Jera",
                                "Eihwaz", "Perthro", "Algiz",    "Sowilo",  "Tiwaz",  "Berkano",
                                "Ehwaz",  "Mannaz",  "Laguz",    "Ingwaz",  "Dagaz",  "Othala"};

std::string Img(int n) {
    return Quoted("IMG " + std::to_string(n));
}

// Unticks the groups not selected and presses cmdMemorize.
std::vector<std::string> Select(const std::vector<int>& groups) {
    std::vector<std::string> commands;
    for (int g = 0; g <= 2; ++g)
        if (std::find(groups.begin(), groups.end(), g) == groups.end())
            commands.push_back("click frmLearnRunesMain.chkGroups(" + std::to_string(g) + ")");
    commands.push_back("click frmLearnRunesMain.cmdMemorize");
    return commands;
}

TEST(RuneWalk, PicturesFollowThePositionNotTheStone) {
    const std::vector<std::vector<int>> selections = {{0, 1, 2}, {0}, {1}, {2}, {0, 2}, {1, 2}};
    for (const auto& groups : selections) {
        std::vector<int> stones;
        for (int g : groups)
            for (int s = 8 * g; s < 8 * g + 8; ++s)
                stones.push_back(s);
        auto commands = Select(groups);
        const std::size_t first = commands.size();
        for (std::size_t p = 0; p < stones.size(); ++p) {
            if (p > 0)
                commands.push_back("click frmLearnRunesMain.cmdNext");
            commands.push_back("get frmLearnRunesMain.lblStoneName.Caption");
            commands.push_back("get frmLearnRunesMain.picStone(0).Picture");
            commands.push_back("get frmLearnRunesMain.picStone(1).Picture");
            commands.push_back("get frmLearnRunesMain.picStone(2).Picture");
        }
        RunesSession session;
        const auto a = session.Run(commands);
        std::size_t k = first;
        for (std::size_t p = 0; p < stones.size(); ++p) {
            if (p > 0) {
                ASSERT_EQ(a[k++], "ok");
            }
            // Position 0 takes the list's second entry as its number, which is
            // one more than the first stone; later positions their own p + 1.
            const int picture = p == 0 ? stones[1] : int(p) + 1;
            EXPECT_EQ(a[k++], Quoted(kNames[stones[p]])) << "position " << p;
            EXPECT_EQ(a[k++], Img(picture)) << "position " << p;
            EXPECT_EQ(a[k++], Quoted("IMG " + std::to_string(picture) + " rot180"));
            EXPECT_EQ(a[k++], Img(25)) << "the merkstave column is always the blank stone";
        }
    }
}

TEST(RuneWalk, SecondAettShowsOtherStonesPicturesBothWays) {
    RunesSession session;
    auto commands = Select({1});
    commands.insert(
        commands.end(),
        {"get modLearnRunes.intSelectedStone", "click frmLearnRunesMain.cmdNext",
         "click frmLearnRunesMain.cmdBack", "get frmLearnRunesMain.lblStoneName.Caption",
         "get frmLearnRunesMain.picStone(0).Picture", "get frmLearnRunesMain.txtMeaning(0).Text"});
    const auto a = session.Run(commands);
    const std::size_t k = commands.size() - 6;
    EXPECT_EQ(a[k], "[8,9,10,11,12,13,14,15,0]");
    EXPECT_EQ(a[k + 3], Quoted("Hagalaz"));
    EXPECT_EQ(a[k + 4], Img(1)) << "stepping back onto position 0 shows Fehu's picture";
    EXPECT_EQ(a[k + 5].rfind("\"This rune means 'hail' with respect to hailstones.", 0), 0u);
}

TEST(RuneWalk, EachEndTakesOneMorePress) {
    auto commands = Select({0});
    for (int i = 0; i < 7; ++i)
        commands.push_back("click frmLearnRunesMain.cmdNext");
    commands.insert(commands.end(),
                    {"get frmLearnRunesMain.cmdNext.Enabled", "msgbox",
                     "click frmLearnRunesMain.cmdNext", "msgbox",
                     "get frmLearnRunesMain.cmdNext.Enabled", "get modLearnRunes.intStoneIndex",
                     "get frmLearnRunesMain.lblStoneName.Caption",
                     "get frmLearnRunesMain.picMemorizeStones.InFront"});
    for (int i = 0; i < 7; ++i)
        commands.push_back("click frmLearnRunesMain.cmdBack");
    commands.insert(commands.end(),
                    {"get frmLearnRunesMain.cmdBack.Enabled", "click frmLearnRunesMain.cmdBack",
                     "get frmLearnRunesMain.cmdBack.Enabled",
                     "get frmLearnRunesMain.lblStoneName.Caption", "answer yes",
                     "click frmLearnRunesMain.cmdNext"});
    for (int i = 0; i < 7; ++i)
        commands.push_back("click frmLearnRunesMain.cmdNext");
    commands.insert(commands.end(), {"msgbox", "get frmLearnRunesMain.fraTestSubjects.InFront"});
    const auto a = RunesSession().Run(commands);
    std::size_t k = Select({0}).size() + 7;
    EXPECT_EQ(a[k], "true") << "the last stone still offers Next";
    EXPECT_EQ(a[k + 1], "null");
    EXPECT_EQ(
        a[k + 3],
        R"({"text":"You Are Ready To Give Test\rAre You Sure You Want To Give Test","title":"Quillane","icon":"information","buttons":"yesno","answer":"no"})");
    EXPECT_EQ(a[k + 4], "false");
    EXPECT_EQ(a[k + 5], "7");
    EXPECT_EQ(a[k + 6], Quoted("Wunjo")) << "No leaves the last stone on show";
    EXPECT_EQ(a[k + 7], "true");
    k += 8 + 7;
    EXPECT_EQ(a[k], "true") << "back on the first stone, Back is still enabled";
    EXPECT_EQ(a[k + 2], "false");
    EXPECT_EQ(a[k + 3], Quoted("Fehu"));
    k += 6 + 7;
    EXPECT_NE(a[k].find("You Are Ready To Give Test"), std::string::npos);
    EXPECT_EQ(a[k + 1], "true") << "Yes opens the test set-up";
}

TEST(RuneWalk, SubjectButtonResetsThePositionButNotTheStone) {
    const auto a = RunesSession().Run(
        {"click frmLearnRunesMain.cmdSubjects(1)", "click frmLearnRunesMain.cmdNext",
         "click frmLearnRunesMain.cmdNext", "click frmLearnRunesMain.cmdSubjects(1)",
         "get frmLearnRunesMain.lblStoneName.Caption", "get frmLearnRunesMain.cmdBack.Enabled",
         "get modLearnRunes.intStoneIndex", "click frmLearnRunesMain.cmdNext",
         "get frmLearnRunesMain.lblStoneName.Caption", "get frmLearnRunesMain.txtKeywords.Text",
         "get frmLearnRunesMain.txtAlternativeNames.Text"});
    EXPECT_EQ(a[4], Quoted("Thurisaz"));
    EXPECT_EQ(a[5], "false");
    EXPECT_EQ(a[6], "0");
    EXPECT_EQ(a[8], Quoted("Uruz")) << "Next shows the list's entry 1";
    EXPECT_EQ(a[9], Quoted("Beginnings, Spirituality, Opportunity, Harmony"));
    EXPECT_EQ(a[10], Quoted("Uraz, Uros, Ur"));
}

TEST(RuneWalk, EmptySelectionAfterAValidSaveStillWalks) {
    const auto a = RunesSession().Run(
        {"click frmLearnRunesMain.cmdSubjects(1)", "click frmLearnRunesMain.cmdNext",
         "click frmLearnRunesMain.cmdSubjects(0)", "click frmLearnRunesMain.cmdSaveSettings",
         "click frmLearnRunesMain.chkGroups(0)", "click frmLearnRunesMain.chkGroups(1)",
         "click frmLearnRunesMain.chkGroups(2)", "click frmLearnRunesMain.cmdMemorize", "msgbox",
         "get modLearnRunes.intSelectedStone", "get frmLearnRunesMain.lblStoneName.Caption",
         "get frmLearnRunesMain.picStone(0).Picture", "get frmLearnRunesMain.picStone(1).Picture",
         "get frmLearnRunesMain.picMemorizeStones.InFront", "click frmLearnRunesMain.cmdNext",
         "msgbox", "get modLearnRunes.intStoneIndex", "forms"});
    EXPECT_NE(a[8].find("Please Select A Stone Group"), std::string::npos);
    EXPECT_EQ(a[9], "[0]");
    EXPECT_EQ(a[10], Quoted("Fehu"));
    EXPECT_EQ(a[11], Img(2)) << "the list has no entry 1: the old picture stays";
    EXPECT_EQ(a[12], Img(2)) << "turned once more, back upright";
    EXPECT_EQ(a[13], "true");
    EXPECT_NE(a[15].find("You Are Ready To Give Test"), std::string::npos);
    EXPECT_EQ(a[16], "-1");
    EXPECT_EQ(a[17], R"(["frmMDI","frmLearnRunesMain"])") << "the window never stops";
}

} // namespace
