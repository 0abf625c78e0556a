// The Tarot window through the driver: the selection rules, the walk, and
// whole tests at every level, their reports checked against the answers given.
#include "TarotSession.h"
#include "cards/modDB.h"
#include "common/Numbers.h"
#include "tarot/frmLearnTarotMain.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <set>

using namespace quillane;
using quillane::testing::kForm;
using quillane::testing::Tarot;

namespace {

TEST_F(Tarot, TheSelectionRulesChooseTheirCards) {
    EXPECT_EQ(Number("SSTab1.Tab"), 1);
    Click("cmdSetOption");
    EXPECT_EQ(modDB::rsCards->RecordCount(), 78) << "a first start ticks every group";

    Click("mnuTabSettings");
    EXPECT_FALSE(Get("SSTab1.TabEnabled(2)").AsBool()) << "entering the settings ends the walk";
    Untick({"chkMinor"});
    EXPECT_FALSE(Get("chkGroup(0).Enabled").AsBool());
    EXPECT_EQ(Number("chkGroup(0).Value"), 1) << "the groups keep their ticks";
    Click("cmdSetOption");
    EXPECT_EQ(modDB::rsCards->RecordCount(), 22)
        << "groups drop out while the minor arcana are off";

    Click("mnuTabSettings");
    Do("set frmLearnTarotMain.chkMinor.Value 1");
    Untick({"chkMajor", "chkGroup(1)", "chkGroup(2)", "chkGroup(3)", "chkGroup(0)"});
    EXPECT_EQ(Number("chkGroup(0).Value"), 1) << "the last group can't be unticked";
    Click("cmdSetOption");
    EXPECT_EQ(modDB::rsCards->RecordCount(), 14);

    Click("mnuTabSettings");
    Do("set frmLearnTarotMain.chkMajor.Value 1");
    Do("set frmLearnTarotMain.chkGroup(0).Value 1");
    Untick({"chkGroup(1)"});
    EXPECT_EQ(static_cast<frmLearnTarotMain*>(program.App().Find(kForm))->BuildCardQuery(),
              "SELECT * FROM tblCards WHERE (Group=0) OR (Group=1) ORDER BY ID");
    Untick({"chkMajor", "chkMinor"});
    EXPECT_FALSE(Get("cmdNext.Enabled").AsBool());
    EXPECT_FALSE(Get("chkReversed.Enabled").AsBool());
    Click("cmdStartTest2");
    EXPECT_EQ(
        Run("msgbox"),
        R"({"text":"Select at least one option.","title":"Quillane","icon":"none","buttons":"ok","answer":"ok"})");
    EXPECT_EQ(Number("SSTab1.Tab"), 1);
}

// Each stored setting, once ticked and once not, is what the next window
// opens with.
TEST_F(Tarot, SavedSettingsAreWhatTheNextWindowOpensWith) {
    const std::vector<std::string> boxes = {"chkGroup(0)", "chkGroup(1)", "chkGroup(2)",
                                            "chkGroup(3)", "chkMajor",    "chkMinor"};
    for (const std::string ticks : {"010110", "101001"}) {
        Do("set frmLearnTarotMain.chkMinor.Value 1"); // the groups can be changed
        for (std::size_t i = 0; i < boxes.size(); ++i)
            Do("set frmLearnTarotMain." + boxes[i] + ".Value " + ticks[i]);
        const std::string level = ticks[0] == '0' ? "2" : "1", type = ticks.substr(0, 1);
        Do("set frmLearnTarotMain.optDifficulty(" + level + ").Value true");
        Do("set frmLearnTarotMain.optTestType(" + type + ").Value true");
        Click("cmdSaveSettings");
        Do("close frmLearnTarotMain");
        Do("click frmMDI.cmdSelectOption(2)");
        for (std::size_t i = 0; i < boxes.size(); ++i)
            EXPECT_EQ(Number(boxes[i] + ".Value"), ticks[i] - '0') << boxes[i];
        EXPECT_TRUE(Get("optDifficulty(" + level + ").Value").AsBool());
        EXPECT_TRUE(Get("optTestType(" + type + ").Value").AsBool());
    }
}

// The major arcana: the walk stops one press past each end, and a test of
// them takes back a tick too many.
TEST_F(Tarot, TheWalkStopsOnePressPastEachEndAndATickTooManyIsTakenBack) {
    Untick({"chkMinor"});
    Click("cmdSetOption");
    EXPECT_EQ(Text("picCardMemorizeReversed.Picture"), Text("picCardMemorize.Picture") + " rot180");
    const std::string keywords = Text("txtKeywords.Text");
    EXPECT_EQ(keywords.substr(keywords.size() - 2), ", ");
    EXPECT_EQ(std::count(keywords.begin(), keywords.end(), ','), 7);
    for (int i = 1; i < 22; ++i)
        Click("cmdNext");
    EXPECT_EQ(Text("lblCardNameMemorize.Caption"), "The World");
    EXPECT_TRUE(Get("cmdNext.Enabled").AsBool()) << "the last card is reached, not yet passed";
    Click("cmdNext");
    EXPECT_FALSE(Get("cmdNext.Enabled").AsBool());
    EXPECT_EQ(Text("lblCardNameMemorize.Caption"), "The World");

    Click("mnuTabGoals");
    Do("set frmLearnTarotMain.SSTab1.Tab 2");
    EXPECT_EQ(Text("lblCardNameMemorize.Caption"), "The Fool") << "each entry starts afresh";
    EXPECT_FALSE(Get("cmdNext.Enabled").AsBool()) << "but keeps the disabled button";
    Click("cmdPrevious");
    EXPECT_FALSE(Get("cmdPrevious.Enabled").AsBool());
    EXPECT_TRUE(Get("cmdNext.Enabled").AsBool());

    Click("mnuTabSettings");
    Click("cmdStartTest2");
    for (int i = 0; i < 3; ++i)
        Click("chkKeywords(" + std::to_string(i) + ")");
    EXPECT_TRUE(Get("cmdNextQuestion.Enabled").AsBool());
    Click("chkKeywords(3)");
    EXPECT_EQ(Number("chkKeywords(3).Value"), 0);
    EXPECT_EQ(
        Json::Parse(Run("msgbox"))->Find("text")->AsString(),
        "You can select only 3 keywords.\r\nPlease unselect one before selecting another keyword");
    Click("chkKeywords(0)");
    EXPECT_FALSE(Get("cmdNextQuestion.Enabled").AsBool()) << "two ticks are not an answer";
}

// A whole test of the major arcana at one level, its report checked against
// the answers given: question n is answered right when n is odd
// (description), or with n mod (number to tick + 1) right keywords.
struct WholeTest : Tarot, ::testing::WithParamInterface<std::tuple<int, bool>> {};

TEST_P(WholeTest, TheReportListsEveryAnswerAsGiven) {
    const auto [level, description] = GetParam();
    const auto at = [](const char* array, int i, const std::string& property = "") {
        return array + ("(" + std::to_string(i) + ")") + property;
    };
    Untick({"chkMinor"});
    Do("set frmLearnTarotMain." + at("optDifficulty", level, ".Value true"));
    Do("set frmLearnTarotMain." + at("optTestType", description ? 0 : 1, ".Value true"));
    if (description)
        Do("set frmLearnTarotMain.chkReversed.Value 1");
    Click("cmdStartTest2");
    std::set<std::string> normal, reversed;
    for (long row = 0; row < 22; ++row) {
        modDB::rsCards->MoveFirst();
        modDB::rsCards->Move(row);
        normal.insert(modDB::rsCards->Field("normalmeaning").AsString());
        reversed.insert(modDB::rsCards->Field("reversedmeaning").AsString());
    }
    const int offered = description ? 3 + 2 * level : 7 + (level == 0 ? 0 : level == 1 ? 5 : 13);
    const int toTick = 3 + 2 * level;
    std::vector<std::string> names;
    std::vector<long> expected;
    long reversedSeen = 0;
    for (int q = 1; q <= 22; ++q) {
        ASSERT_EQ(Text("lblQCount.Caption"), std::to_string(q) + " of 22");
        names.push_back(Text("lblCardName.Caption"));
        if (description) {
            const bool turned = Text("lblIsReversed.Caption") == "Reversed";
            reversedSeen += turned;
            const int first = 3 - (offered - 1) / 2;
            int right = -1, wrong = -1;
            for (int i = 0; i <= 6; ++i) {
                const bool inUse = i >= first && i < first + offered;
                ASSERT_EQ(Get(at("optAnswer", i, ".Visible")).AsBool(), inUse);
                if (!inUse)
                    continue;
                EXPECT_TRUE(
                    (turned ? reversed : normal).count(Text(at("optAnswer", i, ".Caption"))))
                    << "a reversed card is offered reversed meanings only";
                (Text(at("optAnswer", i, ".Tag")) == "True" ? right : wrong) = i;
            }
            expected.push_back(q % 2);
            Click(at("optAnswer", q % 2 ? right : wrong));
        } else {
            EXPECT_EQ(Text("lblMaxKeyword.Caption"),
                      "You must choose " + std::to_string(toTick) + " keywords");
            EXPECT_TRUE(offered == 20 || !Get(at("chkKeywords", offered, ".Visible")).AsBool());
            std::set<int> positions;
            const Json drawn = Get("lngKeywordPositions");
            for (const Json& p : drawn.AsArray())
                positions.insert(int(p.AsInt()));
            expected.push_back(q % (toTick + 1));
            int ticked = 0;
            for (int p : positions)
                if (ticked < expected.back() && ++ticked)
                    Click(at("chkKeywords", p));
            for (int i = 0; i < offered && ticked < toTick; ++i)
                if (!positions.count(i) && ++ticked)
                    Click(at("chkKeywords", i));
        }
        EXPECT_EQ(Run("focus frmLearnTarotMain"), "\"cmdNextQuestion\"");
        Click("cmdNextQuestion");
    }
    EXPECT_EQ(
        Run("msgbox"),
        R"({"text":"Test Complete","title":"Quillane","icon":"information","buttons":"ok","answer":"ok"})");
    EXPECT_EQ(Number("SSTab1.Tab"), 4);
    if (description) {
        EXPECT_GT(reversedSeen, 0);
        EXPECT_LT(reversedSeen, 22);
    }
    // The report, line by line.
    std::vector<std::string> lines;
    std::string report = Text("txtResult.Text");
    for (std::size_t at = 0; at <= report.size();) {
        const std::size_t end = std::min(report.find("\r\n", at), report.size());
        lines.push_back(report.substr(at, end - at));
        at = end + 2;
    }
    ASSERT_EQ(lines.size(), 22u + 5);
    // A card comes again only when as many draws as there are cards all fell on
    // cards asked before: now and then, near the end.
    EXPECT_GE(std::set<std::string>(names.begin(), names.end()).size(), 20u);
    EXPECT_EQ(lines[0], "Test Report For Quillane");
    const Json flags = Get("blnReversedFlags");
    long correct = 0;
    for (std::size_t i = 0; i < 22; ++i) {
        const std::string card = Format00(long(i) + 1) + ".      " + names[i] +
                                 (flags.AsArray()[i].AsBool() ? " (Reversed)" : "");
        const std::string verdict = description ? (expected[i] ? "Correct" : "Wrong")
                                                : std::to_string(expected[i]) + " Out Of " +
                                                      std::to_string(toTick) + " Correct";
        EXPECT_EQ(lines[3 + i], card + std::string(45 - card.size(), ' ') + verdict)
            << "the verdicts stand in one column";
        correct += description ? expected[i] : expected[i] + (expected[i] == 1);
    }
    const std::string summary = description
                                    ? std::to_string(correct) + " out of 22 questions correct"
                                    : std::to_string(correct) + "/" + std::to_string(22 * toTick) +
                                          " choice(s) from 22 questions were correct";
    EXPECT_EQ(lines[26], summary) << "a keyword question with one right counts twice";
    EXPECT_EQ(Text("lblResultInfo.Caption"), summary);
    EXPECT_EQ(Number("txtResult.SelStart"), long(report.size()));

    // Saving writes the report and a line end, or nothing, and says nothing.
    const auto saved = dir.Path() / "report.txt";
    for (const std::filesystem::path& file :
         {std::filesystem::path(), dir.Path() / "none" / "x.txt", saved}) {
        Do("savefile " + Json(file.string()).Dump());
        Click("Command5");
    }
    EXPECT_EQ(Run("msgbox"), "null");
    EXPECT_EQ(quillane::testing::ReadBytes(saved), report + "\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path()), {}), 3)
        << "a cancelled or failed save writes nothing";
}

INSTANTIATE_TEST_SUITE_P(EveryLevelAndType, WholeTest,
                         ::testing::Combine(::testing::Values(0, 1, 2), ::testing::Bool()));

struct NoDeck : Tarot {
    NoDeck() : Tarot(false) {}
};

TEST_F(NoDeck, OnlyOpeningASelectionMeetsTheMissingDatabase) {
    Click("mnuTabGoals");
    Click("mnuTabSettings");
    EXPECT_EQ(Run("msgbox"), "null");
    Click("cmdSetOption");
    const std::string box = Run("msgbox");
    EXPECT_NE(box.find(R"("icon":"critical")"), std::string::npos) << box;
    EXPECT_NE(box.find("learn.dll"), std::string::npos) << box;
    EXPECT_EQ(Run("ended"), "true");
}

} // namespace
