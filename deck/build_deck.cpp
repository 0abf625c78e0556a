// quillane-deck-build: compiles the deck's sources into the card database.
//
//   quillane-deck-build --out learn.dll --pictures DIR [--png-dir DIR] TEXTS...
//
// TEXTS are the card files (deck/cards/*.txt) in the order their cards are to
// be stored; DIR holds cardNN.svg for every card ID NN. Each picture is
// rendered to PNG at 234 x 400 and stored whole in PictureData. The database
// is written beside the target and renamed into place, and the same sources
// always give the same rows in the same order.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <png.h>
#include <sqlite3.h>

#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int kPictureWidth = 234;
constexpr int kPictureHeight = 400;
constexpr int kMinKeywords = 7;

struct Card {
    int id = 0;
    int group = -1;
    QString name;
    QStringList keywords;
    QString upright;
    QString reversed;
    QByteArray picture;
    QString origin; // file and line, for messages
};

[[noreturn]] void Fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

// Reads one card file: "group: n" once, then blocks of "key: value" lines
// separated by blank lines. Lines starting with '#' are comments.
void ReadCards(const QString& path, std::vector<Card>& cards) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        Fail("cannot read " + path);
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    int group = -1;
    Card card;
    bool open = false;
    int lineNo = 0;
    auto finish = [&] {
        if (!open)
            return;
        if (card.id <= 0 || card.name.isEmpty() || card.upright.isEmpty() ||
            card.reversed.isEmpty() || card.keywords.isEmpty())
            Fail(card.origin + ": incomplete card");
        card.group = group;
        cards.push_back(card);
        card = Card();
        open = false;
    };
    while (!in.atEnd()) {
        QString line = in.readLine();
        ++lineNo;
        if (line.trimmed().isEmpty() || line.startsWith('#')) {
            finish();
            continue;
        }
        int colon = line.indexOf(": ");
        if (colon < 0)
            Fail(QString("%1:%2: expected 'key: value'").arg(path).arg(lineNo));
        QString key = line.left(colon);
        QString value = line.mid(colon + 2).trimmed();
        if (key == "group") {
            group = value.toInt();
            continue;
        }
        if (!open) {
            open = true;
            card.origin = QString("%1:%2").arg(path).arg(lineNo);
        }
        if (key == "id")
            card.id = value.toInt();
        else if (key == "name")
            card.name = value;
        else if (key == "keywords") {
            for (const QString& k : value.split(','))
                card.keywords << k.trimmed();
        } else if (key == "upright")
            card.upright = value;
        else if (key == "reversed")
            card.reversed = value;
        else
            Fail(QString("%1:%2: unknown key '%3'").arg(path).arg(lineNo).arg(key));
    }
    finish();
    if (group < 0 || group > 4)
        Fail(path + ": missing or bad 'group:' line");
}

void Check(const std::vector<Card>& cards) {
    std::set<int> ids;
    std::set<QString> texts;
    for (const Card& c : cards) {
        if (!ids.insert(c.id).second)
            Fail(c.origin + ": ID " + QString::number(c.id) + " is used twice");
        std::set<QString> distinct(c.keywords.begin(), c.keywords.end());
        if (distinct.size() != size_t(c.keywords.size()) || int(distinct.size()) < kMinKeywords ||
            distinct.count(QString()))
            Fail(c.origin + ": a card needs at least seven different, non-empty keywords");
        if (!texts.insert(c.upright).second || !texts.insert(c.reversed).second)
            Fail(c.origin + ": a meaning repeats another card's text");
    }
}

// Encodes the picture as PNG: 8-bit RGBA (the corners are clear), strongest
// compression, and no row filter. The program decodes a card each time one is
// shown; for these drawings of flat colours the unfiltered rows both pack
// smaller and decode in half the time of the filters libpng picks by itself.
QByteArray EncodePng(const QImage& picture, const QString& what) {
    const QImage rgba = picture.convertToFormat(QImage::Format_RGBA8888);
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    QByteArray out;
    if (!info || setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        Fail("cannot encode the picture " + what);
    }
    png_set_write_fn(
        png, &out,
        [](png_structp p, png_bytep data, png_size_t length) {
            static_cast<QByteArray*>(png_get_io_ptr(p))
                ->append(reinterpret_cast<const char*>(data), qsizetype(length));
        },
        nullptr);
    png_set_IHDR(png, info, png_uint_32(rgba.width()), png_uint_32(rgba.height()), 8,
                 PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, 9);
    png_write_info(png, info);
    for (int y = 0; y < rgba.height(); ++y)
        png_write_row(png, rgba.constScanLine(y));
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return out;
}

QByteArray RenderPicture(const QString& svgPath) {
    QSvgRenderer renderer(svgPath);
    if (!renderer.isValid())
        Fail("cannot read the picture " + svgPath);
    QImage image(kPictureWidth, kPictureHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::TextAntialiasing);
        renderer.render(&painter, QRectF(0, 0, kPictureWidth, kPictureHeight));
    }
    return EncodePng(image, svgPath);
}

