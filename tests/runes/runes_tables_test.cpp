// Content tests of the rune tables: the fixed columns word for word, the
// written paragraphs by opening and length, the identities that the tests of
// the Runes subject rely on, and the stone pictures.
#include "runes/modLearnRunes.h"

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

struct Stone {
    const char* name;
    std::vector<std::string> alternativeNames;
    std::vector<std::string> keywords;
    bool reversible;
};

const std::vector<Stone> kExpectedStones = {
    {"Fehu", {"Faihu", "Foeh", "Fe"}, {"Wealth", "Mobility", "Fulfillment", "Intuition"}, true},
    {"Uruz",
     {"Uraz", "Uros", "Ur"},
     {"Beginnings", "Spirituality", "Opportunity", "Harmony"},
     true},
    {"Thurisaz",
     {"Thuith", "Thorn", "Thurs"},
     {"Protection", "Action", "Destruction", "Willpower"},
     true},
    {"Ansuz", {"Os", "Ass", "Ansur"}, {"Rebirth", "Knowledge", "Communication", "Justice"}, true},
    {"Raidho", {"Raidha", "Rad", "Raid"}, {"Rhythm", "Movement", "Travel", "Spiritual"}, true},
    {"Kenaz",
     {"Kusma", "Kaun", "Kaunaz"},
     {"Knowledge", "Fire", "Guiding Light", "Fertility"},
     true},
    {"Gebo", {"Geuua", "Gipt", "Geofu"}, {"Gift", "Exchange", "Interaction", "Balance"}, false},
    {"Wunjo", {"Uuinne", "Vend", "Wynn"}, {"Joy", "Pleasure", "Hope", "Fellowship"}, true},
    {"Hagalaz",
     {"Haal", "Hagall", "Hagl"},
     {"Transformation", "Change", "Evolution", "Protection"},
     false},
    {"Nauthiz", {"Noicz", "Naud", "Naudr"}, {"Need", "Help", "Resistance", "Love"}, true},
    {"Isa",
     {"Icz", "Iss", "Is"},
     {"Constraint", "Massive Force", "Gradual Integration", "Delay"},
     false},
    {"Jera", {"Gaar", "Ar", "Ger"}, {"Cycles", "Right Action", "Completion", "Fertility"}, false},
    {"Eihwaz", {"Ezck", "Yr", "Eo"}, {"Communication", "Death", "Regeneration", "Knowledge"}, true},
    {"Perthro",
     {"Pertra", "Peordh", "Peorth"},
     {"Birth", "Wisdom", "Kinship", "Manifestation"},
     true},
    {"Algiz", {"Algis", "Elhaz", "Eolh"}, {"Spirit", "Protection", "Sanctuary", "Refuge"}, true},
    {"Sowilo",
     {"Sugil", "Sol", "Sulu"},
     {"Partnership", "Journey", "Power", "Transformation"},
     false},
    {"Tiwaz", {"Tys", "Tyr", "Tir"}, {"Justice", "Loyalty", "Victory", "Support"}, true},
    {"Berkano",
     {"Berkana", "Bercna", "Bjarkan"},
     {"Rebirth", "Growth", "Transition", "Spirit"},
     true},
    {"Ehwaz", {"Eys", "Ehol", "Ior"}, {"Duality", "Movement", "Partnership", "Interaction"}, true},
    {"Mannaz", {"Manna", "Madr", "Mann"}, {"Godhood", "Humanity", "Ancestors", "Memory"}, true},
    {"Laguz", {"Laaz", "Logr", "Lagu"}, {"Fluidity", "Life Force", "Birth", "Intuition"}, true},
    {"Ingwaz",
     {"Enguz", "Ing", "Ingvarr"},
     {"Energy", "Gestation", "Integration", "Male Fertility"},
     false},
    {"Dagaz",
     {"Daaz", "Daeg", "Dagur"},
     {"Light", "Enlightenment", "Awakening", "Intuition"},
     false},
    {"Othala",
     {"Utal", "Odal", "Otael"},
     {"Ancestry", "Prosperity", "Inheritance", "Family"},
     true},
};

