#include "Pictures.h"
#include "platform/DesktopServices.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTransform>

namespace quillane::ui {

namespace {

// Enough for every picture of a window at two sizes; past it the cache
// starts afresh rather than grow without end.
constexpr int kMostKept = 400;

QPixmap DrawSvg(QSvgRenderer& renderer, QSize size, qreal pixelRatio) {
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

QPixmap DrawBytes(const std::vector<unsigned char>& bytes, QSize size, qreal pixelRatio) {
    QImage image = ImageDecoder::Decode(bytes);
    if (image.isNull())
        return {};
    image = image.scaled(size * pixelRatio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

QString SizeKey(QSize size, qreal pixelRatio) {
    return QString("%1x%2@%3").arg(size.width()).arg(size.height()).arg(pixelRatio);
}

} // namespace

QPixmap PictureCache::Lookup(const QString& key, const std::function<QPixmap()>& draw) {
    if (auto it = pixmaps_.constFind(key); it != pixmaps_.constEnd()) {
        ++kept_;
        return *it;
    }
    ++drawn_;
    if (pixmaps_.size() >= kMostKept)
        pixmaps_.clear();
    QPixmap pixmap = draw();
    pixmaps_.insert(key, pixmap);
    return pixmap;
}

QPixmap PictureCache::RenderSvg(const QString& resource, QSize size, qreal pixelRatio) {
    return Lookup(resource + "|" + SizeKey(size, pixelRatio),
                  [&] { return DrawSvg(Document(resource), size, pixelRatio); });
}

QSvgRenderer& PictureCache::Document(const QString& resource) {
    std::shared_ptr<QSvgRenderer>& document = documents_[resource];
    if (!document)
        document = std::make_shared<QSvgRenderer>(resource);
    return *document;
}

QPixmap PictureCache::Render(const Picture& picture, QSize size, qreal pixelRatio) {
    QString source;
    if (picture.bytes)
        source =
            QString("bytes:%1:%2")
                .arg(qHash(QByteArrayView(picture.bytes->data(), qsizetype(picture.bytes->size()))))
                .arg(picture.bytes->size());
    else if (!picture.resource.empty())
        source = ":/" + QString::fromStdString(picture.resource);
    else
        return {};
    if (picture.rot180) {
        // The turned picture is the upright one, kept or drawn, under a turn.
        Picture upright = picture;
        upright.rot180 = false;
        return Lookup(source + "|" + SizeKey(size, pixelRatio) + "|turned", [&] {
            const QPixmap shown = Render(upright, size, pixelRatio);
            return shown.isNull() ? shown : shown.transformed(QTransform().rotate(180));
        });
    }
    return Lookup(source + "|" + SizeKey(size, pixelRatio), [&] {
        return picture.bytes ? DrawBytes(*picture.bytes, size, pixelRatio)
                             : RenderSvg(source, size, pixelRatio);
    });
}

PictureCache& SharedPictures() {
    // Pixmaps must go before the application does.
    static PictureCache* cache = [] {
        qAddPostRoutine([] { SharedPictures() = PictureCache(); });
        return new PictureCache;
    }();
    return *cache;
}

} // namespace quillane::ui
