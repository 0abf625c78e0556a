// Tests of the Astrology knowledge base: the tables' texts, their shape, the
// written paragraphs, the category table and the glyph pictures.

#include "astrology/modLearnAstrology.h"

#include "TableDigest.h"
#include "TextOpenings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace mla = quillane::modLearnAstrology;

namespace {

using quillane::testing::TableDigest;
using Column = std::span<const std::string>;

// Every column of each table, in declaration order, for the digests.
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

struct ParagraphColumn {
    const char* name;
    std::span<const std::string> column;
    std::size_t shortest;
    std::size_t longest;
};

std::vector<ParagraphColumn> ParagraphColumns() {
    return {
        {"strSignPositive", mla::strSignPositive, 513, 1000},
        {"strSignNegative", mla::strSignNegative, 331, 655},
        {"strPlanetPositive", mla::strPlanetPositive, 194, 569},
        {"strPlanetNegative", mla::strPlanetNegative, 157, 517},
        {"strHouseAttributes", mla::strHouseAttributes, 588, 730},
    };
}

class AstrologyTables : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        mla::LoadSignTables();
        mla::LoadPlanetTables();
        mla::LoadHouseTables();
    }
};

std::size_t Records(std::span<const std::string> column) {
    return column.size() - 1;
}

// One digest per table stands for its texts; a deliberate change of the
// texts updates the constant here in the same commit.
TEST_F(AstrologyTables, EachTableMatchesItsDigestAndKeepsOneEmptySpare) {
    struct Table {
        const char* name;
        const std::vector<Column>& columns;
        std::size_t records;
        std::uint64_t digest;
    };
    const Table tables[] = {{"signs", kSignTable, 12, 0x1be0e06eeea818c0},
                            {"planets", kPlanetTable, 10, 0xd1b7534d189d8f1e},
                            {"houses", kHouseTable, 12, 0xa5c0eddb9fdd1272}};
    for (const Table& t : tables) {
        SCOPED_TRACE(t.name);
        TableDigest digest;
        for (const Column& column : t.columns) {
            ASSERT_EQ(Records(column), t.records);
            EXPECT_TRUE(column.back().empty());
            for (const std::string& text : column.first(t.records)) {
                ASSERT_FALSE(text.empty());
                EXPECT_TRUE(text.front() != ' ' && text.back() != ' ') << text;
            }
            digest.AddAll(column);
        }
        const std::set<std::string> names(t.columns[0].begin(), t.columns[0].end() - 1);
        EXPECT_EQ(names.size(), t.records) << "names are unique";
        EXPECT_EQ(digest.Value(), t.digest) << "new digest " << digest.Hex();
    }
}

// Rows where a slip would show: the ends, and texts with odd characters.
TEST_F(AstrologyTables, SampleRowsStandAsWritten) {
    EXPECT_EQ(mla::strSign[0], "Aries");
    EXPECT_EQ(mla::strSign[11], "Pisces");
    EXPECT_EQ(mla::strPlanet[0], "Sun");
    EXPECT_EQ(mla::strPlanet[2], "Jupiter");
    EXPECT_EQ(mla::strPlanet[9], "Pluto");
    EXPECT_EQ(mla::strSignDates[10], "January 20 - February 19");
    EXPECT_EQ(mla::strSignRulingPlanet[11], "Neptune and Jupiter");
    EXPECT_EQ(mla::strSignFlowerEssence[4], "Sunflower, Buttercup");
    EXPECT_EQ(mla::strPlanetCycle[0], "None");
    EXPECT_EQ(mla::strPlanetCycle[6], "29 yrs");
    EXPECT_EQ(mla::strPlanetCycle[9], "248 years");
    EXPECT_EQ(mla::strPlanetKeywords[5], "Physical Energy, Competition, Will-Power");
    EXPECT_EQ(mla::strHouseKeywords[1], "Money, Self - Worth, Vitality");
    EXPECT_EQ(mla::strHouseMantra[11], "To Reintegrate");
    EXPECT_EQ(mla::strHouseType[0], "Angular House (Action)");
    EXPECT_EQ(mla::strHouseType[11], "Cadent House (Adaptable)");
    EXPECT_EQ(mla::strHousePlanetRuler[7], "Mars, Pluto");
}