TEST_F(RuneTables, SizesAndSpareEntries) {
    EXPECT_EQ(kStoneCount, 24);
    EXPECT_EQ(strStoneName.size(), 25u);
    EXPECT_EQ(strNormalMeaning.size(), 25u);
    EXPECT_EQ(strReverseMeaning.size(), 25u);
    EXPECT_EQ(strMarkstaveMeaning.size(), 25u);
    EXPECT_EQ(strKeyword.size(), 97u);
    EXPECT_EQ(strAlternativeName.size(), 73u);
    // The spare last entries stay empty; every entry below them is filled.
    EXPECT_EQ(strStoneName[24], "");
    EXPECT_EQ(strNormalMeaning[24], "");
    EXPECT_EQ(strReverseMeaning[24], "");
    EXPECT_EQ(strMarkstaveMeaning[24], "");
    EXPECT_EQ(strKeyword[96], "");
    EXPECT_EQ(strAlternativeName[72], "");
    for (int s = 0; s < 24; ++s) {
        EXPECT_FALSE(strStoneName[s].empty()) << s;
        EXPECT_FALSE(strNormalMeaning[s].empty()) << s;
        EXPECT_FALSE(strReverseMeaning[s].empty()) << s;
        EXPECT_FALSE(strMarkstaveMeaning[s].empty()) << s;
    }
    for (int k = 0; k < 96; ++k) {
        EXPECT_FALSE(strKeyword[k].empty()) << k;
    }
    for (int k = 0; k < 72; ++k) {
        EXPECT_FALSE(strAlternativeName[k].empty()) << k;
    }
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

TEST_F(RuneTables, NamesAlternativeNamesAndKeywordsInDisplayOrder) {
    ASSERT_EQ(kExpectedStones.size(), 24u);
    for (int s = 0; s < 24; ++s) {
        const Stone& want = kExpectedStones[s];
        SCOPED_TRACE(want.name);
        EXPECT_EQ(strStoneName[s], want.name);
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(strAlternativeName[3 * s + j], want.alternativeNames[j]);
        }
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(strKeyword[4 * s + j], want.keywords[j]);
        }
    }
}

