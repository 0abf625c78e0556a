// Content tests of the rune tables: one digest for the texts, sample rows,
// the written paragraphs' shape, the identities that the tests of
// the Runes subject rely on, and the stone pictures.
#include "runes/modLearnRunes.h"

#include "TableDigest.h"
#include "TextOpenings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
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
// the constant here in the same commit.
TEST_F(RuneTables, TablesMatchTheirDigestAndKeepOneEmptySpare) {
    quillane::testing::TableDigest digest;
    digest.AddAll(strStoneName).AddAll(strAlternativeName).AddAll(strKeyword);
    digest.AddAll(strNormalMeaning).AddAll(strReverseMeaning).AddAll(strMarkstaveMeaning);
    EXPECT_EQ(digest.Value(), 0xf63ccfb0a8d3347cu) << "new digest " << digest.Hex();
    for (const auto* column :
         {&strStoneName, &strNormalMeaning, &strReverseMeaning, &strMarkstaveMeaning}) {
        EXPECT_TRUE(column->back().empty());
        EXPECT_TRUE(std::none_of(column->begin(), column->end() - 1,
                                 [](const std::string& text) { return text.empty(); }));
    }
    EXPECT_TRUE(strKeyword.back().empty());
    EXPECT_TRUE(strAlternativeName.back().empty());
    EXPECT_TRUE(std::none_of(strKeyword.begin(), strKeyword.end() - 1,
                             [](const std::string& text) { return text.empty(); }));
}

TEST_F(RuneTables, LoadingAgainRewritesTheSameValues) {
    strStoneName[3] = "changed";
    strKeyword[95] = "changed";
    strMarkstaveMeaning[6] = "changed";
    LoadRuneTables();
    EXPECT_EQ(strStoneName[3], "Ansuz");
    EXPECT_EQ(strKeyword[95], "Family");
    EXPECT_EQ(strMarkstaveMeaning[6].rfind("There may be some loneliness", 0), 0u);
    const auto normal = strNormalMeaning;
    const auto keywords = strKeyword;
    LoadRuneTables();
    EXPECT_EQ(strNormalMeaning, normal);
    EXPECT_EQ(strKeyword, keywords);
}

// Rows where a slip would show: the ends, and texts with odd spacing.
TEST_F(RuneTables, SampleRowsStandAsWritten) {
    EXPECT_EQ(strStoneName[0], "Fehu");
    EXPECT_EQ(strStoneName[23], "Othala");
    EXPECT_EQ(strAlternativeName[0], "Faihu");
    EXPECT_EQ(strAlternativeName[71], "Otael");
    EXPECT_EQ(strKeyword[0], "Wealth");
    EXPECT_EQ(strKeyword[42], "Gradual Integration");
    EXPECT_EQ(strKeyword[87], "Male Fertility");
    EXPECT_NE(strNormalMeaning[0].find("new financial   opportunities"), std::string::npos);
    EXPECT_NE(strNormalMeaning[0].find("wealth and not be selfish."), std::string::npos);
    EXPECT_EQ(strReverseMeaning[15], "This rune cannot be reversed.");
    EXPECT_TRUE(strMarkstaveMeaning[15].starts_with("You may face the wrath of God.  You"));
    EXPECT_TRUE(strMarkstaveMeaning[22].ends_with("Amy also stand for hopelessness."));
    EXPECT_TRUE(strNormalMeaning[23].starts_with("This is the 'inheritance' rune. "));
}

TEST_F(RuneTables, KeywordRepeatsAcrossStones) {
    std::map<std::string, std::set<std::string>> stonesOf;
    for (int k = 0; k < 96; ++k) {
        stonesOf[strKeyword[k]].insert(strStoneName[k / 4]);
    }
    EXPECT_EQ(stonesOf.size(), 80u);
    for (const auto& [word, stones] : stonesOf) {
        EXPECT_LE(stones.size(), 3u) << word;
    }
    EXPECT_EQ(stonesOf["Intuition"], (std::set<std::string>{"Fehu", "Laguz", "Dagaz"}));
    // No stone carries the same keyword twice, and multi-word keywords are
    // single entries.
    for (int s = 0; s < 24; ++s) {
        const std::set<std::string> own(strKeyword.begin() + 4 * s, strKeyword.begin() + 4 * s + 4);
        EXPECT_EQ(own.size(), 4u) << strStoneName[s];
    }
    for (const char* twoWords : {"Guiding Light", "Massive Force", "Gradual Integration",
                                 "Right Action", "Life Force", "Male Fertility"}) {
        EXPECT_EQ(stonesOf.count(twoWords), 1u) << twoWords;
    }
}

