#pragma once
// A click in a widget that only shows a control's text (a choice's text box)
// counts as a click on another control (the choice's option), as a click on a
// label beside an option would. Looked up by name at each click, so a closed
// form is never reached.
#include "common/Application.h"

#include <QEvent>
#include <QObject>
#include <string>

namespace quillane::ui {

class ClickForwarder : public QObject {
public:
    ClickForwarder(Form& form, std::string path, QObject* parent)
        : QObject(parent), app_(form.App()), form_(form.Name()), path_(std::move(path)) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && !app_.Ended())
            if (Form* form = app_.Find(form_))
                if (Control* c = form->Find(path_); c && c->Unreachable().empty())
                    app_.Dispatch([c] { c->UserClick(); });
        return QObject::eventFilter(watched, event);
    }

private:
    Application& app_;
    std::string form_;
    std::string path_;
};

} // namespace quillane::ui
