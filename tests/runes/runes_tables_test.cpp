// The rune tables: one digest for the texts, the identities that the tests of
// the Runes subject rely on, and the written paragraphs' shape.
#include "runes/modLearnRunes.h"

#include "Prose.h"
#include "TableDigest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace quillane::modLearnRunes;

class RuneTables : public ::testing::Test {
protected:
    void SetUp() override { LoadRuneTables(); }
};

// The stones whose reverse reading is no warning of its own.
bool Reversible(int stone) {
    return !std::set<int>{6, 8, 10, 11, 15, 21, 22}.contains(stone);
}

// One digest stands for the texts; a deliberate change of the texts updates
// the constant here in the same commit. Loading again restores them.
TEST_F(RuneTables, TablesMatchTheirDigestAgainAfterAReloadAndKeepOneEmptySpare) {
    strStoneName[3] = "changed";
    strKeyword[95] = "changed";
    strMarkstaveMeaning[6] = "changed";
    LoadRuneTables();
    quillane::testing::TableDigest digest;
    digest.AddAll(strStoneName).AddAll(strAlternativeName).AddAll(strKeyword);
    digest.AddAll(strNormalMeaning).AddAll(strReverseMeaning).AddAll(strMarkstaveMeaning);
    EXPECT_EQ(digest.Value(), 0xf63ccfb0a8d3347cu) << "new digest " << digest.Hex();
    using Column = std::span<const std::string>;
    for (const Column column :
         {Column(strStoneName), Column(strAlternativeName), Column(strKeyword),
          Column(strNormalMeaning), Column(strReverseMeaning), Column(strMarkstaveMeaning)})
        EXPECT_EQ(std::count(column.begin(), column.end(), ""), 1) << "the spare alone is empty";
}

// A tick counts once for every right keyword that bears its text, and the
// meaning test compares texts as strings: what must stay apart does.
TEST_F(RuneTables, TheTextsTheTestsCompareTellStonesApart) {
    std::map<std::string, std::set<int>> stonesOf;
    for (int k = 0; k < 96; ++k)
        stonesOf[strKeyword[k]].insert(k / 4);
    for (long s = 0; s < 24; ++s) {
        const std::set<std::string> own(strKeyword.begin() + 4 * s, strKeyword.begin() + 4 * s + 4);
        EXPECT_EQ(own.size(), 4u) << strStoneName[s];
    }
    for (const auto& [word, stones] : stonesOf)
        EXPECT_LE(stones.size(), 3u) << word;
    EXPECT_EQ(
        std::set<std::string>(strAlternativeName.begin(), strAlternativeName.end() - 1).size(),
        72u);
    for (const auto* column : {&strNormalMeaning, &strReverseMeaning, &strMarkstaveMeaning})
        EXPECT_EQ(std::set<std::string>(column->begin(), column->end() - 1).size(), 24u);
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        EXPECT_EQ(
            std::count(strReverseMeaning.begin(), strReverseMeaning.end(), strNormalMeaning[s]), 0);
        // Merkstave repeats the reverse reading exactly where a stone turns.
        EXPECT_EQ(strMarkstaveMeaning[s] == strReverseMeaning[s], Reversible(s));
    }
}

// The openings of the upright texts are fixed; what follows them, and the
// warnings of the reversible stones, are written freely and should not run
// in one mould.
TEST_F(RuneTables, MeaningsAreTidyProseOfVariedOpenings) {
    std::vector<std::string> afterOpening, reverse;
    for (int s = 0; s < 24; ++s) {
        for (const std::string* text :
             {&strNormalMeaning[s], &strReverseMeaning[s], &strMarkstaveMeaning[s]})
            EXPECT_EQ(quillane::testing::ProseFault(*text), "") << *text;
        afterOpening.push_back(strNormalMeaning[s].substr(strNormalMeaning[s].find(". ") + 2));
        if (Reversible(s))
            reverse.push_back(strReverseMeaning[s]);
    }
    for (const auto* texts : {&afterOpening, &reverse}) {
        const auto [opening, count] = quillane::testing::MostCommonOpening(*texts);
        EXPECT_LE(2 * count, texts->size()) << "\"" << opening << "\"";
    }
}

} // namespace
