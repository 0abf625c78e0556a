// The Take Test tab: one question per card of the selection, in random order.
// One button drives everything: it scores the question on the screen, draws
// the next card, builds the next question, and ends the test.
#include "frmLearnTarotMain.h"

#include "cards/modDB.h"
#include "cards/modImageDB.h"
#include "common/Errors.h"
#include "common/Numbers.h"
#include "common/Random.h"
#include "common/modGlobals.h"

namespace quillane {

namespace {

// The options and keyword boxes in use, by level.
struct LevelRanges {
    std::int32_t firstOption, lastOption, lastKeywordBox, keywordsToChoose;
};
constexpr LevelRanges kLevels[3] = {{2, 4, 6, 2}, {1, 5, 11, 4}, {0, 6, 19, 6}};

// A whole number from 0 to count - 1: the integer part of r times count.
long Draw(long count) {
    return Int(double(Rnd()) * double(count));
}

std::string IdFilter(std::int32_t id) {
    return "ID=" + std::to_string(id);
}

// Draws a keyword from the row set until the text is not empty. A row set
// without rows (a card with no keywords, which the deck rules out) stops with
// the run-time error of a missing row instead of drawing for ever.
std::string DrawKeyword(modDB::Recordset& keywords) {
    if (keywords.RecordCount() == 0)
        throw RuntimeError(3021, "Either BOF or EOF is True, or the current record has been "
                                 "deleted. Requested operation requires a current record.");
    std::string text;
    do {
        text.clear();
        const long n = Draw(keywords.RecordCount()) + 1;
        keywords.MoveFirst();
        keywords.Move(n - 1);
        if (keywords.RecordCount() > 0)
            text = keywords.Field("Keyword").AsString();
        else
            keywords.SetFilter("");
    } while (text.empty());
    return text;
}

} // namespace

void frmLearnTarotMain::BuildTestTab() {
    cmdNextQuestion.SetCaption("Next Question");
    questionPanels.Add(picDescContainer);
    questionPanels.Add(picKeywodContainer);
    cmdNextQuestion.Click = [this] { cmdNextQuestion_Click(); };
    optAnswer.OnClick([this](int) { optAnswer_Click(); });
    chkKeywords.OnClick([this](int i) { chkKeywords_Click(i); });
}

void frmLearnTarotMain::cmdStartTest_Click() {
    questionPanels.BringToFront(DescriptionTest() ? picDescContainer : picKeywodContainer);
    lngCorrectCount = 0;
    lngUsedCards.Erase();
    lngScores.Erase();
    lngKeywordPositions.Erase();
    blnReversedFlags.Erase();
    blnFirstQuestion = vbTrue;
    lblIsReversed.SetCaption("");
    lngQuestionCounter = 0;
    lblQCount.SetCaption("");
    Randomize();
    cmdNextQuestion_Click();
}

void frmLearnTarotMain::cmdNextQuestion_Click() {
    // Held here: events that run inside the draw may open a new selection.
    const std::shared_ptr<modDB::Recordset> selection = modDB::rsCards;
    modDB::Recordset& cards = *selection;
    // The pass after the last real question is built and thrown away: its
    // handler runs once more at once, and that run ends the test.
    for (;;) {
        SSTab1.SetTabEnabled(kTestTab, true);
        cmdNextQuestion.SetEnabled(false);
        cards.SetFilter("");
        ++lngQuestionCounter;
        const long count = cards.RecordCount();
        if (!blnFirstQuestion && lngQuestionCounter - 1 > count &&
            modGlobals::IsArrayInitialised(lngUsedCards)) {
            for (std::int32_t score : lngScores.Items())
                if (score == 1)
                    ++lngCorrectCount;
            SSTab1.SetTab(kResultsTab);
            SSTab1.SetTabEnabled(kResultsTab, true);
            ShowTestReport();
            App().MsgBox("Test Complete", MsgButtons::Ok, MsgIcon::Information);
            return;
        }
        long answered = -1; // the entry of the question on the screen
        if (!blnFirstQuestion) {
            answered = lngUsedCards.IsInitialised() ? lngUsedCards.UBound() + 1 : 0;
            lngUsedCards.ReDimPreserve(answered);
            lngScores.ReDimPreserve(answered);
            blnReversedFlags.ReDimPreserve(answered);
            lngUsedCards(answered) = lngCurrentCardID;
        }
        // The draw: after as many attempts as there are cards, the card last
        // drawn is taken, even one asked before.
        long attempts = 0;
        do {
            cards.MoveFirst();
            cards.Move(Draw(count));
            lngCurrentCardID = std::int32_t(cards.Field("Id").AsLong());
            App().Svc().events->DoEvents();
            cards.SetFilter("");
            ++attempts;
        } while (modGlobals::IsInLongArray(lngCurrentCardID, lngUsedCards) && attempts < count);

        if (!blnFirstQuestion) {
            blnReversedFlags(answered) = blnIsReversed;
            Text1.SetText(Text1.Text() + lblCardName.Caption() + "\r\n");
            if (!DescriptionTest()) {
                for (long i = 0; i <= lngKeywordsToChoose; ++i)
                    if (chkKeywords(int(lngKeywordPositions(i))).Value() == 1)
                        ++lngScores(answered);
            } else {
                for (int i = 0; i <= 6; ++i)
                    if (optAnswer(i).Selected() && optAnswer(i).Tag() == "True")
                        lngScores(answered) = 1;
            }
        } else {
            Text1.SetText("");
        }
        if (DescriptionTest())
            LoadDescriptionQuestion();
        else
            LoadCardKeywordQuestion();
        SSTab1.SetTab(kTestTab);
        blnFirstQuestion = vbFalse;
        if (lngQuestionCounter <= count) {
            lblQCount.SetCaption(std::to_string(lngQuestionCounter) + " of " +
                                 std::to_string(count));
            return;
        }
        lblQCount.SetCaption("");
        for (int i = 0; i <= 2; ++i)
            chkKeywords(i).SetValue(1);
    }
}

void frmLearnTarotMain::LoadDescriptionQuestion() {
    const std::shared_ptr<modDB::Recordset> selection = modDB::rsCards;
    modDB::Recordset& cards = *selection;
    cards.MoveFirst();
    cards.SetFilter(IdFilter(lngCurrentCardID));
    lblCardName.SetCaption(cards.Field("Name").AsString());
    if (chkReversed.Value() == 1) {
        blnIsReversed = VBBool(CInt(double(Rnd()) * 10) % 2 != 0);
        lblIsReversed.SetCaption(blnIsReversed ? "Reversed" : "");
    } else {
        blnIsReversed = vbFalse;
        lblIsReversed.SetCaption("");
    }
    const LevelRanges& level = kLevels[Level()];
    lngFirstOption = level.firstOption;
    lngLastOption = level.lastOption;
    const long right = Draw(lngLastOption - lngFirstOption + 1) + lngFirstOption;
    for (int i = 0; i <= 6; ++i) {
        optAnswer(i).SetValue(0);
        const bool inUse = i >= lngFirstOption && i <= lngLastOption;
        optAnswer(i).SetEnabled(inUse);
        optAnswer(i).SetVisible(inUse);
        Shape1(i).SetVisible(inUse);
        optAnswer(i).SetTag(inUse && i == right ? "True" : "");
    }
    // The distractors: distinct row positions, the card asked not excluded.
    VBArray<std::int32_t> positions(lngFirstOption, lngLastOption);
    for (long i = lngFirstOption; i <= lngLastOption; ++i)
        positions(i) = -1;
    for (long i = lngFirstOption; i <= lngLastOption; ++i) {
        if (i == right)
            continue;
        cards.SetFilter("");
        std::int32_t n = 0;
        do {
            n = std::int32_t(Draw(cards.RecordCount()) + 1);
            App().Svc().events->DoEvents();
        } while (modGlobals::IsInLongArray(n, positions));
        positions(i) = n;
    }
    const char* meaning = blnIsReversed ? "reversedmeaning" : "normalmeaning";
    for (long i = lngFirstOption; i <= lngLastOption; ++i) {
        cards.MoveFirst();
        if (i != right) {
            cards.Move(positions(i) - 1);
            optAnswer(int(i)).SetCaption(cards.Field(meaning).AsString());
        } else {
            cards.SetFilter(IdFilter(lngCurrentCardID));
            ShowQuestionPicture();
            optAnswer(int(i)).SetCaption(cards.Field(meaning).AsString());
            cards.SetFilter("");
        }
    }
    cards.SetFilter("");
}

void frmLearnTarotMain::ShowQuestionPicture() {
    Picture picture;
    modImageDB::LoadPictureFromField(picture, *modDB::rsCards, "PictureData");
    picture.rot180 = blnIsReversed && !picture.empty();
    picResult.SetPicture(picture);
}

void frmLearnTarotMain::LoadCardKeywordQuestion() {
    modDB::Recordset& cards = *modDB::rsCards;
    blnIsReversed = vbFalse;
    const LevelRanges& level = kLevels[Level()];
    lngLastKeywordBox = level.lastKeywordBox;
    lngKeywordsToChoose = level.keywordsToChoose;
    lblMaxKeyword.SetCaption("You must choose " + std::to_string(lngKeywordsToChoose + 1) +
                             " keywords");
    for (int i = 0; i <= 19; ++i) {
        chkKeywords(i).SetValue(0);
        chkKeywords(i).SetEnabled(i <= lngLastKeywordBox);
        chkKeywords(i).SetVisible(i <= lngLastKeywordBox);
    }
    cards.MoveFirst();
    cards.SetFilter(IdFilter(lngCurrentCardID));
    lblCardName.SetCaption(cards.Field("Name").AsString());
    ShowQuestionPicture();
    PickKeywordPositions();

    const std::string id = std::to_string(cards.Field("Id").AsLong());
    // The membership tests of the two draws guard only against an empty
    // text: the same keyword can be drawn twice, and then stands twice.
    VBArray<std::string> right(0, lngKeywordsToChoose);
    std::shared_ptr<modDB::Recordset> own;
    modDB::OpenRecordset(own, modDB::cnCards,
                         "SELECT DISTINCT * FROM tblKeywords WHERE CardID=" + id);
    for (long k = 0; k <= lngKeywordsToChoose; ++k)
        right(k) = DrawKeyword(*own);
    VBArray<std::string> wrong(0, 19);
    std::shared_ptr<modDB::Recordset> others;
    modDB::OpenRecordset(others, modDB::cnCards,
                         "SELECT DISTINCT * FROM tblKeywords WHERE Not CardID=" + id);
    for (int i = 0; i <= lngLastKeywordBox; ++i) {
        wrong(i) = DrawKeyword(*others);
        chkKeywords(i).SetCaption(wrong(i));
    }
    for (int i = 0; i <= 19; ++i)
        chkKeywords(i).SetTag("");
    for (long k = 0; k <= lngKeywordsToChoose; ++k)
        chkKeywords(int(lngKeywordPositions(k))).SetCaption(right(k));
    cards.SetFilter("");
}

void frmLearnTarotMain::PickKeywordPositions() {
    lngKeywordPositions.ReDim(0, lngKeywordsToChoose);
    for (long k = 0; k <= lngKeywordsToChoose; ++k)
        lngKeywordPositions(k) = -1;
    for (long k = 0; k <= lngKeywordsToChoose; ++k) {
        std::int32_t p = std::int32_t(Draw(lngLastKeywordBox + 1));
        while (modGlobals::IsInLongArray(p, lngKeywordPositions))
            p = std::int32_t(Draw(lngLastKeywordBox + 1));
        lngKeywordPositions(k) = p;
    }
    for (int i = 0; i <= lngLastKeywordBox; ++i)
        chkKeywords(i).SetCaption("");
}

void frmLearnTarotMain::optAnswer_Click() {
    cmdNextQuestion.SetEnabled(true);
    cmdNextQuestion.SetFocus();
}

void frmLearnTarotMain::chkKeywords_Click(int Index) {
    int ticked = 0;
    for (int i = 0; i <= lngLastKeywordBox; ++i)
        ticked += chkKeywords(i).Value() == 1;
    const int wanted = lngKeywordsToChoose + 1;
    if (ticked == wanted) {
        cmdNextQuestion.SetEnabled(true);
        cmdNextQuestion.SetFocus();
    } else if (ticked > wanted) {
        chkKeywords(Index).SetValue(0);
        App().MsgBox("You can select only " + std::to_string(wanted) +
                         " keywords.\r\nPlease unselect one before selecting another keyword",
                     MsgButtons::Ok, MsgIcon::Exclamation);
    } else {
        cmdNextQuestion.SetEnabled(false);
    }
}

} // namespace quillane
