// The Memorize tab: a walk through the selected cards, one at a time, each
// with its picture upright and turned, both meanings and its keywords.
#include "frmLearnTarotMain.h"

#include "cards/modDB.h"
#include "cards/modImageDB.h"

namespace quillane {

namespace {
// How many keywords the card shows: a fixed seven, each with ", " behind it.
constexpr int kKeywordsShown = 7;
} // namespace

void frmLearnTarotMain::BuildMemorizeTab() {
    lblCardNameMemorize.SetCaption("Card Name");
    Label9.SetCaption("Card Meaning :");
    Label17.SetCaption("Reverse Meaning");
    Label8.SetCaption("Keywords (same for both)");
    cmdPrevious.SetCaption("<< Previous");
    cmdNext.SetCaption("Next >>");
    cmdStartTest.SetCaption("Test Me");
    for (Control* box : {&txtNormalMeaning, &txtReverseMeaning, &txtKeywords})
        box->SetLocked(true);
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdPrevious.Click = [this] { cmdPrevious_Click(); };
    cmdStartTest.Click = [this] { cmdStartTest_Click(); };
}

void frmLearnTarotMain::ShowCard() {
    modDB::Recordset& cards = *modDB::rsCards;
    lblCardNameMemorize.SetCaption(cards.Field("Name").AsString());
    Picture upright;
    modImageDB::LoadPictureFromField(upright, cards, "PictureData");
    picCardMemorize.SetPicture(upright);
    // The same picture, turned through 180 degrees.
    Picture turned = upright;
    turned.rot180 = !upright.empty();
    picCardMemorizeReversed.SetPicture(turned);
    txtNormalMeaning.SetText(cards.Field("normalmeaning").AsString());
    txtReverseMeaning.SetText(cards.Field("reversedmeaning").AsString());

    std::shared_ptr<modDB::Recordset> keywords;
    modDB::OpenRecordset(keywords, modDB::cnCards,
                         "SELECT DISTINCT * FROM tblKeywords WHERE CardID=" +
                             std::to_string(cards.Field("Id").AsLong()));
    std::string text;
    for (int i = 0; i < kKeywordsShown; ++i) {
        text += keywords->Field("Keyword").AsString() + ", ";
        keywords->MoveNext();
    }
    txtKeywords.SetText(text);
}

void frmLearnTarotMain::cmdNext_Click() {
    cmdPrevious.SetEnabled(true);
    modDB::Recordset& cards = *modDB::rsCards;
    if (lngCardPosition < cards.RecordCount()) {
        ++lngCardPosition;
        cards.MoveNext();
        ShowCard();
    } else {
        cmdNext.SetEnabled(false);
    }
}

void frmLearnTarotMain::cmdPrevious_Click() {
    cmdNext.SetEnabled(true);
    if (lngCardPosition < 2) {
        cmdPrevious.SetEnabled(false);
        return;
    }
    cmdPrevious.SetEnabled(true);
    --lngCardPosition;
    modDB::rsCards->MovePrevious();
    ShowCard();
}

} // namespace quillane
