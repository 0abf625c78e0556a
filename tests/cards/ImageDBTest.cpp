// Card pictures from the rows: loading into a picture, and the failures that
// leave it empty.
#include "TestDatabase.h"
#include "cards/modDB.h"
#include "cards/modImageDB.h"

#include <gtest/gtest.h>

using namespace quillane;
using namespace quillane::modDB;

namespace {

// Accepts what starts as a PNG file does, and counts its calls.
struct PngDecoder : IPictureDecoder {
    bool CanDecode(const std::vector<unsigned char>& bytes) override {
        ++calls;
        return !bytes.empty() && bytes[0] == 0x89;
    }
    int calls = 0;
};

struct ImageDBTest : ::testing::Test {
    void SetUp() override {
        OpenConnection(cn, cardtest::SmallDeckIn(folder));
        OpenRecordset(rs, cn, "SELECT * FROM tblCards");
    }
    void TearDown() override { modImageDB::SetDecoder(nullptr); }

    quillane::testing::ScratchDir folder;
    std::shared_ptr<Connection> cn;
    std::shared_ptr<Recordset> rs;
};

TEST_F(ImageDBTest, APictureOfAKnownKindLoadsWholeAndEveryFailureLeavesItEmpty) {
    PngDecoder png;
    const struct {
        PngDecoder* decoder;
        long id;
        const char* field;
        bool loads;
        const char* why;
    } cases[] = {
        {&png, 1, "PictureData", true, "the decoder takes the bytes"},
        {&png, 2, "PictureData", false, "the decoder refuses the bytes"},
        {&png, 5, "PictureData", false, "Null field"},
        {&png, 3, "PictureData", false, "empty field"},
        {&png, 1, "Portrait", false, "no such field"},
        {&png, 40, "PictureData", false, "no current row"},
        {nullptr, 1, "PictureData", true, "a PNG without a decoder"},
        {nullptr, 2, "PictureData", true, "a JPEG without a decoder"},
        {nullptr, 12, "PictureData", true, "a GIF without a decoder"},
        {nullptr, 9, "PictureData", false, "bytes of no known kind"},
    };
    for (const auto& c : cases) {
        modImageDB::SetDecoder(c.decoder);
        rs->SetFilter("ID=" + std::to_string(c.id));
        Picture target; // one that held another card's picture
        target.descriptor = "card 99";
        target.bytes = std::make_shared<std::vector<unsigned char>>(3, 7);
        EXPECT_EQ(modImageDB::LoadPictureFromField(target, *rs, c.field), c.loads) << c.why;
        EXPECT_EQ(target.empty(), !c.loads) << c.why;
        EXPECT_EQ(target.descriptor, c.loads ? "card " + std::to_string(c.id) : "") << c.why;
        EXPECT_EQ(bool(target.bytes), c.loads) << c.why;
    }
    // The chunk is read whole at each load, and the decoder asked once.
    modImageDB::SetDecoder(&png);
    rs->SetFilter("ID=1");
    png.calls = 0;
    Picture target;
    for (int load = 0; load < 2; ++load) {
        ASSERT_TRUE(modImageDB::LoadPictureFromField(target, *rs, "PictureData"));
        EXPECT_EQ(*target.bytes,
                  (std::vector<unsigned char>{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0, 1}));
    }
    EXPECT_EQ(png.calls, 2);
}

} // namespace