// Identities between columns catch a row typed into the wrong place.
TEST_F(AstrologyTables, ColumnsAgreeWithOneAnother) {
    for (std::size_t row = 0; row < 12; ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(mla::strSignOpposite[row], mla::strSign[(row + 6) % 12]);
        EXPECT_EQ(mla::strHouseKey[row], mla::strSign[row]);
        EXPECT_EQ(mla::strHouseSignRuler[row], mla::strHouseKey[row]);
        EXPECT_EQ(mla::strSignQuality[row], mla::strSignQuality[row % 3]);
        EXPECT_EQ(mla::strSignElement[row], mla::strSignElement[row % 4]);
    }
    for (std::size_t row = 0; row < 10; ++row) {
        const std::string& signs = mla::strPlanetRulerForSign[row];
        const auto at = std::find(mla::strSign.begin(), mla::strSign.end() - 1,
                                  signs.substr(0, signs.find(',')));
        ASSERT_NE(at, mla::strSign.end() - 1) << signs;
        const std::string& ruler = mla::strSignRulingPlanet[at - mla::strSign.begin()];
        EXPECT_NE(ruler.find(mla::strPlanet[row]), std::string::npos)
            << mla::strPlanet[row] << " rules " << signs << " but the sign says " << ruler;
    }
}

TEST_F(AstrologyTables, LuckyNumbersKeepDoubledAmpersands) {
    for (std::size_t row = 0; row < 12; ++row) {
        const std::string& text = mla::strSignLuckyNumber[row];
        if (row < 4) {
            EXPECT_EQ(text.find('&'), std::string::npos);
        } else {
            EXPECT_EQ(text.size(), 6u) << text;
            EXPECT_EQ(text.substr(1, 4), " && ") << text;
        }
    }
}

// Each part of a ruled-house text names a house of the house table.
TEST_F(AstrologyTables, RuledHousesAreJoinedByCrLf) {
    const std::vector<std::size_t> partsPerRow = {1, 1, 2, 2, 2, 2, 2, 1, 1, 1};
    std::set<std::string> houseTitles;
    for (std::size_t h = 0; h < 12; ++h) {
        houseTitles.insert(mla::strHouseNumber[h] + " - " + mla::strHouseName[h]);
    }
    for (std::size_t row = 0; row < 10; ++row) {
        SCOPED_TRACE(mla::strPlanet[row]);
        std::vector<std::string> parts;
        std::string rest = mla::strPlanetRulerForHouse[row];
        for (std::size_t at; (at = rest.find("\r\n")) != std::string::npos;) {
            parts.push_back(rest.substr(0, at));
            rest.erase(0, at + 2);
        }
        parts.push_back(rest);
        EXPECT_EQ(parts.size(), partsPerRow[row]);
        for (const std::string& part : parts) {
            EXPECT_TRUE(houseTitles.contains(part)) << part;
            EXPECT_EQ(part.find_first_of("\r\n"), std::string::npos);
        }
    }
}

TEST_F(AstrologyTables, ParagraphLengthsFillTheirRangesExactly) {
    for (const ParagraphColumn& c : ParagraphColumns()) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(c.column.back().empty());
        std::size_t shortest = SIZE_MAX;
        std::size_t longest = 0;
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            const std::size_t length = c.column[row].size();
            EXPECT_GE(length, c.shortest) << "row " << row;
            EXPECT_LE(length, c.longest) << "row " << row;
            shortest = std::min(shortest, length);
            longest = std::max(longest, length);
        }
        EXPECT_EQ(shortest, c.shortest);
        EXPECT_EQ(longest, c.longest);
    }
}

TEST_F(AstrologyTables, ParagraphsArePlainTextAndAllDifferent) {
    std::map<std::string, std::string> seen;
    for (const ParagraphColumn& c : ParagraphColumns()) {
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            const std::string& text = c.column[row];
            const std::string where = std::string(c.name) + " row " + std::to_string(row);
            SCOPED_TRACE(where);
            EXPECT_TRUE(std::all_of(text.begin(), text.end(),
                                    [](unsigned char ch) { return ch >= 0x20 && ch < 0x7F; }));
            EXPECT_EQ(text.find("  "), std::string::npos);
            EXPECT_NE(text.front(), ' ');
            EXPECT_EQ(text.back(), '.');
            const auto [it, fresh] = seen.emplace(text, where);
            EXPECT_TRUE(fresh) << "same text as " << it->second;
        }
    }
    EXPECT_EQ(seen.size(), 56u);
}

TEST_F(AstrologyTables, NoOpeningOfThreeWordsStartsMoreThanHalfAColumn) {
    for (const ParagraphColumn& c : ParagraphColumns()) {
        const auto rows = c.column.first(Records(c.column));
        const auto [opening, count] = quillane::testing::MostCommonOpening(rows);
        EXPECT_LE(2 * count, rows.size()) << c.name << ": \"" << opening << "\"";
    }
}

