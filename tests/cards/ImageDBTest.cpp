// Card pictures from the rows: loading into a picture, and the failures that
// leave it empty.
#include "TestDatabase.h"
#include "cards/modDB.h"
#include "cards/modImageDB.h"

#include <gtest/gtest.h>

using namespace quillane;
using namespace quillane::modDB;

namespace {

// Accepts what starts with the given first byte and counts its calls.
class StubDecoder : public IPictureDecoder {
public:
    explicit StubDecoder(unsigned char first) : first_(first) {}
    bool CanDecode(const std::vector<unsigned char>& bytes) override {
        ++calls;
        return !bytes.empty() && bytes[0] == first_;
    }
    int calls = 0;

private:
    unsigned char first_;
};

class ImageDBTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string path = folder.File("learn.dll");
        cardtest::MakeDatabase(path, cardtest::SmallDeck());
        OpenConnection(cn, path);
        OpenRecordset(rs, cn, "SELECT * FROM tblCards");
    }
    void TearDown() override { modImageDB::SetDecoder(nullptr); }

    Picture Stale() {
        Picture p;
        p.descriptor = "card 99";
        p.bytes = std::make_shared<std::vector<unsigned char>>(3, 7);
        return p;
    }

    cardtest::TempFolder folder;
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
};

TEST_F(ImageDBTest, LoadsTheCurrentRowsPictureFromMemory) {
    StubDecoder decoder(0x89);
    modImageDB::SetDecoder(&decoder);
    Picture target;
    rs->MoveFirst();
    ASSERT_TRUE(modImageDB::LoadPictureFromField(target, *rs, "PictureData"));
    EXPECT_EQ(target.descriptor, "card 1");
    ASSERT_TRUE(target.bytes);
    EXPECT_EQ(*target.bytes,
              (std::vector<unsigned char>{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0, 1}));
    EXPECT_EQ(decoder.calls, 1);
    // The same row loads again: the chunk is read whole each time.
    ASSERT_TRUE(modImageDB::LoadPictureFromField(target, *rs, "PictureData"));
    EXPECT_EQ(target.bytes->size(), 10u);
}

TEST_F(ImageDBTest, BadOrMissingDataLeavesAnEmptyPicture) {
    StubDecoder decoder(0x89);
    modImageDB::SetDecoder(&decoder);
    struct Case {
        const char* filter;
        const char* field;
        const char* why;
    };
    for (const Case& c :
         {Case{"ID=2", "PictureData", "decoder refuses the bytes"},
          Case{"ID=5", "PictureData", "Null field"}, Case{"ID=3", "PictureData", "empty field"},
          Case{"ID=1", "Portrait", "no such field"},
          Case{"ID=40", "PictureData", "no current row"}}) {
        rs->SetFilter(c.filter);
        Picture target = Stale();
        EXPECT_FALSE(modImageDB::LoadPictureFromField(target, *rs, c.field)) << c.why;
        EXPECT_TRUE(target.empty()) << c.why;
        EXPECT_FALSE(target.bytes) << c.why;
    }
}

TEST_F(ImageDBTest, WithoutADecoderKnownPictureFilesAreAccepted) {
    Picture target;
    for (long id : {1L, 2L, 12L}) { // PNG, JPEG and GIF signatures
        rs->SetFilter("ID=" + std::to_string(id));
        EXPECT_TRUE(modImageDB::LoadPictureFromField(target, *rs, "PictureData")) << id;
        EXPECT_EQ(target.descriptor, "card " + std::to_string(id));
    }
    rs->SetFilter("ID=9"); // bytes of no known kind
    EXPECT_FALSE(modImageDB::LoadPictureFromField(target, *rs, "PictureData"));
    EXPECT_TRUE(target.empty());
}

} // namespace