class Database {
public:
    explicit Database(const QString& path) {
        if (sqlite3_open_v2(path.toUtf8().constData(), &db_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK)
            Fail("cannot create " + path);
    }
    ~Database() { sqlite3_close_v2(db_); }
    void Exec(const char* sql) {
        char* error = nullptr;
        if (sqlite3_exec(db_, sql, nullptr, nullptr, &error) != SQLITE_OK) {
            QString why = error;
            sqlite3_free(error);
            Fail(QString("SQL failed (%1): %2").arg(sql, why));
        }
    }
    sqlite3_stmt* Prepare(const char* sql) {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr) != SQLITE_OK)
            Fail(QString("SQL failed (%1): %2").arg(sql, sqlite3_errmsg(db_)));
        return stmt;
    }
    void Step(sqlite3_stmt* stmt) {
        if (sqlite3_step(stmt) != SQLITE_DONE)
            Fail(QString("insert failed: %1").arg(sqlite3_errmsg(db_)));
        sqlite3_reset(stmt);
        sqlite3_clear_bindings(stmt);
    }

private:
    sqlite3* db_ = nullptr;
};

void BindText(sqlite3_stmt* stmt, int index, const QString& text) {
    QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(stmt, index, utf8.constData(), utf8.size(), SQLITE_TRANSIENT);
}

void WriteDatabase(const QString& path, const std::vector<Card>& cards) {
    QFile::remove(path);
    Database db(path);
    db.Exec("PRAGMA journal_mode=DELETE");
    db.Exec("BEGIN");
    db.Exec("CREATE TABLE tblCards (ID INTEGER PRIMARY KEY, Name TEXT NOT NULL, "
            "\"Group\" INTEGER NOT NULL, normalmeaning TEXT NOT NULL, "
            "reversedmeaning TEXT NOT NULL, PictureData BLOB NOT NULL)");
    db.Exec("CREATE TABLE tblKeywords (CardID INTEGER NOT NULL, Keyword TEXT NOT NULL)");
    db.Exec("CREATE INDEX ixKeywordsCardID ON tblKeywords (CardID)");
    sqlite3_stmt* card = db.Prepare("INSERT INTO tblCards VALUES (?, ?, ?, ?, ?, ?)");
    sqlite3_stmt* keyword = db.Prepare("INSERT INTO tblKeywords VALUES (?, ?)");
    std::map<int, const Card*> byId;
    for (const Card& c : cards)
        byId[c.id] = &c;
    for (const auto& [id, c] : byId) {
        sqlite3_bind_int(card, 1, id);
        BindText(card, 2, c->name);
        sqlite3_bind_int(card, 3, c->group);
        BindText(card, 4, c->upright);
        BindText(card, 5, c->reversed);
        sqlite3_bind_blob(card, 6, c->picture.constData(), c->picture.size(), SQLITE_TRANSIENT);
        db.Step(card);
        for (const QString& k : c->keywords) {
            sqlite3_bind_int(keyword, 1, id);
            BindText(keyword, 2, k);
            db.Step(keyword);
        }
    }
    sqlite3_finalize(card);
    sqlite3_finalize(keyword);
    db.Exec("COMMIT");
    db.Exec("VACUUM");
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QStringList args = QCoreApplication::arguments().mid(1);
    QString out, pictures, pngDir;
    QStringList texts;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == "--out" && i + 1 < args.size())
            out = args[++i];
        else if (args[i] == "--pictures" && i + 1 < args.size())
            pictures = args[++i];
        else if (args[i] == "--png-dir" && i + 1 < args.size())
            pngDir = args[++i];
        else
            texts << args[i];
    }
    if (out.isEmpty() || pictures.isEmpty() || texts.isEmpty()) {
        std::fprintf(stderr, "usage: quillane-deck-build --out FILE --pictures DIR "
                             "[--png-dir DIR] CARDFILES...\n");
        return 2;
    }
    try {
        std::vector<Card> cards;
        for (const QString& t : texts)
            ReadCards(t, cards);
        Check(cards);
        for (Card& c : cards) {
            QString stem = QString("card%1").arg(c.id, 2, 10, QChar('0'));
            c.picture = RenderPicture(pictures + "/" + stem + ".svg");
            if (!pngDir.isEmpty()) {
                QFile png(pngDir + "/" + stem + ".png");
                if (!png.open(QIODevice::WriteOnly) || png.write(c.picture) != c.picture.size())
                    Fail("cannot write " + png.fileName());
            }
        }
        QString temporary = out + ".part";
        WriteDatabase(temporary, cards);
        QFile::remove(out);
        if (!QFile::rename(temporary, out))
            Fail("cannot move the database into place at " + out);
        std::printf("%s: %zu cards\n", qPrintable(out), cards.size());
    } catch (const std::exception& e) {
        std::fprintf(stderr, "quillane-deck-build: %s\n", e.what());
        return 1;
    }
    return 0;
}
