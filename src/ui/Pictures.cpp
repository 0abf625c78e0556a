#include "Pictures.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTransform>

namespace quillane::ui {

QString ResourceFor(const Picture& picture) {
    const QString d = QString::fromStdString(picture.descriptor);
    const QStringList parts = d.split(' ');
    if (parts.size() != 2)
        return {};
    const QString& list = parts[0];
    const int n = parts[1].toInt();
    // Image lists are addressed from 1.
    if (list == "imgSign")
        return QString(":/astrology/sign-%1.svg").arg(n - 1);
    if (list == "imgPlanet")
        return QString(":/astrology/planet-%1.svg").arg(n - 1);
    if (list == "IMG") {
        const QStringList found = QDir(":/runes").entryList(
            {QString("stone-%1-*.svg").arg(n, 2, 10, QChar('0'))}, QDir::Files);
        return found.isEmpty() ? QString() : ":/runes/" + found.first();
    }
    return {};
}

QPixmap RenderSvg(const QString& resource, QSize size, qreal pixelRatio) {
    QSvgRenderer renderer(resource);
    if (!renderer.isValid())
        return {};
    QSize target = renderer.defaultSize().scaled(size, Qt::KeepAspectRatio);
    if (target.isEmpty())
        target = renderer.defaultSize();
    QPixmap pixmap(target * pixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

QPixmap RenderPicture(const Picture& picture, QSize size, qreal pixelRatio) {
    QPixmap pixmap;
    if (picture.bytes) {
        QImage image;
        image.loadFromData(picture.bytes->data(), int(picture.bytes->size()));
        if (!image.isNull()) {
            image = image.scaled(size * pixelRatio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            pixmap = QPixmap::fromImage(image);
            pixmap.setDevicePixelRatio(pixelRatio);
        }
    } else if (const QString resource = ResourceFor(picture); !resource.isEmpty()) {
        pixmap = RenderSvg(resource, size, pixelRatio);
    }
    if (picture.rot180 && !pixmap.isNull())
        pixmap = pixmap.transformed(QTransform().rotate(180));
    return pixmap;
}

} // namespace quillane::ui
