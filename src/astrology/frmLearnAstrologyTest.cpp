// The test of the Astrology window: its questions and its report.
#include "frmLearnAstrologyMain.h"

#include "astrology/modLearnAstrology.h"

namespace quillane {

namespace mla = modLearnAstrology;

void frmLearnAstrologyMain::LoadQuestion() {
    if (run.intCurrent == 0)
        astrology::SetUpTest(run);
    const std::int16_t row = run.intOrder(run.intCurrent);
    const auto intChoice = astrology::DrawChoices(row);

    lblTest(0).SetCaption(run.strMainCaption);
    lblTest(1).SetCaption(run.strSubCaption);
    const bool houses = run.intMainIndex != mla::kSigns && run.intMainIndex != mla::kPlanets;
    lblTest(2).SetCaption(houses ? mla::strHouseNumber[std::size_t(row)] : run.strNames(row));
    for (int c = 0; c <= 4; ++c) {
        const std::string& choice = run.strValues(intChoice[std::size_t(c)]);
        optAnswer_Choice(c).SetCaption(choice);
        txtAnswer_Choice(c).SetText(choice);
    }
    if (houses) {
        picTest.SetVisible(false);
    } else {
        picTest.SetVisible(true);
        ShowGlyph(picTest, row);
    }
}

void frmLearnAstrologyMain::NextQuestion() {
    int chosen = 0;
    while (chosen < 4 && !optAnswer_Choice(chosen).Selected())
        ++chosen;
    run.strUserAnswer(run.intCurrent) = optAnswer_Choice(chosen).Caption();
    optAnswer_Choice(0).SetValue(-1);
    ++run.intCurrent;
    if (run.intCurrent < run.intOrder.UBound()) {
        LoadQuestion();
    } else {
        --run.intCurrent;
        ShowResult();
    }
}

void frmLearnAstrologyMain::ShowResult() {
    RTB.SetText("");
    RTB.SelFontSize = astrology::kReportPointSize;
    for (const astrology::ReportPiece& piece : astrology::ResultPieces(run)) {
        RTB.SetSelStart(long(RTB.Text().size()));
        RTB.SelBold = piece.bold;
        RTB.SetSelText(piece.text);
    }
    Frames.BringToFront(Frame4);
}

} // namespace quillane
