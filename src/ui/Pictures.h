#pragma once
// Turns a picture descriptor into pixels: "IMG 9", "imgSign 3", "imgPlanet 3"
// come from the program's SVG sources, "card 17" from the picture file's bytes.
// SVG is drawn at the size shown, so pictures stay crisp on any screen.
#include "common/Picture.h"

#include <QPixmap>
#include <QSize>
#include <QString>

namespace quillane::ui {

// The resource path of a named picture of the program's own, or "".
QString ResourceFor(const Picture& picture);
QPixmap RenderPicture(const Picture& picture, QSize size, qreal pixelRatio);
// Renders an SVG resource at the given size.
QPixmap RenderSvg(const QString& resource, QSize size, qreal pixelRatio);

} // namespace quillane::ui