TEST_F(RuneTables, KeywordRepeatsAcrossStones) {
    std::map<std::string, std::set<std::string>> stonesOf;
    for (int k = 0; k < 96; ++k) {
        stonesOf[strKeyword[k]].insert(strStoneName[k / 4]);
    }
    EXPECT_EQ(stonesOf.size(), 80u);
    const std::map<std::string, std::set<std::string>> shared = {
        {"Intuition", {"Fehu", "Laguz", "Dagaz"}},
        {"Protection", {"Thurisaz", "Hagalaz", "Algiz"}},
        {"Knowledge", {"Ansuz", "Kenaz", "Eihwaz"}},
        {"Rebirth", {"Ansuz", "Berkano"}},
        {"Communication", {"Ansuz", "Eihwaz"}},
        {"Justice", {"Ansuz", "Tiwaz"}},
        {"Movement", {"Raidho", "Ehwaz"}},
        {"Fertility", {"Kenaz", "Jera"}},
        {"Interaction", {"Gebo", "Ehwaz"}},
        {"Transformation", {"Hagalaz", "Sowilo"}},
        {"Birth", {"Perthro", "Laguz"}},
        {"Spirit", {"Algiz", "Berkano"}},
        {"Partnership", {"Sowilo", "Ehwaz"}},
    };
    for (const auto& [word, stones] : stonesOf) {
        const auto it = shared.find(word);
        if (it == shared.end()) {
            EXPECT_EQ(stones.size(), 1u) << word;
        } else {
            EXPECT_EQ(stones, it->second) << word;
        }
    }
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

TEST_F(RuneTables, FehuRowInFull) {
    EXPECT_EQ(strNormalMeaning[0],
              "The meaning of the rune is 'cattle' or the main livelihood of the tribe. It is a "
              "positive rune which also means material gain, new financial   opportunities and "
              "success. It recommends people to distribute gifts freely if they wish to be "
              "prosperous. In other words, people should share their wealth and not be selfish. "
              "Good time to invest in buying and selling. It also increases intuitive abilities, "
              "increases the depth of knowledge and brings more focus into your life.\r\n"
              "This rune may be linked to Frey or Freya thus making it a strong omen for "
              "fertility. This rune should never be taken lightly.");
    const std::string reverse =
        "When reversed it means stagnation, infertility and loss or failure. With a positive "
        "rune it indicates a delay. With a negative rune, it is better to give up the project "
        "undertaken.";
    EXPECT_EQ(strReverseMeaning[0], reverse);
    EXPECT_EQ(strMarkstaveMeaning[0], reverse);
}

TEST_F(RuneTables, StonesThatCannotBeReversedKeepTheirOwnWording) {
    struct Row {
        int stone;
        const char* reverse;
        const char* markstave;
    };
    const Row rows[] = {
        {6,
         "Gebo rune cannot be reversed. The meaning can be understood from the other runes that "
         "fall with it.",
         "There may be some loneliness in your life. You may tend to over sacrifice more than "
         "needed. You may also be dependent on others."},
        {8, "This rune is not reversed.",
         "There may be a natural disaster or catastrophe. It may also lead to pain, suffering and "
         "disillusionment."},
        {10, "This rune cannot be reversed. This will have to be read with the surrounding runes.",
         "There may be some dullness in your life. This is a time for deceit and treachery."},
        {11, "This rune is non reversible and has to be read with the surrounding runes.",
         "There may be sudden set backs. This may be a bad time for starting some new venture."},
        {15, "This rune cannot be reversed.",
         "You may face the wrath of God.  You may also be in for some bad advice from people as "
         "you are gulliable."},
        {21, "This is a non reversible rune.",
         "This signifies a period of hard labor and work. There may be movement but no end is "
         "achievement. This may also refer to impotency."},
        {22, "This is a nonreversible rune.",
         "This is a complete coming full circle rune. Amy also stand for hopelessness."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(strStoneName[row.stone]);
        EXPECT_EQ(strReverseMeaning[row.stone], row.reverse);
        EXPECT_EQ(strMarkstaveMeaning[row.stone], row.markstave);
    }
}

TEST_F(RuneTables, MarkstaveEqualsReverseExactlyForReversibleStones) {
    for (int s = 0; s < 24; ++s) {
        SCOPED_TRACE(strStoneName[s]);
        if (kExpectedStones[s].reversible) {
            EXPECT_EQ(strMarkstaveMeaning[s], strReverseMeaning[s]);
        } else {
            EXPECT_NE(strMarkstaveMeaning[s], strReverseMeaning[s]);
        }
    }
}

struct Paragraphs {
    int stone;
    const char* normalOpening;
    std::size_t normalLength;
    const char* reverseOpening; // nullptr for a stone that cannot be reversed
    std::size_t reverseLength;
};

const Paragraphs kParagraphs[] = {
    {0, "The meaning of the rune is 'cattle' or the main livelihood of the tribe.", 597,
     "When reversed it means stagnation, infertility and loss or failure.", 180},
    {1, "The rune represents 'aurochs' or wild bison like animals.", 492,
     "When reversed it indicates ill health.", 280},
    {2, "This is also known as the troll or 'thorn' rune.", 662,
     "When reversed it shows end of good times and beginning of bad ones.", 194},
    {3, "This rune means 'god' or 'deity'.", 399,
     "You may be under the influence of malicious advice.", 330},
    {4, "This rune represents the 'wheel of life'.", 438,
     "There may be a delay in your physical or spiritual journey.", 265},
    {5, "This is the 'fire' rune.", 345,
     "It may lead to isolation or information being hidden from you.", 228},
    {6, "This is the rune of 'exchange'.", 424, nullptr, 99},
    {7, "This rune is referred to as the 'wish card' and is the happiness rune.", 318,
     "There may be some unhappiness or a third party causing trouble.", 190},
    {8, "This rune means 'hail' with respect to hailstones.", 452, nullptr, 26},
    {9, "This is the 'need' rune.", 280, "You may be on the wrong track.", 165},
    {10, "This is the 'ice' rune.", 441, nullptr, 83},
    {11, "This rune means the 'harvest'.", 315, nullptr, 74},
    {12, "This is the 'yew' rune, the wood used in rune craft and making bows.", 343,
     "This may be a bad time for you.", 180},
    {13, "This means a sudden dash of luck.", 368, "When reversed, this rune can mean death.", 180},
    {14, "This rune means 'defense' and 'protection'.", 299, "This indicates vulnerability.", 81},
    {15, "This is the 'sun' rune which indicates victory.", 268, nullptr, 29},
    {16, "This is the rune of the 'warrior'.", 325, "Your energy and creative flow may be blocked.",
     267},
    {17, "This is the 'birch' rune.", 276,
     "There may be some family problems or troubles on the domestic side.", 216},
    {18, "This is the 'horse' rune.", 233, "You may be making false friends.", 165},
    {19, "This is the 'man' rune, as an individual or as a race.", 306, "Non one can help you.",
     173},
    {20, "This is the rune of 'intuitive knowledge' or 'water'.", 451,
     "This is a period of stagnation.", 288},
    {21, "This is the 'fertility' rune.", 361, nullptr, 30},
    {22, "This is the 'day' rune.", 326, nullptr, 29},
    {23, "This is the 'inheritance' rune.", 313,
     "This may mean some delay in work or unexpected backing out of help.", 301},
};

bool StartsWith(const std::string& text, const std::string& opening) {
    return text.compare(0, opening.size(), opening) == 0;
}

TEST_F(RuneTables, ParagraphsOpenAsGivenAndHaveTheirExactLength) {
    for (const Paragraphs& p : kParagraphs) {
        SCOPED_TRACE(strStoneName[p.stone]);
        const std::string& normal = strNormalMeaning[p.stone];
        const std::string& reverse = strReverseMeaning[p.stone];
        EXPECT_TRUE(StartsWith(normal, p.normalOpening)) << normal;
        EXPECT_EQ(normal.size(), p.normalLength);
        if (p.reverseOpening != nullptr) {
            EXPECT_TRUE(StartsWith(reverse, p.reverseOpening)) << reverse;
        }
        EXPECT_EQ(reverse.size(), p.reverseLength);
        // The opening is a whole sentence: what follows starts a new one.
        if (normal.size() > std::string(p.normalOpening).size()) {
            EXPECT_EQ(normal[std::string(p.normalOpening).size()], ' ');
        }
    }
}

// The openings themselves are fixed; what follows them, and the warnings of
// the reversible stones, are written freely and should not run in one mould.
TEST_F(RuneTables, NoOpeningOfThreeWordsRunsThroughMoreThanHalfAColumn) {
    std::vector<std::string> afterOpening, reverse;
    for (const Paragraphs& p : kParagraphs) {
        afterOpening.push_back(strNormalMeaning[p.stone].substr(std::strlen(p.normalOpening)));
        if (p.reverseOpening != nullptr) {
            reverse.push_back(strReverseMeaning[p.stone]);
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
        EXPECT_TRUE(kExpectedStones[s].reversible);
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
