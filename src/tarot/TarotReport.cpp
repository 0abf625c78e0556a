// The Results tab: the fixed-layout report of a test, its summary line, and
// saving the report to a text file.
#include "frmLearnTarotMain.h"

#include "cards/modDB.h"
#include "common/Numbers.h"
#include "common/TextFiles.h"

namespace quillane {

namespace {

std::string Blanks(long count) {
    return std::string(std::size_t(std::max(0L, count)), ' ');
}

} // namespace

void frmLearnTarotMain::ShowTestReport() {
    std::shared_ptr<modDB::Recordset> names;
    modDB::OpenRecordset(names, modDB::cnCards, "SELECT * FROM tblCards");
    const std::string title = std::string("Test Report For ") + Application::kTitle;
    std::string report = title + "\r\n" + std::string(title.size(), '-') + "\r\n";
    const bool description = DescriptionTest();
    const std::int32_t perQuestion = lngKeywordsToChoose + 1;
    for (long i = 0; i <= lngUsedCards.UBound(); ++i) {
        names->MoveFirst();
        names->SetFilter("ID=" + std::to_string(lngUsedCards(i)));
        const std::string name = names->Field("Name").AsString();
        report += "\r\n" + Format00(i + 1) + ". " + "     " + name;
        // Both keep the verdict in one column; a long name only loses the gap.
        if (blnReversedFlags(i))
            report += " (Reversed)" + Blanks(25 - long(name.size()));
        else
            report += Blanks(36 - long(name.size()));
        if (description) {
            report += lngScores(i) != 0 ? "Correct" : "Wrong";
        } else {
            report += std::to_string(lngScores(i)) + " Out Of " + std::to_string(perQuestion) +
                      " Correct";
            lngCorrectCount += lngScores(i);
        }
    }
    report += "\r\n" + std::string(64, '_') + "\r\n";
    const long count = modDB::rsCards->RecordCount();
    if (description)
        lblResultInfo.SetCaption(std::to_string(lngCorrectCount) + " out of " +
                                 std::to_string(count) + " questions correct");
    else
        lblResultInfo.SetCaption(std::to_string(lngCorrectCount) + "/" +
                                 std::to_string(count * perQuestion) + " choice(s) from " +
                                 std::to_string(count) + " questions were correct");
    report += lblResultInfo.Caption();
    txtResult.SetText(report);
    txtResult.SetSelStart(long(report.size()));
}

void frmLearnTarotMain::Command5_Click() {
    // Saving never reports a failure: a file that can't be written is not written.
    try {
        const auto file = App().Svc().saveDialog->GetSaveFileName("Text file (*.txt)");
        if (!file || file->empty())
            return;
        ReplaceFile(*file, txtResult.Text() + "\r\n");
    } catch (const std::exception&) {
    }
}

} // namespace quillane