TEST_F(AstrologyTables, LeoIsTheLongestParagraphOfAll) {
    const std::string& leo = mla::strSignPositive[4];
    EXPECT_TRUE(leo.starts_with("You are leaders and have a magnetic personality. "));
    EXPECT_TRUE(leo.ends_with(" You have flamboyant personality."));
    for (const ParagraphColumn& c : ParagraphColumns()) {
        for (std::size_t row = 0; row < Records(c.column); ++row) {
            if (&c.column[row] != &leo) {
                EXPECT_LT(c.column[row].size(), leo.size()) << c.name << " row " << row;
            }
        }
    }
}

TEST_F(AstrologyTables, HousesUseTheirIndianNamesInQuotes) {
    EXPECT_NE(mla::strHouseAttributes[3].find("'Matristhan'"), std::string::npos);
    EXPECT_NE(mla::strHouseAttributes[11].find("'Vyaysthana'"), std::string::npos);
}

// Loading again restores every column, spare entries included.
TEST_F(AstrologyTables, LoadingAgainRestoresTheSameContent) {
    const auto signPositive = mla::strSignPositive;
    const auto ruledHouses = mla::strPlanetRulerForHouse;
    const auto attributes = mla::strHouseAttributes;
    mla::strSignPositive[4] += " extra";
    mla::strSign[12] = "stray";
    mla::strPlanetRulerForHouse[2].clear();
    mla::strPlanet[10] = "stray";
    mla::strHouseAttributes[0] = "changed";
    mla::strHouseKey[12] = "stray";
    for (int round = 0; round < 2; ++round) {
        mla::LoadCategoryTables(mla::kSigns);
        mla::LoadCategoryTables(mla::kPlanets);
        mla::LoadCategoryTables(mla::kHouses);
    }
    EXPECT_EQ(mla::strSignPositive, signPositive);
    EXPECT_EQ(mla::strPlanetRulerForHouse, ruledHouses);
    EXPECT_EQ(mla::strHouseAttributes, attributes);
    EXPECT_TRUE(mla::strSign[12].empty());
    EXPECT_TRUE(mla::strPlanet[10].empty());
    EXPECT_TRUE(mla::strHouseKey[12].empty());
}

struct Category {
    int main;
    std::vector<std::string> captions;
    std::vector<std::span<const std::string>> values;
    std::span<const std::string> names;
};

std::vector<Category> Categories() {
    return {
        {mla::kSigns,
         {"Glyphs (Image)", "Dates", "Sign Numbers", "Opposite Signs", "Keywords",
          "Positive Traits", "Negative Traits", "Element", "Ruling Planet", "Lucky Number",
          "Lucky Color", "Lucky Day", "Birthstone", "Quality", "Anatomy", "Flower Essence"},
         {mla::strSign, mla::strSignDates, mla::strSignNumber, mla::strSignOpposite,
          mla::strSignKeywords, mla::strSignPositive, mla::strSignNegative, mla::strSignElement,
          mla::strSignRulingPlanet, mla::strSignLuckyNumber, mla::strSignLuckyColor,
          mla::strSignLuckyDay, mla::strSignBirthstone, mla::strSignQuality, mla::strSignAnatomy,
          mla::strSignFlowerEssence},
         mla::strSign},
        {mla::kPlanets,
         {"Glyphs (Image)", "Ruler for Sign", "Keywords", "Positive Traits", "Negative Traits",
          "Anatomy", "Time to complete one Cycle", "Ruler for House"},
         {mla::strPlanet, mla::strPlanetRulerForSign, mla::strPlanetKeywords,
          mla::strPlanetPositive, mla::strPlanetNegative, mla::strPlanetAnatomy,
          mla::strPlanetCycle, mla::strPlanetRulerForHouse},
         mla::strPlanet},
        {mla::kHouses,
         {"House Name", "House Planet Ruler", "House Sign Ruler", "Attributes", "Keywords",
          "Mantra", "House Type"},
         {mla::strHouseName, mla::strHousePlanetRuler, mla::strHouseSignRuler,
          mla::strHouseAttributes, mla::strHouseKeywords, mla::strHouseMantra, mla::strHouseType},
         mla::strHouseKey},
    };
}

TEST_F(AstrologyTables, CategoryTableSelectsValuesAndNames) {
    for (const Category& cat : Categories()) {
        SCOPED_TRACE(cat.main);
        EXPECT_EQ(mla::CategoryCaptions(cat.main), cat.captions);
        ASSERT_EQ(cat.values.size(), cat.captions.size());
        for (std::size_t sub = 0; sub < cat.values.size(); ++sub) {
            const auto chosen = mla::ValuesColumn(cat.main, static_cast<int>(sub));
            EXPECT_EQ(chosen.data(), cat.values[sub].data()) << cat.captions[sub];
            EXPECT_EQ(chosen.size(), cat.values[sub].size()) << cat.captions[sub];
        }
        const auto names = mla::NamesColumn(cat.main);
        EXPECT_EQ(names.data(), cat.names.data());
        EXPECT_EQ(names.size(), cat.names.size());
        // Outside the list the last column stands in.
        const int size = static_cast<int>(cat.captions.size());
        for (int sub : {size, size + 1, 100, -1}) {
            EXPECT_EQ(mla::ValuesColumn(cat.main, sub).data(), cat.values.back().data()) << sub;
        }
    }
}

