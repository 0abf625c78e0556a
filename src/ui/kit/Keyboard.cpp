#include "Keyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace quillane::ui::kit {

namespace {

class ReturnPressesButtons : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            key->modifiers() == Qt::NoModifier)
            if (auto* button = qobject_cast<QAbstractButton*>(watched);
                button && button->isEnabled() && button->hasFocus()) {
                button->click();
                return true;
            }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void InstallKeyboard(QApplication& app) {
    app.installEventFilter(new ReturnPressesButtons(&app));
}

} // namespace quillane::ui::kit
