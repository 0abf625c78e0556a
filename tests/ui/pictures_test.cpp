// The pictures compiled into the program: each a valid drawing made of paths
// (no lettering that depends on installed fonts), none the same as another,
// and one for every sign, planet and rune entry the subjects ask for.
#include "DesktopSession.h"
#include "runes/modLearnRunes.h"

#include <QDirIterator>
#include <QFile>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace quillane::modLearnRunes;

TEST(Pictures, EachIsAValidDrawingOfPathsNoneIsAnothersCopyAndEveryEntryHasOne) {
    quillane::testing::EnsureQApplication();
    std::set<QByteArray> seen;
    for (const char* folder : {":/astrology", ":/icons", ":/launcher", ":/runes"}) {
        int count = 0;
        for (QDirIterator it(folder, {"*.svg"}, QDir::Files); it.hasNext(); ++count) {
            const QString path = it.next();
            QFile file(path);
            const QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            QSvgRenderer renderer(svg);
            EXPECT_TRUE(renderer.isValid()) << path.toStdString();
            EXPECT_FALSE(svg.contains("<text") || svg.contains("font")) << path.toStdString();
            EXPECT_TRUE(seen.insert(svg).second) << path.toStdString() << " repeats another";
            const QSize size = renderer.defaultSize();
            if (path.startsWith(":/astrology/")) {
                EXPECT_EQ(size.width(), size.height()) << path.toStdString();
            }
            if (path.startsWith(":/runes/stone-")) {
                EXPECT_EQ(size, QSize(113, 151)) << path.toStdString();
                // The blank stone carries no carving; every other stone does.
                EXPECT_EQ(svg.contains("class=\"rune\""), !path.endsWith("blank.svg"));
            }
        }
        EXPECT_GT(count, 1) << folder;
    }
    // Every sign, planet and rune entry has its picture.
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(QFile::exists(QString(":/astrology/sign-%1.svg").arg(i))) << i;
        EXPECT_TRUE(i >= 10 || QFile::exists(QString(":/astrology/planet-%1.svg").arg(i))) << i;
    }
    // Entry n is stone n, the blank stone last.
    LoadRuneTables();
    for (int entry = 1; entry <= 25; ++entry) {
        const std::string name = entry <= 24 ? strStoneName[std::size_t(entry - 1)] : "Blank";
        EXPECT_EQ(kImgKey.at(std::size_t(entry - 1)).substr(3), name);
        EXPECT_TRUE(QFile::exists(QString::fromStdString(":/runes/" + ImgFileName(entry))))
            << entry;
    }
    EXPECT_EQ(ImgFileName(0) + ImgFileName(26), "");
}

} // namespace
