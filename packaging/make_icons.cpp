// quillane-icons: draws the program's icon as PNG files for the desktop's
// icon theme.
//
//   quillane-icons --large quillane.svg --small quillane-small.svg --out DIR NAME SIZE...
//
// Writes DIR/SIZExSIZE/apps/NAME.png for each SIZE. Sizes up to 24 pixels are
// drawn from the simplified picture, as the program's own icon does.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr int kLargestSmall = 24;

bool Draw(const QString& source, int size, const QString& file) {
    QSvgRenderer svg(source);
    if (!svg.isValid())
        return false;
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    return QDir().mkpath(QFileInfo(file).path()) && image.save(file, "PNG");
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    QString large, small, out;
    while (args.size() >= 2 && args.first().startsWith("--")) {
        const QString option = args.takeFirst(), value = args.takeFirst();
        (option == "--large" ? large : option == "--small" ? small : out) = value;
    }
    if (large.isEmpty() || small.isEmpty() || out.isEmpty() || args.size() < 2) {
        std::fputs("usage: quillane-icons --large SVG --small SVG --out DIR NAME SIZE...\n",
                   stderr);
        return 2;
    }
    const QString name = args.takeFirst();
    for (const QString& word : args) {
        const int size = word.toInt();
        const QString file = QString("%1/%2x%2/apps/%3.png").arg(out).arg(size).arg(name);
        if (size <= 0 || !Draw(size <= kLargestSmall ? small : large, size, file)) {
            std::fprintf(stderr, "quillane-icons: can't draw %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