TEST_F(AstrologyTables, AnyOtherMainCategoryMeansHouses) {
    for (int main : {3, 99, -1}) {
        EXPECT_EQ(mla::CategoryCaptions(main), mla::CategoryCaptions(mla::kHouses));
        EXPECT_EQ(mla::NamesColumn(main).data(), mla::strHouseKey.data());
        EXPECT_EQ(mla::ValuesColumn(main, 0).data(), mla::strHouseName.data());
    }
}

TEST_F(AstrologyTables, RunsWhoseValuesAreTheirNames) {
    EXPECT_EQ(mla::ValuesColumn(mla::kSigns, 0).data(), mla::NamesColumn(mla::kSigns).data());
    EXPECT_EQ(mla::ValuesColumn(mla::kPlanets, 0).data(), mla::NamesColumn(mla::kPlanets).data());
    const auto houseSigns = mla::ValuesColumn(mla::kHouses, 2);
    const auto houseNames = mla::NamesColumn(mla::kHouses);
    EXPECT_TRUE(
        std::equal(houseSigns.begin(), houseSigns.end(), houseNames.begin(), houseNames.end()));
    // The window tells planets from the rest by the highest index alone.
    for (const Category& cat : Categories()) {
        for (std::size_t sub = 0; sub < cat.captions.size(); ++sub) {
            const bool planetLike =
                Records(mla::ValuesColumn(cat.main, static_cast<int>(sub))) == 10;
            EXPECT_EQ(planetLike, cat.main == mla::kPlanets) << cat.captions[sub];
        }
    }
}

// --- Glyph pictures ---------------------------------------------------------

std::filesystem::path SourceDir() {
    if (const char* dir = std::getenv("QUILLANE_SOURCE_DIR"); dir != nullptr && *dir != '\0') {
        return dir;
    }
    return QUILLANE_SOURCE_DIR_FALLBACK;
}

// Elements nest properly under one <svg> root; hands back an error or "".
std::string NestingError(const std::string& text) {
    const std::regex tag(R"(<(/?)([A-Za-z][\w:.-]*)[^>]*?(/?)>)");
    std::vector<std::string> open;
    int roots = 0;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), tag);
         it != std::sregex_iterator(); ++it) {
        const std::smatch& m = *it;
        if (m[1] == "/") {
            if (open.empty() || open.back() != m[2]) {
                return "mismatched </" + m[2].str() + ">";
            }
            open.pop_back();
        } else if (m[3] != "/") {
            roots += open.empty() ? 1 : 0;
            open.push_back(m[2]);
        }
    }
    return !open.empty() ? "unclosed <" + open.back() + ">" : roots != 1 ? "roots" : "";
}

TEST(AstrologyGlyphs, EverySignAndPlanetHasAnSvgPicture) {
    const std::filesystem::path dir = SourceDir() / "assets" / "astrology";
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < 12; ++i) {
        files.push_back(dir / ("sign-" + std::to_string(i) + ".svg"));
    }
    for (int i = 0; i < 10; ++i) {
        files.push_back(dir / ("planet-" + std::to_string(i) + ".svg"));
    }
    std::set<std::string> contents;
    for (const auto& file : files) {
        SCOPED_TRACE(file.string());
        std::ifstream in(file, std::ios::binary);
        ASSERT_TRUE(in.good());
        const std::string text((std::istreambuf_iterator<char>(in)),
                               std::istreambuf_iterator<char>());
        EXPECT_EQ(NestingError(text), "");
        const std::smatch box = [&] {
            std::smatch m;
            std::regex_search(text, m,
                              std::regex(R"re(<svg[^>]*viewBox="0 0 ([\d.]+) ([\d.]+)")re"));
            return m;
        }();
        ASSERT_EQ(box.size(), 3u) << "an <svg> root with a viewBox";
        EXPECT_EQ(box[1], box[2]) << "square picture";
        // Drawn as paths, never as lettering in a font.
        EXPECT_EQ(text.find("<text"), std::string::npos);
        EXPECT_TRUE(contents.insert(text).second) << "same picture as another glyph";
    }
}

} // namespace
