// Printing on the desktop: the document the program sends to the printer is
// laid out and printed to a PDF file, and its text read back with pdftotext.
#include "DriveSession.h"
#include "drive/RecordingServices.h"
#include "numerology/modLearnNumerologyState.h"
#include "platform/DesktopServices.h"
#include "platform/IniSettingsStore.h"
#include "shell/StartUp.h"
#include "ui/binding/FormHost.h"
#include "ui/shell/QtServices.h"

#include "DesktopSession.h"
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QMainWindow>
#include <QPrinter>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

#include <sstream>

using namespace quillane;
using quillane::testing::RunProgram;
using quillane::testing::ScratchDir;

namespace {

// The words of a text, so that a page's own line breaks do not count.
std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> w;)
        words.push_back(w);
    return words;
}

// The text of a PDF file, page after page.
std::string PdfText(const std::string& pdf) {
    const auto read = RunProgram("pdftotext", {"-q", "-enc", "UTF-8", "-layout", pdf, "-"});
    if (!read)
        return "pdftotext failed on " + pdf;
    // The page's font joins some letters into one glyph; they count as letters.
    std::string text = *read;
    const std::pair<std::string, std::string> ligatures[] = {{"\xEF\xAC\x80", "ff"},
                                                             {"\xEF\xAC\x81", "fi"},
                                                             {"\xEF\xAC\x82", "fl"},
                                                             {"\xEF\xAC\x83", "ffi"},
                                                             {"\xEF\xAC\x84", "ffl"}};
    for (const auto& [glyph, letters] : ligatures)
        for (auto at = text.find(glyph); at != std::string::npos; at = text.find(glyph, at))
            text.replace(at, glyph.size(), letters);
    return text;
}

// A printer that writes each document to the next numbered PDF file.
class PdfPrinter : public IPrinter {
public:
    explicit PdfPrinter(std::string folder) : folder_(std::move(folder)) {}
    bool Print(const std::vector<TextRun>& document) override {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        const std::string file = folder_ + "/page" + std::to_string(files.size()) + ".pdf";
        printer.setOutputFileName(QString::fromStdString(file));
        const bool ok = ui::PrintDocument(printer, document);
        files.push_back(file);
        return ok;
    }
    std::vector<std::string> files;

private:
    std::string folder_;
};

} // namespace

TEST(PrintPdf, ADocumentPrintsItsRunsInOrderWithItsLineEnds) {
    quillane::testing::EnsureQApplication();
    ScratchDir dir;
    PdfPrinter printer(dir.Str());
    const std::vector<TextRun> document = {
        {"First line of the page\r\n\r\n", false, 0},
        {"A bold heading\r\n", true, 0},
        {"Plain text that follows it, long enough to wrap onto a second line of the printed "
         "page when the page is narrower than the words that it has to hold in one line.\r\n",
         false, 0},
        {"Last line", false, 0}};
    ASSERT_TRUE(printer.Print(document));
    const std::string text = PdfText(printer.files.at(0));
    std::string all;
    for (const auto& run : document)
        all += run.text;
    EXPECT_EQ(Words(text), Words(all)) << text;
    // Each line end of the document starts a new line on the page.
    EXPECT_NE(text.find("First line of the page\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nA bold heading\n"), std::string::npos) << text;
}

TEST(PrintPdf, ANumerologyReportPrintsWithItsAttributionAtTopAndFoot) {
    quillane::testing::EnsureQApplication();
    modLearnNumerology::ClearTestState();
    ScratchDir dir;
    PdfPrinter printer(dir.Str());
    quillane::testing::DesktopSession session(Date(2026, 4, 1), 5, &printer);
    Application& app = *session.app;
    ui::FormHost& host = *session.host;

    auto click = [&](QWidget* root, const char* name) {
        auto* w = root->findChild<QAbstractButton*>(name);
        ASSERT_NE(w, nullptr) << name;
        QTest::mouseClick(w, Qt::LeftButton);
        QCoreApplication::processEvents();
    };
    click(host.MainWindow(), "cmdSelectOption(1)");
    QWidget* window = host.WindowOf("frmLearnNumerologyMain");
    ASSERT_NE(window, nullptr);
    for (const char* name :
         {"optMain(1)", "cmdNext", "optOption(1)", "cmdNext2", "chkSubject(13)", "cmdNext3"})
        click(window, name);
    for (int k = 0; k < 5; ++k) {
        click(window, "optChoice(1)");
        click(window, "cmdNextQuestion");
    }
    click(window, "cmdPrint");
    ASSERT_EQ(printer.files.size(), 1u);
    const std::string report = app.Find("frmLearnNumerologyMain")->Find("RTBTestResult")->Text();
    ASSERT_NE(report.find("Personal Month Number"), std::string::npos);
    const std::string text = PdfText(printer.files[0]);
    const std::string attribution = "Report Generated By https://www.zenthora.net";
    EXPECT_EQ(Words(text), Words(attribution + "\n\n" + report + "\n\n" + attribution)) << text;
    EXPECT_EQ(text.rfind(attribution, 0), 0u) << "the page starts with the attribution";
    EXPECT_EQ(session.messageBox.TakeOldest().Dump(), "null") << "printing says nothing";
    modLearnNumerology::ClearTestState();
}
