// quillane-bench-cards: the cost of showing one card as the memorise walk does:
// for every card of the full selection, its picture loaded from the row and
// drawn at its box's size upright and turned (as the picture cache does at a
// first meeting), its keyword query opened and seven keywords read. The median
// time a card over several walks, each with an empty cache. Target: 1 ms.
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
using Clock = std::chrono::steady_clock;

namespace {

constexpr int kWalks = 5;
constexpr double kTargetMs = 1.0;
constexpr QSize kCardBox(132, 228); // a card's box in the Tarot window

double MsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication qt(argc, argv);
    ImageDecoder decoder; // the program's own
    modImageDB::SetDecoder(&decoder);
    try {
        const auto start = Clock::now();
        modDB::OpenConnection(modDB::cnCards, argc > 1 ? argv[1] : QUILLANE_LEARN_DLL);
        modDB::OpenRecordset(modDB::rsCards, modDB::cnCards,
                             "SELECT * FROM tblCards WHERE  (Group=0) OR  (Group=1) OR  "
                             "(Group=2) OR  (Group=3) OR  (Group=4) ORDER BY ID");
        const double openMs = MsSince(start);
        modDB::Recordset& rs = *modDB::rsCards;
        std::vector<double> perCard;
        std::string shown; // kept so that the reads cannot be left out
        for (int walk = 0; walk < kWalks; ++walk) {
            ui::PictureCache pictures; // a first meeting with every card
            rs.MoveFirst();
            for (long position = 1; position <= rs.RecordCount(); ++position) {
                const auto t0 = Clock::now();
                Picture picture;
                const bool loaded = modImageDB::LoadPictureFromField(picture, rs, "PictureData");
                Picture turned = picture;
                turned.rot180 = true;
                if (!loaded || pictures.Render(picture, kCardBox, 1.0).isNull() ||
                    pictures.Render(turned, kCardBox, 1.0).isNull()) {
                    std::fprintf(stderr, "card %ld: picture failed to load or draw\n", position);
                    return 1;
                }
                std::shared_ptr<modDB::Recordset> keywords;
                modDB::OpenRecordset(keywords, modDB::cnCards,
                                     "SELECT DISTINCT * FROM tblKeywords WHERE CardID=" +
                                         rs.Field("Id").AsString());
                shown.clear();
                for (int i = 0; i < 7; ++i, keywords->MoveNext())
                    shown += keywords->Field("Keyword").AsString() + ", ";
                shown +=
                    rs.Field("normalmeaning").AsString() + rs.Field("reversedmeaning").AsString();
                perCard.push_back(MsSince(t0));
                if (position < rs.RecordCount())
                    rs.MoveNext();
            }
        }
        std::sort(perCard.begin(), perCard.end());
        const double median = perCard[perCard.size() / 2];
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
