// The desktop program runs under the user's locale (Qt sets it at start), and
// the C library then writes "0,5", reads "1.5" as 1, and under Turkish leaves
// 'i' as it is when upper-casing. The logic's numbers, names and files stay
// the same under such locales, and so do its files in folders of any name.
#include "cards/Connection.h"
#include "cards/Recordset.h"
#include "common/Json.h"
#include "common/Numbers.h"
#include "common/Paths.h"
#include "common/TextFiles.h"
#include "runes/modLearnRunes.h"

#include "DriveSession.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace quillane;

class UnderLocale : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!std::setlocale(LC_ALL, GetParam()))
            GTEST_SKIP() << "the locale " << GetParam()
                         << " is not installed here (scripts/install-deps.sh makes it)";
        ASSERT_STRNE(std::localeconv()->decimal_point, ".") << "the locale is in force";
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

TEST_P(UnderLocale, NumbersKeepTheirPoint) {
    EXPECT_EQ(Json(0.5).Dump(), "0.5");
    EXPECT_EQ(Json(2.0 / 3.0).Dump(), "0.666666667");
    const auto parsed = Json::Parse(R"([1.5,-2.25e1,7])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->Dump(), "[1.5,-22.5,7]");
    EXPECT_EQ(ReadNumber(" 1.5 stones"), 1.5);
    EXPECT_EQ(ReadNumber("1,5"), 1.0) << "a comma ends the number";
}

TEST_P(UnderLocale, NamesMatchWithoutRegardToCase) {
    modDB::Recordset cards({"ID", "Name"}, {{modDB::Value::Integer(7), modDB::Value::Text("Isa")}});
    cards.SetFilter("id=7");
    EXPECT_EQ(cards.RecordCount(), 1);
    EXPECT_EQ(cards.Field("name").AsString(), "Isa");
    cards.SetFilter("NAME='isa'");
    EXPECT_EQ(cards.RecordCount(), 1);
    EXPECT_EQ(modDB::ConnectionStringValue("driver=x;Dbq=learn.dll;pwd=y", "DBQ"), "learn.dll");
    EXPECT_EQ(modLearnRunes::ImgFileName(11), "stone-11-isa.svg");
    EXPECT_EQ(modLearnRunes::ImgFileName(22), "stone-22-ingwaz.svg");
}

// Folder names are UTF-8 text to the program on every system.
TEST_P(UnderLocale, FilesLiveInFoldersWithAnyLetters) {
    quillane::testing::ScratchDir scratch;
    std::string folder = PathToUtf8(scratch.Path()) + "/\xC3\x9C"
                                                      "bungen \xC4\x9F\xC4\xB1";
    std::filesystem::create_directory(PathFromUtf8(folder));
    const std::string goal = folder + "/Goal1.txt";
    ReplaceFile(goal, "caf\xC3\xA9\r\n");
    EXPECT_TRUE(FileExists(goal));
    EXPECT_EQ(ReadLines(goal), std::vector<std::string>{"caf\xC3\xA9"});
}

INSTANTIATE_TEST_SUITE_P(Locales, UnderLocale, ::testing::Values("de_DE.UTF-8", "tr_TR.UTF-8"));

} // namespace
