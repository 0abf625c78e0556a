// quillane-bench-cards: the cost of showing one card as the memorise walk does.
//
// Opens the full selection, then for every card: loads its picture from the
// row, draws it at its box's size upright and turned through 180 degrees (as
// the window's picture cache does when it meets a card for the first time),
// opens its keyword query and reads seven keywords. The walk runs several
// times, each with an empty cache; the median time per card is printed.
// Target: at most 1 ms per card.
//
//   quillane-bench-cards [path/to/learn.dll]
#include "cards/modDB.h"
#include "cards/modImageDB.h"
#include "common/Errors.h"
#include "platform/DesktopServices.h"
#include "ui/binding/Pictures.h"

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

using namespace quillane;

namespace {

constexpr int kWalks = 5;
constexpr double kTargetMs = 1.0;
// The size of a card's box in the Tarot window.
constexpr QSize kCardBox(132, 228);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication qt(argc, argv);
    std::string path = argc > 1 ? argv[1] : QUILLANE_LEARN_DLL;
    ImageDecoder decoder; // the program's own
    modImageDB::SetDecoder(&decoder);
    try {
        auto start = std::chrono::steady_clock::now();
        modDB::OpenConnection(modDB::cnCards, path);
        modDB::OpenRecordset(modDB::rsCards, modDB::cnCards,
                             "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) OR  "
                             "(Group=2) OR  (Group=3) OR  (Group=4) ORDER BY ID");
        double openMs =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count();
        modDB::Recordset& rs = *modDB::rsCards;

        std::vector<double> perCard;
        std::string shown; // kept so that the reads cannot be left out
        for (int walk = 0; walk < kWalks; ++walk) {
            ui::PictureCache pictures; // a first meeting with every card
            rs.MoveFirst();
            for (long position = 1; position <= rs.RecordCount(); ++position) {
                auto t0 = std::chrono::steady_clock::now();
                Picture picture;
                if (!modImageDB::LoadPictureFromField(picture, rs, "PictureData")) {
                    std::fprintf(stderr, "card %ld: picture failed to load\n", position);
                    return 1;
                }
                Picture turned = picture;
                turned.rot180 = true;
                if (pictures.Render(picture, kCardBox, 1.0).isNull() ||
                    pictures.Render(turned, kCardBox, 1.0).isNull()) {
                    std::fprintf(stderr, "card %ld: picture failed to draw\n", position);
                    return 1;
                }
                std::shared_ptr<modDB::Recordset> keywords;
                modDB::OpenRecordset(keywords, modDB::cnCards,
                                     "SELECT DISTINCT * FROM tblKeywords WHERE CardID=" +
                                         rs.Field("Id").AsString());
                shown.clear();
                for (int i = 0; i < 7; ++i) {
                    shown += keywords->Field("Keyword").AsString() + ", ";
                    keywords->MoveNext();
                }
                shown += rs.Field("normalmeaning").AsString();
                shown += rs.Field("reversedmeaning").AsString();
                perCard.push_back(
                    std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0)
                        .count());
                if (position < rs.RecordCount())
                    rs.MoveNext();
            }
        }
        std::sort(perCard.begin(), perCard.end());
        double median = perCard[perCard.size() / 2];
        std::printf("cards: %ld, walks: %d, open selection: %.2f ms\n", rs.RecordCount(), kWalks,
                    openMs);
        std::printf("median per card: %.3f ms (slowest %.3f ms; target %.0f ms)\n", median,
                    perCard.back(), kTargetMs);
        return median <= kTargetMs ? 0 : 1;
    } catch (const FatalError& e) {
        std::fprintf(stderr, "%s: %s\n", e.File().c_str(), e.what());
        return 1;
    }
}
