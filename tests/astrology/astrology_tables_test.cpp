// The Astrology knowledge base: one digest per table, the identities between
// columns, the written paragraphs, and the category table that pairs each
// caption of the windows' lists with its column.
#include "astrology/modLearnAstrology.h"

#include "Prose.h"
#include "TableDigest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace mla = quillane::modLearnAstrology;

namespace {

using quillane::testing::TableDigest;
using Column = std::span<const std::string>;

// Every column of each table, in declaration order; the first holds the names.
const std::vector<Column> kSignTable = {mla::strSign,
                                        mla::strSignDates,
                                        mla::strSignNumber,
                                        mla::strSignOpposite,
                                        mla::strSignKeywords,
                                        mla::strSignElement,
                                        mla::strSignRulingPlanet,
                                        mla::strSignLuckyNumber,
                                        mla::strSignLuckyColor,
                                        mla::strSignLuckyDay,
                                        mla::strSignBirthstone,
                                        mla::strSignQuality,
                                        mla::strSignAnatomy,
                                        mla::strSignFlowerEssence,
                                        mla::strSignPositive,
                                        mla::strSignNegative};
const std::vector<Column> kPlanetTable = {mla::strPlanet,         mla::strPlanetRulerForSign,
                                          mla::strPlanetKeywords, mla::strPlanetCycle,
                                          mla::strPlanetAnatomy,  mla::strPlanetRulerForHouse,
                                          mla::strPlanetPositive, mla::strPlanetNegative};
const std::vector<Column> kHouseTable = {
    mla::strHouseKey,         mla::strHouseNumber,    mla::strHouseName,
    mla::strHousePlanetRuler, mla::strHouseSignRuler, mla::strHouseKeywords,
    mla::strHouseMantra,      mla::strHouseType,      mla::strHouseAttributes};

struct Table {
    int main;
    const std::vector<Column>& columns;
    std::size_t records;
    std::uint64_t digest;
};
const Table kTables[] = {{mla::kSigns, kSignTable, 12, 0x1be0e06eeea818c0},
                         {mla::kPlanets, kPlanetTable, 10, 0xd1b7534d189d8f1e},
                         {mla::kHouses, kHouseTable, 12, 0xa5c0eddb9fdd1272}};

TableDigest Digest(const Table& t) {
    TableDigest digest;
    for (const Column& column : t.columns)
        digest.AddAll(column);
    return digest;
}

class AstrologyTables : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        for (const Table& t : kTables)
            mla::LoadCategoryTables(t.main);
    }
};

// One digest per table stands for its texts; a deliberate change of the
// texts updates the constant here in the same commit. Loading again restores
// every column and spare.
TEST_F(AstrologyTables, EachTableMatchesItsDigestAgainAfterAReloadAndKeepsOneEmptySpare) {
    mla::strSignPositive[4] += " extra";
    mla::strSign[12] = "stray";
    mla::strPlanetRulerForHouse[2].clear();
    mla::strHouseKey[12] = "stray";
    for (const Table& t : kTables) {
        SCOPED_TRACE(t.main);
        mla::LoadCategoryTables(t.main);
        for (const Column& column : t.columns) {
            ASSERT_EQ(column.size(), t.records + 1);
            EXPECT_TRUE(column.back().empty());
            for (const std::string& text : column.first(t.records))
                EXPECT_TRUE(!text.empty() && text.front() != ' ' && text.back() != ' ') << text;
        }
        const std::set<std::string> names(t.columns[0].begin(), t.columns[0].end() - 1);
        EXPECT_EQ(names.size(), t.records) << "names are unique";
        EXPECT_EQ(Digest(t).Value(), t.digest) << "new digest " << Digest(t).Hex();
    }
}

// Identities between columns catch a row typed into the wrong place.
TEST_F(AstrologyTables, ColumnsAgreeWithOneAnother) {
    std::set<std::string> houseTitles;
    for (std::size_t row = 0; row < 12; ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(mla::strSignOpposite[row], mla::strSign[(row + 6) % 12]);
        EXPECT_EQ(mla::strHouseKey[row], mla::strSign[row]);
        EXPECT_EQ(mla::strHouseSignRuler[row], mla::strHouseKey[row]);
        EXPECT_EQ(mla::strSignQuality[row], mla::strSignQuality[row % 3]);
        EXPECT_EQ(mla::strSignElement[row], mla::strSignElement[row % 4]);
        houseTitles.insert(mla::strHouseNumber[row] + " - " + mla::strHouseName[row]);
    }
    for (std::size_t row = 0; row < 10; ++row) {
        const std::string& signs = mla::strPlanetRulerForSign[row];
        const auto at = std::find(mla::strSign.begin(), mla::strSign.end() - 1,
                                  signs.substr(0, signs.find(',')));
        ASSERT_NE(at, mla::strSign.end() - 1) << signs;
        const std::string& ruler = mla::strSignRulingPlanet[at - mla::strSign.begin()];
        EXPECT_NE(ruler.find(mla::strPlanet[row]), std::string::npos)
            << mla::strPlanet[row] << " rules " << signs << " but the sign says " << ruler;
        // Each line of a ruled-house text names a house of the house table.
        std::string rest = mla::strPlanetRulerForHouse[row] + "\r\n";
        for (std::size_t end; (end = rest.find("\r\n")) != std::string::npos;
             rest.erase(0, end + 2))
            EXPECT_TRUE(houseTitles.contains(rest.substr(0, end))) << rest;
    }
}

TEST_F(AstrologyTables, ParagraphsAreDistinctTidyProseOfVariedOpenings) {
    std::set<std::string> seen;
    for (const Column column : {Column(mla::strSignPositive), Column(mla::strSignNegative),
                                Column(mla::strPlanetPositive), Column(mla::strPlanetNegative),
                                Column(mla::strHouseAttributes)}) {
        const Column rows = column.first(column.size() - 1);
        for (const std::string& text : rows) {
            EXPECT_EQ(quillane::testing::ProseFault(text), "") << text;
            EXPECT_EQ(text.find("  "), std::string::npos) << text;
            EXPECT_TRUE(text.size() >= 150 && text.size() <= 1000) << text;
            EXPECT_TRUE(seen.insert(text).second) << "written twice: " << text;
        }
        const auto [opening, count] = quillane::testing::MostCommonOpening(rows);
        EXPECT_LE(2 * count, rows.size()) << "\"" << opening << "\"";
    }
}

// The captions of the windows' lists, each with the column it selects (by its
// place in the table), as one digest.
TEST_F(AstrologyTables, EachCategoryCaptionSelectsItsColumn) {
    TableDigest pairs;
    for (const Table& t : kTables) {
        const auto captions = mla::CategoryCaptions(t.main);
        const int size = int(captions.size());
        for (int sub = 0; sub < size; ++sub) {
            const auto chosen = mla::ValuesColumn(t.main, sub);
            const auto at = std::find_if(t.columns.begin(), t.columns.end(),
                                         [&](Column c) { return c.data() == chosen.data(); });
            ASSERT_NE(at, t.columns.end()) << captions[std::size_t(sub)];
            pairs.Add(captions[std::size_t(sub)]).Add(std::to_string(at - t.columns.begin()));
            // The window tells planets from the rest by the highest index alone.
            EXPECT_EQ(chosen.size() == 11, t.main == mla::kPlanets);
        }
        EXPECT_EQ(mla::NamesColumn(t.main).data(), t.columns[0].data());
    }
    EXPECT_EQ(pairs.Value(), 0xa0265b99ab147e60u) << "new digest " << pairs.Hex();
}

} // namespace
