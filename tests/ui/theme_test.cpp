// The theme on a dark desktop: every text of every window stays readable,
// because the windows carry their own palette and colours, each subject's in
// its accent.
#include "DesktopSession.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <vector>

using namespace quillane;

namespace {

// The contrast ratio of two colours, from their relative luminance.
double Contrast(QRgb a, QRgb b) {
    const auto luminance = [](QRgb rgb) {
        const auto channel = [](int c) {
            const double s = c / 255.0;
            return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(qRed(rgb)) + 0.7152 * channel(qGreen(rgb)) +
               0.0722 * channel(qBlue(rgb));
    };
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The contrast between a drawn text's background (its most common colour)
// and its ink (the colour farthest from that).
double TextContrast(QWidget* widget) {
    const QImage image = widget->grab().toImage();
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const QRgb background = std::max_element(counts.begin(), counts.end(), [](auto& a, auto& b) {
                                return a.second < b.second;
                            })->first;
    double best = 1;
    for (const auto& [rgb, n] : counts)
        best = std::max(best, Contrast(rgb, background));
    return best;
}

struct DarkDesktop : ::testing::Test, quillane::testing::DesktopSession {
    ~DarkDesktop() override { ui::theme::Apply(*qApp); }
};

TEST_F(DarkDesktop, EveryTextOfEveryWindowStaysReadable) {
    QPalette dark;
    for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        dark.setColor(role, QColor("#202124"));
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, QColor("#e8eaed"));
    QApplication::setPalette(dark);
    ui::theme::Apply(*qApp); // as the program does at its start, over the desktop's palette
    QMainWindow* main = MainWindow();
    main->resize(1366, 768);
    // The ink of each subject's headings, titles and captions: its accent.
    std::vector<std::set<QRgb>> accents(4);
    for (int subject = 0; subject < 4; ++subject) {
        main->findChild<QAbstractButton*>(QString("cmdSelectOption(%1)").arg(subject))->click();
        QCoreApplication::processEvents();
        for (QWidget* widget : main->findChildren<QWidget*>()) {
            if (const QString role = widget->property("role").toString();
                role == "heading" || role == "title" || role == "caption") {
                widget->ensurePolished();
                accents[subject].insert(widget->palette().color(QPalette::WindowText).rgb());
            }
            auto* label = qobject_cast<QLabel*>(widget);
            auto* button = qobject_cast<QPushButton*>(widget);
            const bool text = (label && !label->text().isEmpty() && label->pixmap().isNull()) ||
                              (button && !button->text().isEmpty());
            if (!text || !widget->isVisible() || widget->width() < 8)
                continue;
            EXPECT_GE(TextContrast(widget), 4.5)
                << widget->objectName().toStdString() << " in subject " << subject;
        }
    }
    std::set<QRgb> distinct;
    for (const auto& inks : accents) {
        EXPECT_EQ(inks.size(), 1u) << "one accent to a subject";
        distinct.insert(inks.begin(), inks.end());
    }
    EXPECT_EQ(distinct.size(), 4u) << "each subject its own accent";
}

} // namespace
