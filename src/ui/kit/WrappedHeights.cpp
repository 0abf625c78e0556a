#include "WrappedHeights.h"

#include <algorithm>

namespace quillane::ui::kit {

int WrappedHeights::At(int width, const QString& text, const QFont& font, Shape shape,
                       const std::function<int(int)>& measure) {
    if (text != text_ || shape != shape_ || font != font_) {
        text_ = text;
        font_ = font;
        shape_ = shape;
        stored_ = 0;
    }
    const auto end = kept_.begin() + std::ptrdiff_t(std::min(stored_, kept_.size()));
    const auto kept =
        std::find_if(kept_.begin(), end, [width](const auto& k) { return k.first == width; });
    if (kept != end)
        return kept->second;
    const int height = measure(width);
    kept_[stored_++ % kept_.size()] = {width, height};
    return height;
}

int WrappedLabel::heightForWidth(int width) const {
    const QMargins m = contentsMargins();
    return heights_.At(width, text(), font(),
                       {margin(), indent(), int(textFormat()), int(wordWrap()),
                        m.left() + m.right(), m.top() + m.bottom()},
                       [this](int w) { return QLabel::heightForWidth(w); });
}

} // namespace quillane::ui::kit
