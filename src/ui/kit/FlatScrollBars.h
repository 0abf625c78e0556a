#pragma once
// Scroll bars drawn flat in the program's colours: a groove and a handle,
// without arrow buttons (the wheel, the page keys and a click in the groove
// still scroll). The handle is left out while there is nothing to scroll.
// Qt's own style draws scroll bars in gradients, and its painter hands each
// gradient fill to a pool of threads; a walk's step repaints its boxes' bars,
// and on two cores those hand-overs cost more than all the step's text. A
// style sheet could flatten them too, but would be matched against every
// scroll bar as each window opens.
#include <QProxyStyle>

namespace quillane::ui::kit {

class FlatScrollBars : public QProxyStyle {
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

} // namespace quillane::ui::kit
