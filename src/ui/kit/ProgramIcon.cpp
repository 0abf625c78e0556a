#include "ProgramIcon.h"

#include "ui/binding/Pictures.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

namespace quillane::ui::kit {

namespace {

constexpr int kLargestSmall = 24;

// One drawing, or a simpler one up to a size and the full one above it.
class Drawings : public QIconEngine {
public:
    Drawings(QString large, QString small, int largestSmall)
        : large_(std::move(large)), small_(std::move(small)), largestSmall_(largestSmall) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        SharedPictures().Document(Source(rect.size())).render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap shown = SharedPictures().RenderSvg(Source(size), size, 1.0);
        if (mode == QIcon::Normal || shown.isNull())
            return shown;
        // Disabled or selected, as the style shows any other icon.
        QStyleOption option;
        option.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, shown, &option);
    }
    QIconEngine* clone() const override { return new Drawings(large_, small_, largestSmall_); }

private:
    const QString& Source(QSize size) const {
        return std::max(size.width(), size.height()) <= largestSmall_ ? small_ : large_;
    }

    QString large_, small_;
    int largestSmall_;
};

} // namespace

QIcon ProgramIcon() {
    return QIcon(new Drawings(":/icons/quillane.svg", ":/icons/quillane-small.svg", kLargestSmall));
}

QIcon SvgIcon(const QString& resource) {
    return QIcon(new Drawings(resource, resource, 0));
}

} // namespace quillane::ui::kit
