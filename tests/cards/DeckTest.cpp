// The deck as built into learn.dll: what the Tarot window relies on, read
// through the same SQL texts and row sets that the program uses.
#include "cards/modDB.h"
#include "cards/modImageDB.h"

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace quillane;
using namespace quillane::modDB;

namespace {

class DeckTest : public ::testing::Test {
protected:
    void SetUp() override {
        OpenConnection(cn, QUILLANE_LEARN_DLL);
        OpenRecordset(rs, cn,
                      "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) OR  (Group=2) OR  "
                      "(Group=3) OR  (Group=4) ORDER BY ID");
    }
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
};

// Each meaning, upright and reversed, is a paragraph of its own.
TEST_F(DeckTest, HoldsTheSeventyEightCardsInTheirGroupsEachWithItsOwnMeanings) {
    ASSERT_EQ(rs->RecordCount(), 78);
    std::map<long, int> perGroup;
    std::set<std::string> names, texts;
    std::string order; // the conventional one: the Fool first, each suit from Ace to King
    for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
        EXPECT_EQ(rs->Field("ID").AsLong(), rs->AbsolutePosition()) << "the cards' IDs are 1 to 78";
        ++perGroup[rs->Field("Group").AsLong()];
        const std::string name = rs->Field("Name").AsString();
        if (std::set<long>{1, 22, 23, 36, 78}.count(rs->AbsolutePosition()))
            order += name + ";";
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_LT(name.size(), 25u) << name; // the report's columns need short names
        for (const char* field : {"normalmeaning", "reversedmeaning"}) {
            const std::string text = rs->Field(field).AsString();
            EXPECT_TRUE(text.size() >= 250 && text.size() <= 600) << name << " " << field;
            EXPECT_TRUE(texts.insert(text).second) << text;
        }
    }
    EXPECT_EQ(perGroup, (std::map<long, int>{{0, 22}, {1, 14}, {2, 14}, {3, 14}, {4, 14}}));
    EXPECT_EQ(order, "The Fool;The World;Ace of Cups;King of Cups;King of Swords;");

    // The report's text reads the same cards in the same order.
    std::shared_ptr<Recordset> all;
    OpenRecordset(all, cn, "SELECT * FROM tblCards");
    ASSERT_EQ(all->RecordCount(), rs->RecordCount());
    for (all->MoveFirst(), rs->MoveFirst(); !all->Eof(); all->MoveNext(), rs->MoveNext())
        EXPECT_EQ(all->Field("ID").AsLong(), rs->Field("ID").AsLong());
}

// Every card has seven different keywords for the memorise tab, which reads
// the first seven rows without an end test, and the keyword test has others'
// to offer as wrong answers. None stands on more than two cards: one that many
// shared would often be right as well.
TEST_F(DeckTest, EveryCardHasSevenKeywordsOfItsOwnAndOthersToOffer) {
    std::shared_ptr<Recordset> keywords;
    std::map<QString, std::set<std::string>> cardsOf;
    for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
        const std::string id = rs->Field("Id").AsString();
        OpenRecordset(keywords, cn, "SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=" + id);
        EXPECT_GE(keywords->RecordCount(), 20) << id;
        OpenRecordset(keywords, cn, "SELECT DISTINCT * FROM tblKeywords WHERE CardID=" + id);
        ASSERT_GE(keywords->RecordCount(), 7) << id;
        std::set<std::string> words;
        for (keywords->MoveFirst(); !keywords->Eof(); keywords->MoveNext()) {
            const std::string word = keywords->Field("Keyword").AsString();
            EXPECT_FALSE(word.empty()) << id;
            if (keywords->AbsolutePosition() <= 7)
                words.insert(word);
            cardsOf[QString::fromStdString(word).toLower()].insert(id);
        }
        EXPECT_EQ(words.size(), 7u) << id;
    }
    for (const auto& [word, cards] : cardsOf)
        EXPECT_LE(cards.size(), 2u) << word.toStdString();
}

TEST_F(DeckTest, EveryPictureIsACompleteCardSizedPicture) {
    for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
        Picture picture;
        ASSERT_TRUE(modImageDB::LoadPictureFromField(picture, *rs, "PictureData"));
        EXPECT_EQ(picture.descriptor, "card " + rs->Field("ID").AsString());
        const auto& bytes = *picture.bytes;
        EXPECT_GT(bytes.size(), 5000u);
        EXPECT_LT(bytes.size(), 100000u);
        QImage image;
        ASSERT_TRUE(image.loadFromData(reinterpret_cast<const uchar*>(bytes.data()),
                                       static_cast<int>(bytes.size())))
            << picture.descriptor;
        EXPECT_EQ(image.size(), QSize(234, 400)); // 70 x 120 mm
    }
}

} // namespace
