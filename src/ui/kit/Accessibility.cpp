#include "Accessibility.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QPushButton>
#include <QRadioButton>

namespace quillane::ui::kit {

namespace {

// An option, round or drawn as a button that stays down (the only buttons
// that stay down in the program), is announced as an option.
class OptionButtonInterface : public QAccessibleWidget {
public:
    explicit OptionButtonInterface(QAbstractButton* option)
        : QAccessibleWidget(option, QAccessible::RadioButton) {
        addControllingSignal(QLatin1String("toggled(bool)"));
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) {
            const QString name = widget()->accessibleName();
            return name.isEmpty() ? Option()->text().remove('&') : name;
        }
        return QAccessibleWidget::text(t);
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.checkable = true;
        s.checked = Option()->isChecked();
        return s;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction() && Option()->isEnabled())
            Option()->click();
    }

private:
    QAbstractButton* Option() const { return static_cast<QAbstractButton*>(widget()); }
};

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (auto* option = qobject_cast<QRadioButton*>(object); option && className == "QRadioButton")
        return new OptionButtonInterface(option);
    if (auto* button = qobject_cast<QPushButton*>(object);
        button && button->isCheckable() && className == "QPushButton")
        return new OptionButtonInterface(button);
    return nullptr;
}

} // namespace

void InstallAccessibility(QApplication&) {
    QAccessible::installFactory(Factory);
}

} // namespace quillane::ui::kit
