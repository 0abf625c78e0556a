#pragma once
// Pixels for pictures. The program's own pictures are SVG sources compiled in
// as resources (":/runes/stone-09-hagalaz.svg") and drawn at the size shown,
// so they stay crisp on any screen; a card's picture comes from its file's
// bytes. A turned picture is the same picture under a transform. What was
// drawn once is kept, by picture, size and turn, and an SVG source is read
// once whatever the sizes it is drawn at.
#include "common/Picture.h"

#include <QHash>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>

class QSvgRenderer;

namespace quillane::ui {

class PictureCache {
public:
    QPixmap Render(const Picture& picture, QSize size, qreal pixelRatio);
    // An SVG resource of the program's own (":/launcher/bar.svg").
    QPixmap RenderSvg(const QString& resource, QSize size, qreal pixelRatio);
    // The SVG resource read and ready to draw at any size.
    QSvgRenderer& Document(const QString& resource);

    // How often a picture had to be drawn, and how often it was kept.
    long Drawn() const { return drawn_; }
    long Kept() const { return kept_; }

private:
    QPixmap Lookup(const QString& key, const std::function<QPixmap()>& draw);

    QHash<QString, QPixmap> pixmaps_;
    QHash<QString, std::shared_ptr<QSvgRenderer>> documents_;
    long drawn_ = 0, kept_ = 0;
};

// The one cache of the program's windows.
PictureCache& SharedPictures();
// Shorthand for a decoration drawn from the program's own SVG.
inline QPixmap RenderSvg(const QString& resource, QSize size, qreal pixelRatio) {
    return SharedPictures().RenderSvg(resource, size, pixelRatio);
}

} // namespace quillane::ui
