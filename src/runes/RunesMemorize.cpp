// The memorise panel of the Runes window: the walk through the selected
// stones, with its picture-number rule and its extra press at each end.
#include "frmLearnRunesMain.h"

#include "runes/ResumeNext.h"
#include "runes/RuneWalk.h"
#include "runes/modLearnRunes.h"

#include <optional>

namespace quillane {

using namespace modLearnRunes;
using runes::Resume;

void frmLearnRunesMain::BuildMemorizePanel() {
    lblStoneName.SetCaption("Stone Name");
    const char* const captions[5] = {"Normal Meaning", "Reverse Meaning", "Markstave Meaning",
                                     "Keywords", "Alternative Names"};
    for (int i = 0; i <= 4; ++i)
        lblMeaningCaption(i).SetCaption(captions[i]);
    // The design pictures; the blank stone of the merkstave column is never
    // written again.
    picStone(0).SetPicture(Img(1));
    picStone(1).SetPicture(Img(2));
    picStone(2).SetPicture(Img(25));
    cmdBack.SetCaption("<< Back");
    cmdNext.SetCaption("Next >>");
}

void frmLearnRunesMain::Memorize_Stone() {
    Resume([&] {
        for (long i = 0; i <= intStoneSlot.UBound() - 1; ++i)
            intStoneSlot(i) = std::int16_t(i);
    });
    for (int group = 0; group <= 2; ++group)
        Resume([&] {
            if (chkGroups(group).Value() == 0)
                for (int i = group * kStonesPerAett; i < (group + 1) * kStonesPerAett; ++i)
                    intStoneSlot(i) = -1;
        });
    long n = 0;
    Resume([&] {
        for (int i = 0; i <= 23; ++i)
            if (intStoneSlot(i) != -1)
                ++n;
    });
    Resume([&] { intSelectedStone.ReDim(0, n); });
    Resume([&] {
        long next = 0;
        for (int i = 0; i <= 23; ++i)
            if (intStoneSlot(i) != -1)
                intSelectedStone(next++) = intStoneSlot(i);
    });
}

void frmLearnRunesMain::cmdMemorize_Click() {
    Resume([&] { cmdSaveSettings_Click(); });
    if (blnSettingsValid == 0)
        return;
    blnSettingsValid = 0;
    Resume([&] { cmdSubjects_Click(1); });
    Resume([&] { Memorize_Stone(); });
    // The picture number is the list's second entry, which matches the first
    // stone only because the groups are runs of eight. With nothing selected
    // there is no second entry: the texts still show, the pictures stay.
    long picture = 0;
    Resume([&] { picture = intSelectedStone(1); });
    Resume([&] { ShowStone(picture); });
    Resume([&] { intStoneIndex = 0; });
}

void frmLearnRunesMain::ShowStone(long pictureNumber) {
    Resume([] { LoadRuneTables(); });
    std::optional<std::size_t> stone;
    Resume([&] { stone = std::size_t(intSelectedStone(intStoneIndex)); });
    // Each statement on its own: a stone that cannot be read leaves the
    // texts as they were, a picture that does not exist the pictures.
    auto s = [&] { return stone.value(); };
    Resume([&] { lblStoneName.SetCaption(strStoneName.at(s())); });
    Resume([&] { txtMeaning(0).SetText(strNormalMeaning.at(s())); });
    Resume([&] { txtMeaning(1).SetText(strReverseMeaning.at(s())); });
    Resume([&] { txtMeaning(2).SetText(strMarkstaveMeaning.at(s())); });
    Resume([&] { picStone(0).SetPicture(Img(pictureNumber)); });
    Resume([&] { picStone(1).SetPicture(Img(pictureNumber)); });
    Resume([&] { ReverseStonePicture(); });
    Resume([&] { txtKeywords.SetText(""); });
    Resume([&] { txtAlternativeNames.SetText(""); });
    auto append = [](Control& box, const std::string& item) {
        box.SetText(box.Text().empty() ? item : box.Text() + ", " + item);
    };
    Resume([&] {
        for (std::size_t k = 4 * s(); k <= 4 * s() + 3; ++k)
            Resume([&] { append(txtKeywords, strKeyword.at(k)); });
    });
    Resume([&] {
        for (std::size_t k = 3 * s(); k <= 3 * s() + 2; ++k)
            Resume([&] { append(txtAlternativeNames, strAlternativeName.at(k)); });
    });
}

void frmLearnRunesMain::ReverseStonePicture() {
    // Drawing the picture onto itself from the far corner turns it through
    // 180 degrees; a picture already turned turns back.
    Picture picture = picStone(1).Picture();
    if (picture.empty())
        return;
    picture.rot180 = !picture.rot180;
    picStone(1).SetPicture(picture);
}

void frmLearnRunesMain::cmdNext_Click() {
    Resume([] { LoadRuneTables(); });
    intStoneIndex = std::int16_t(intStoneIndex + 1);
    long upper = 0;
    if (!Resume([&] { upper = intSelectedStone.UBound(); }))
        return;
    if (intStoneIndex >= upper) {
        // Past the last stone: it stays on show, and the test is offered.
        intStoneIndex = std::int16_t(upper - 1);
        Resume([&] { cmdNext.SetEnabled(false); });
        const auto answer =
            App().MsgBox("You Are Ready To Give Test\rAre You Sure You Want To Give Test",
                         MsgButtons::YesNo, MsgIcon::Information);
        if (answer == MsgAnswer::Yes)
            Resume([&] { cmdSubjects_Click(2); });
        return;
    }
    // The picture follows the position in the walk, not the stone.
    Resume([&] { ShowStone(intStoneIndex + 1); });
    Resume([&] { cmdNext.SetEnabled(true); });
    Resume([&] { cmdBack.SetEnabled(true); });
}

void frmLearnRunesMain::cmdBack_Click() {
    Resume([] { LoadRuneTables(); });
    intStoneIndex = std::int16_t(intStoneIndex - 1);
    if (intStoneIndex < 0) {
        intStoneIndex = 0;
        Resume([&] { cmdBack.SetEnabled(false); });
        return;
    }
    Resume([&] { ShowStone(intStoneIndex + 1); });
    Resume([&] { cmdBack.SetEnabled(true); });
    Resume([&] { cmdNext.SetEnabled(true); });
}

} // namespace quillane
