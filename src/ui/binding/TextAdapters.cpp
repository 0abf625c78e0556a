// Text boxes of one line or many, and the rich text view.
#include "Adapters.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextEdit>

namespace quillane::ui {

namespace {
// The control's caret as a place in its view: the control counts a line end
// as two characters, the view as one.
int CaretInView(const Control& control, int last) {
    // A caret at the end, after an append, needs no counting over the text.
    if (std::size_t(control.SelStart()) >= control.Text().size())
        return last;
    const std::string before = control.Text().substr(0, std::size_t(control.SelStart()));
    return std::min(int(QString::fromStdString(before).replace("\r\n", "\n").size()), last);
}
} // namespace

LineAdapter::LineAdapter(Binder& binder, Control& control, QLineEdit* line)
    : Adapter(binder, control, line), designReadOnly_(line->isReadOnly()) {
    Control* c = &control;
    QObject::connect(line, &QLineEdit::textEdited, &binder_, [this, c](const QString& text) {
        Act([c, text] { c->SetText(text.toStdString()); });
    });
}

void LineAdapter::Show(Prop prop) {
    auto* line = static_cast<QLineEdit*>(widget_.data());
    if (prop == Prop::Locked) {
        line->setReadOnly(designReadOnly_ || control_.Locked());
    } else if (prop == Prop::Text) {
        const QString text = QString::fromStdString(control_.Text());
        if (line->text() != text)
            line->setText(text);
    }
}

TextBoxAdapter::TextBoxAdapter(Binder& binder, Control& control, QPlainTextEdit* box)
    : Adapter(binder, control, box), designReadOnly_(box->isReadOnly()) {
    Control* c = &control;
    QObject::connect(box, &QPlainTextEdit::textChanged, &binder_, [this, c, box] {
        if (Updating())
            return;
        // Text boxes keep CRLF line ends, as the program's texts do.
        const std::string text = box->toPlainText().replace("\n", "\r\n").toStdString();
        Act([c, text] { c->SetText(text); });
    });
}

void TextBoxAdapter::Show(Prop prop) {
    auto* box = static_cast<QPlainTextEdit*>(widget_.data());
    if (prop == Prop::Locked) {
        box->setReadOnly(designReadOnly_ || control_.Locked());
    } else if (prop == Prop::Text) {
        const QString text = QString::fromStdString(control_.Text()).replace("\r\n", "\n");
        if (box->toPlainText() != text) {
            // Straight into the document: the box's own setPlainText also
            // selects the whole text to reset its format, one layout more for
            // every box that a walk's step fills.
            box->document()->setPlainText(text);
            box->setTextCursor(QTextCursor(box->document()));
        }
    } else if (prop == Prop::SelStart) {
        QTextCursor cursor = box->textCursor();
        cursor.setPosition(CaretInView(control_, box->document()->characterCount() - 1));
        box->setTextCursor(cursor);
        box->ensureCursorVisible();
    }
}

RichTextAdapter::RichTextAdapter(Binder& binder, Control& control, QTextEdit* view)
    : Adapter(binder, control, view) {}

void RichTextAdapter::Show(Prop prop) {
    auto* view = static_cast<QTextEdit*>(widget_.data());
    if (prop == Prop::Text) {
        // Reports grow by appending runs; only the new ones are laid out, so a
        // long report does not redraw itself once for every piece.
        const std::vector<TextRun>& runs = control_.Runs();
        auto same = [](const TextRun& a, const TextRun& b) {
            return a.bold == b.bold && a.pointSize == b.pointSize && a.text == b.text;
        };
        if (shown_.size() > runs.size() ||
            !std::equal(shown_.begin(), shown_.end(), runs.begin(), same)) {
            view->clear();
            shown_.clear();
        }
        QTextCursor cursor(view->document());
        cursor.movePosition(QTextCursor::End);
        for (std::size_t i = shown_.size(); i < runs.size(); ++i) {
            QTextCharFormat format;
            format.setFontWeight(runs[i].bold ? QFont::Bold : QFont::Normal);
            if (runs[i].pointSize > 0)
                format.setFontPointSize(runs[i].pointSize);
            cursor.insertText(QString::fromStdString(runs[i].text).replace("\r\n", "\n"), format);
            shown_.push_back(runs[i]);
        }
    }
    if (prop == Prop::Text || prop == Prop::SelStart) {
        const int caret = CaretInView(control_, view->document()->characterCount() - 1);
        QTextCursor cursor(view->document());
        cursor.setPosition(caret);
        view->setTextCursor(cursor);
        if (caret == 0) // a text read from its start opens at its top, margin included
            view->verticalScrollBar()->setValue(0);
    }
}

DropDownAdapter::DropDownAdapter(Binder& binder, Control& control, QComboBox* combo)
    : Adapter(binder, control, combo) {
    Control* c = &control;
    // activated comes with every pick, also of the item already shown.
    QObject::connect(combo, &QComboBox::activated, &binder_,
                     [this, c](int index) { Act([c, index] { c->UserPick(index); }); });
}

void DropDownAdapter::Show(Prop prop) {
    auto* combo = static_cast<QComboBox*>(widget_.data());
    if (prop == Prop::List) {
        // Items come one by one: those the widget has already stay.
        const auto& items = control_.ListItems();
        int kept = 0;
        if (std::size_t(combo->count()) <= items.size())
            while (kept < combo->count() &&
                   combo->itemText(kept) == QString::fromStdString(items[std::size_t(kept)]))
                ++kept;
        if (kept < combo->count())
            combo->clear(), kept = 0;
        for (std::size_t i = std::size_t(kept); i < items.size(); ++i)
            combo->addItem(QString::fromStdString(items[i]));
    }
    if (prop == Prop::List || prop == Prop::ListIndex)
        combo->setCurrentIndex(control_.ListIndex());
}

} // namespace quillane::ui