TEST_F(RuneTables, AlternativeNamesAreAllDifferent) {
    const std::set<std::string> names(strAlternativeName.begin(), strAlternativeName.begin() + 72);
    EXPECT_EQ(names.size(), 72u);
}

TEST_F(RuneTables, MarkstaveEqualsReverseExactlyForReversibleStones) {
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        if (Reversible(s)) {
            EXPECT_EQ(strMarkstaveMeaning[s], strReverseMeaning[s]);
        } else {
            EXPECT_NE(strMarkstaveMeaning[s], strReverseMeaning[s]);
        }
    }
}

// The openings themselves are fixed; what follows them, and the warnings of
// the reversible stones, are written freely and should not run in one mould.
TEST_F(RuneTables, NoOpeningOfThreeWordsRunsThroughMoreThanHalfAColumn) {
    std::vector<std::string> afterOpening, reverse;
    for (int s = 0; s < 24; ++s) {
        const std::string& normal = strNormalMeaning[s];
        afterOpening.push_back(normal.substr(normal.find(". ") + 2));
        if (Reversible(s)) {
            reverse.push_back(strReverseMeaning[s]);
        }
    }
    for (const auto* texts : {&afterOpening, &reverse}) {
        const auto [opening, count] = quillane::testing::MostCommonOpening(*texts);
        EXPECT_LE(2 * count, texts->size()) << "\"" << opening << "\"";
    }
}

TEST_F(RuneTables, OnlyTheFirstTwoUprightTextsHaveTwoParagraphs) {
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        for (const std::string* text :
             {&strNormalMeaning[s], &strReverseMeaning[s], &strMarkstaveMeaning[s]}) {
            std::size_t breaks = 0;
            for (std::size_t i = 0; i < text->size(); ++i) {
                const unsigned char c = static_cast<unsigned char>((*text)[i]);
                if (c == '\r') {
                    ASSERT_LT(i + 1, text->size());
                    EXPECT_EQ((*text)[i + 1], '\n') << "a line break is CR LF";
                    ++breaks;
                } else if (c == '\n') {
                    EXPECT_TRUE(i > 0 && (*text)[i - 1] == '\r') << "lone line feed";
                } else {
                    EXPECT_TRUE(c >= 0x20 && c < 0x7f) << "character " << int(c) << " at " << i;
                }
            }
            const bool twoParagraphs = text == &strNormalMeaning[s] && s <= 1;
            EXPECT_EQ(breaks, twoParagraphs ? 1u : 0u);
        }
    }
}

TEST_F(RuneTables, ParagraphsAreTidySentences) {
    // Doubled blanks stand only where the old texts have them.
    const std::set<std::pair<int, int>> knownDoubleBlanks = {{0, 0}, {2, 15}};
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        const std::string* texts[] = {&strNormalMeaning[s], &strReverseMeaning[s],
                                      &strMarkstaveMeaning[s]};
        for (int column = 0; column < 3; ++column) {
            const std::string& text = *texts[column];
            EXPECT_EQ(text.back(), '.');
            EXPECT_NE(text.front(), ' ');
            EXPECT_EQ(text.find(" \r"), std::string::npos);
            EXPECT_EQ(text.find("\n "), std::string::npos);
            EXPECT_EQ(text.find(" ."), std::string::npos);
            EXPECT_EQ(text.find(" ,"), std::string::npos);
            EXPECT_EQ(text.find(".."), std::string::npos);
            const bool doubled = text.find("  ") != std::string::npos;
            EXPECT_EQ(doubled, knownDoubleBlanks.count({column, s}) == 1) << "column " << column;
        }
    }
}

