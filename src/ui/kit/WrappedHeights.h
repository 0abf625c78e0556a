#pragma once
// The height a wrapped text needs at a width, kept for the last widths asked
// about. Qt works it out again, shaping the whole text, each time a layout
// looks at the widget; and a window is laid out anew whenever any of its
// labels takes a text, each hidden panel's paragraphs included.
#include <QFont>
#include <QLabel>
#include <QString>
#include <array>
#include <functional>

namespace quillane::ui::kit {

class WrappedHeights {
public:
    // What else decides the height, such as margins, an indent, the
    // text's format; unused places stay 0.
    using Shape = std::array<int, 6>;
    // The height kept for this width, text, font and shape, or what
    // `measure` gives for the width (and is kept).
    int At(int width, const QString& text, const QFont& font, Shape shape,
           const std::function<int(int)>& measure);

private:
    QString text_;
    QFont font_;
    Shape shape_{};
    std::array<std::pair<int, int>, 4> kept_{};
    std::size_t stored_ = 0;
};

// A word-wrapped label that keeps its heights.
class WrappedLabel : public QLabel {
public:
    int heightForWidth(int width) const override;

private:
    mutable WrappedHeights heights_;
};

} // namespace quillane::ui::kit
