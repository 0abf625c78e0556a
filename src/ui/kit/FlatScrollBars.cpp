#include "FlatScrollBars.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace quillane::ui::kit {

namespace {

constexpr int kExtent = 12;    // a bar's breadth
constexpr int kHandleMin = 28; // the shortest handle
const QColor kGroove(0xf1, 0xec, 0xe0);
const QColor kHandle(0xc8, 0xbd, 0x9c);
const QColor kHandleActive(0xa8, 0x99, 0x5f); // under the mouse or held

} // namespace

void FlatScrollBars::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->fillRect(bar->rect, kGroove);
    if (bar->maximum == bar->minimum || !(bar->state & State_Enabled))
        return;
    const bool active = (bar->activeSubControls & SC_ScrollBarSlider) &&
                        (bar->state & (State_MouseOver | State_Sunken));
    // The handle stands a little inside the groove: 2 pixels along it, 3 across.
    const QRect handle = subControlRect(control, bar, SC_ScrollBarSlider, widget);
    const bool horizontal = bar->orientation == Qt::Horizontal;
    painter->fillRect(horizontal ? handle.adjusted(2, 3, -2, -3) : handle.adjusted(3, 2, -3, -2),
                      active ? kHandleActive : kHandle);
}

QRect FlatScrollBars::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect whole = bar->rect;
    const bool horizontal = bar->orientation == Qt::Horizontal;
    const int length = horizontal ? whole.width() : whole.height();
    const int range = bar->maximum - bar->minimum;
    // The handle's share of the groove is the page's share of the text.
    int handle = length;
    if (range > 0) {
        const qint64 shown = qint64(length) * bar->pageStep / (qint64(range) + bar->pageStep);
        handle = std::clamp(int(shown), std::min(kHandleMin, length), length);
    }
    const int start = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                              length - handle, bar->upsideDown);
    const auto along = [&](int from, int size) {
        return horizontal ? QRect(whole.x() + from, whole.y(), size, whole.height())
                          : QRect(whole.x(), whole.y() + from, whole.width(), size);
    };
    QRect rect;
    switch (part) {
    case SC_ScrollBarGroove:
        rect = whole;
        break;
    case SC_ScrollBarSlider:
        rect = along(start, handle);
        break;
    case SC_ScrollBarSubPage:
        rect = along(0, start);
        break;
    case SC_ScrollBarAddPage:
        rect = along(start + handle, length - start - handle);
        break;
    default: // no arrow buttons
        return {};
    }
    return visualRect(bar->direction, whole, rect);
}

int FlatScrollBars::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent)
        return kExtent;
    if (metric == PM_ScrollBarSliderMin)
        return kHandleMin;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace quillane::ui::kit