TEST_F(RuneTables, MeaningTextsTellStonesApart) {
    // The meaning test compares texts as strings, so two stones must never
    // share a text within one column.
    const std::set<std::string> normal(strNormalMeaning.begin(), strNormalMeaning.begin() + 24);
    const std::set<std::string> reverse(strReverseMeaning.begin(), strReverseMeaning.begin() + 24);
    const std::set<std::string> markstave(strMarkstaveMeaning.begin(),
                                          strMarkstaveMeaning.begin() + 24);
    EXPECT_EQ(normal.size(), 24u);
    EXPECT_EQ(reverse.size(), 24u);
    EXPECT_EQ(markstave.size(), 24u);
    for (int s = 0; s < 24; ++s) {
        EXPECT_EQ(reverse.count(strNormalMeaning[s]), 0u) << s;
    }
}

TEST_F(RuneTables, ReadingsWithPositiveAndNegativeRunes) {
    const std::string positive = "With a positive rune";
    const std::string negative = "With a negative rune";
    int stonesWithBoth = 0;
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        const std::string& text = strReverseMeaning[s];
        const std::size_t p = text.find(positive);
        const std::size_t n = text.find(negative);
        if (p == std::string::npos && n == std::string::npos) {
            continue;
        }
        EXPECT_TRUE(Reversible(s));
        // Both readings are given, the positive first, each as a sentence.
        ASSERT_NE(p, std::string::npos);
        ASSERT_NE(n, std::string::npos);
        EXPECT_LT(p, n);
        EXPECT_EQ(text.compare(p - 2, 2, ". "), 0);
        EXPECT_EQ(text.compare(n - 2, 2, ". "), 0);
        EXPECT_EQ(text.find(positive, p + 1), std::string::npos);
        EXPECT_EQ(text.find(negative, n + 1), std::string::npos);
        ++stonesWithBoth;
    }
    EXPECT_GE(stonesWithBoth, 3);
}

TEST(RunePictures, KeysFollowTheStoneNumbers) {
    LoadRuneTables();
    ASSERT_EQ(kImgKey.size(), 25u);
    for (int entry = 1; entry <= 25; ++entry) {
        std::ostringstream want;
        want << (entry < 10 ? "0" : "") << entry << ' '
             << (entry <= 24 ? strStoneName[entry - 1] : std::string("Blank"));
        EXPECT_EQ(kImgKey[entry - 1], want.str());
    }
    EXPECT_EQ(ImgFileName(1), "stone-01-fehu.svg");
    EXPECT_EQ(ImgFileName(23), "stone-23-dagaz.svg");
    EXPECT_EQ(ImgFileName(24), "stone-24-othala.svg");
    EXPECT_EQ(ImgFileName(25), "stone-25-blank.svg");
    EXPECT_EQ(ImgFileName(0), "");
    EXPECT_EQ(ImgFileName(26), "");
}

TEST(RunePictures, EveryEntryHasAStoneOfTheRightSize) {
    const char* root = std::getenv("QUILLANE_SOURCE_DIR");
    if (root == nullptr)
        root = QUILLANE_SOURCE_DIR_PATH;
    const std::filesystem::path folder = std::filesystem::path(root) / "assets" / "runes";
    ASSERT_TRUE(std::filesystem::is_directory(folder)) << folder;
    std::size_t stones = 0;
    for (const auto& item : std::filesystem::directory_iterator(folder)) {
        const std::string name = item.path().filename().string();
        if (name.rfind("stone-", 0) == 0 && item.path().extension() == ".svg") {
            ++stones;
        }
    }
    EXPECT_EQ(stones, 25u);
    for (int entry = 1; entry <= 25; ++entry) {
        const std::filesystem::path file = folder / ImgFileName(entry);
        SCOPED_TRACE(file.string());
        std::ifstream in(file);
        ASSERT_TRUE(in.good());
        const std::string svg((std::istreambuf_iterator<char>(in)), {});
        EXPECT_NE(svg.find("width=\"113\""), std::string::npos);
        EXPECT_NE(svg.find("height=\"151\""), std::string::npos);
        EXPECT_NE(svg.find("viewBox=\"0 0 113 151\""), std::string::npos);
        // Pure vector art: no lettering that depends on installed fonts.
        EXPECT_EQ(svg.find("<text"), std::string::npos);
        EXPECT_EQ(svg.find("font"), std::string::npos);
        // The blank stone carries no carving; every other stone does.
        EXPECT_EQ(svg.find("class=\"rune\"") != std::string::npos, entry <= 24);
    }
}

} // namespace
