#include "ProgramIcon.h"

#include "ui/binding/Pictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace quillane::ui::kit {

namespace {

constexpr int kLargestSmall = 24;

class TwoDrawings : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QSvgRenderer(Source(rect.size())).render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new TwoDrawings; }

private:
    static QString Source(QSize size) {
        return std::max(size.width(), size.height()) <= kLargestSmall ? ":/icons/quillane-small.svg"
                                                                      : ":/icons/quillane.svg";
    }
};

} // namespace

QIcon ProgramIcon() {
    return QIcon(new TwoDrawings);
}

} // namespace quillane::ui::kit
