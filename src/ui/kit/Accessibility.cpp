#include "Accessibility.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QRadioButton>

namespace quillane::ui::kit {

namespace {

class OptionButtonInterface : public QAccessibleWidget {
public:
    explicit OptionButtonInterface(QRadioButton* option)
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
    QRadioButton* Option() const { return static_cast<QRadioButton*>(widget()); }
};

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (auto* option = qobject_cast<QRadioButton*>(object); option && className == "QRadioButton")
        return new OptionButtonInterface(option);
    return nullptr;
}

} // namespace

void InstallAccessibility(QApplication&) {
    QAccessible::installFactory(Factory);
}

} // namespace quillane::ui::kit
