// The walk through the stones, through the driver: the picture number comes
// from the walk position, so selections that do not start at stone 0 show
// pictures of other stones; each end takes one press more than the stones.
#include "RunesDrive.h"
#include "runes/modLearnRunes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace quillane::testing;
using quillane::modLearnRunes::strStoneName;

std::string Img(int n) {
    return JsonQuote("IMG " + std::to_string(n));
}

// Unticks the groups not selected and presses cmdMemorize.
Script Select(const std::vector<int>& groups) {
    Script s = Runes();
    for (int g = 0; g <= 2; ++g)
        if (std::find(groups.begin(), groups.end(), g) == groups.end())
            s.Do("click .chkGroups(" + std::to_string(g) + ")");
    return s.Do("click .cmdMemorize");
}

TEST(RuneWalk, PicturesFollowThePositionNotTheStoneBothWays) {
    quillane::modLearnRunes::LoadRuneTables();
    for (const std::vector<int>& groups : {std::vector<int>{0, 1, 2}, {1}, {0, 2}}) {
        std::vector<int> stones;
        for (int g : groups)
            for (int s = 8 * g; s < 8 * g + 8; ++s)
                stones.push_back(s);
        const int n = int(stones.size());
        Script s = Select(groups);
        // Forward to the last stone and back to the first. Position 0 takes
        // the list's second entry as its number on the way in, which is one
        // more than the first stone; every other step its position + 1.
        for (int step = 0; step < 2 * n - 1; ++step) {
            const int p = step < n ? step : 2 * n - 2 - step;
            if (step > 0)
                s.Do(step < n ? "click .cmdNext" : "click .cmdBack");
            const int picture = step == 0 ? stones[1] : p + 1;
            s.Is("get .lblStoneName.Caption", JsonQuote(strStoneName[std::size_t(stones[p])]));
            s.Is("get .picStone(0).Picture", Img(picture));
            s.Is("get .picStone(1).Picture",
                 JsonQuote("IMG " + std::to_string(picture) + " rot180"));
            s.Is("get .picStone(2).Picture", Img(25), "the merkstave column is the blank stone");
        }
        RunesSession().Run(s);
    }
}

TEST(RuneWalk, EachEndTakesOneMorePress) {
    Script s = Select({0});
    for (int i = 0; i < 7; ++i)
        s.Do("click .cmdNext");
    s.Is("get .cmdNext.Enabled", "true", "the last stone still offers Next");
    s.Is("msgbox", "null");
    s.Do("click .cmdNext");
    s.Is("msgbox", R"({"text":"You Are Ready To Give Test\rAre You Sure You Want To Give Test",)"
                   R"("title":"Quillane","icon":"information","buttons":"yesno","answer":"no"})");
    s.Is("get .cmdNext.Enabled", "false");
    s.Is("get modLearnRunes.intStoneIndex", "7");
    s.Is("get .lblStoneName.Caption", JsonQuote("Wunjo"), "No leaves the last stone on show");
    for (int i = 0; i < 7; ++i)
        s.Do("click .cmdBack");
    s.Is("get .cmdBack.Enabled", "true", "back on the first stone, Back is still enabled");
    s.Do("click .cmdBack");
    s.Is("get .cmdBack.Enabled", "false");
    s.Is("get .lblStoneName.Caption", JsonQuote("Fehu"));
    s.Do({"answer yes", "click .cmdNext"});
    for (int i = 0; i < 7; ++i)
        s.Do("click .cmdNext");
    s.Has("msgbox", "You Are Ready To Give Test");
    s.Is("get .fraTestSubjects.InFront", "true", "Yes opens the test set-up");
    RunesSession().Run(s);
}

// The subject button sets the position back but leaves the stone on show;
// an empty selection after a valid save still walks, on what it can read.
TEST(RuneWalk, SubjectButtonAndAnEmptySelectionLeaveTheWalkStanding) {
    Script s = Runes();
    s.Do({"click .cmdSubjects(1)", "click .cmdNext", "click .cmdNext", "click .cmdSubjects(1)"});
    s.Is("get .lblStoneName.Caption", JsonQuote("Thurisaz"));
    s.Is("get .cmdBack.Enabled", "false");
    s.Is("get modLearnRunes.intStoneIndex", "0");
    s.Do("click .cmdNext");
    s.Is("get .lblStoneName.Caption", JsonQuote("Uruz"), "Next shows the list's entry 1");
    s.Is("get .txtKeywords.Text", JsonQuote("Beginnings, Spirituality, Opportunity, Harmony"));
    s.Is("get .txtAlternativeNames.Text", JsonQuote("Uraz, Uros, Ur"));
    s.Do({"click .cmdSubjects(0)", "click .cmdSaveSettings", "click .chkGroups(0)",
          "click .chkGroups(1)", "click .chkGroups(2)", "click .cmdMemorize"});
    s.Has("msgbox", "Please Select A Stone Group");
    s.Is("setting StoneGroup0", "\"1\"", "nothing stored");
    s.Is("get modLearnRunes.intSelectedStone", "[0]");
    s.Is("get .lblStoneName.Caption", JsonQuote("Fehu"));
    s.Is("get .picStone(0).Picture", Img(2), "the list has no entry 1: the old picture stays");
    s.Is("get .picStone(1).Picture", Img(2), "turned once more, back upright");
    s.Is("get .picMemorizeStones.InFront", "true");
    s.Do("click .cmdNext");
    s.Has("msgbox", "You Are Ready To Give Test");
    s.Is("get modLearnRunes.intStoneIndex", "-1");
    s.Is("forms", R"(["frmMDI","frmLearnRunesMain"])", "the window never stops");
    RunesSession().Run(s);
}

} // namespace
