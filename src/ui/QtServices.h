#pragma once
// The services that need a screen: message boxes, the browser, the printer,
// the save dialog, the clock and the screen's size.
#include "common/Services.h"

class QPrinter;
class QWidget;

namespace quillane::ui {

class QtMessageBox : public IMessageBox {
public:
    MsgAnswer Show(const std::string& text, const std::string& title, MsgIcon icon,
                   MsgButtons buttons) override;
    void SetParent(QWidget* parent) { parent_ = parent; }

private:
    QWidget* parent_ = nullptr;
};

class DesktopBrowser : public IBrowser {
public:
    void Open(const std::string& address) override;
};

// Prints to the default printer with no dialog; failures are silent.
class DefaultPrinter : public IPrinter {
public:
    bool Print(const std::vector<TextRun>& document) override;
};

// Lays the runs out as one flowing document and prints it on the given
// printer (a real one, or a PDF file). False when the printer failed.
bool PrintDocument(QPrinter& printer, const std::vector<TextRun>& document);

class FileSaveDialog : public ISaveDialog {
public:
    std::optional<std::string> GetSaveFileName(const std::string& filter) override;
};

class SystemClock : public IClock {
public:
    Date Today() override;
    double Timer() override;
};

class PrimaryScreen : public IScreen {
public:
    int WidthTwips() override;
    int HeightTwips() override;
};

} // namespace quillane::ui
