#include "CPictureDrawer.h"

#include "core/KorvaneError.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRegularExpression>

#include <cmath>

namespace {

[[noreturn]] void fail(int lineNumber, const QString& text)
{
    throw KorvaneError(5, QStringLiteral("CPictureDrawer"),
                       QStringLiteral("pictures.txt line ") + QString::number(lineNumber) +
                           QStringLiteral(": ") + text);
}

QPolygonF polygon(std::initializer_list<QPointF> points)
{
    return QPolygonF(QList<QPointF>(points));
}

// The foot every chess piece stands on, in the 100 x 100 design space.
void drawBase(QPainter& p)
{
    p.drawRoundedRect(QRectF(20, 78, 60, 12), 3, 3);
}

void drawPawn(QPainter& p)
{
    p.drawPolygon(polygon({{40, 44}, {60, 44}, {68, 78}, {32, 78}}));
    p.drawEllipse(QPointF(50, 32), 13, 13);
    drawBase(p);
}

void drawRook(QPainter& p)
{
    p.drawRect(QRectF(32, 40, 36, 38));
    p.drawPolygon(polygon({{26, 14},
                           {36, 14},
                           {36, 22},
                           {45, 22},
                           {45, 14},
                           {55, 14},
                           {55, 22},
                           {64, 22},
                           {64, 14},
                           {74, 14},
                           {74, 40},
                           {26, 40}}));
    drawBase(p);
}

void drawBishop(QPainter& p, const QColor& line)
{
    p.drawPolygon(polygon({{40, 56}, {60, 56}, {68, 78}, {32, 78}}));
    p.drawEllipse(QPointF(50, 40), 14, 19);
    p.drawEllipse(QPointF(50, 15), 5, 5);
    const QPen pen = p.pen();
    p.setPen(QPen(line, 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(44, 30), QPointF(56, 44));
    p.setPen(pen);
    drawBase(p);
}

void drawKnight(QPainter& p, const QColor& line)
{
    p.drawPolygon(polygon({{32, 78},
                           {36, 60},
                           {28, 54},
                           {24, 44},
                           {38, 28},
                           {42, 12},
                           {50, 22},
                           {60, 22},
                           {72, 36},
                           {74, 58},
                           {68, 78}}));
    const QBrush brush = p.brush();
    p.setBrush(line);
    p.drawEllipse(QPointF(46, 34), 3.5, 3.5);
    p.setBrush(brush);
    drawBase(p);
}

void drawQueen(QPainter& p)
{
    p.drawPolygon(polygon({{36, 52}, {64, 52}, {72, 78}, {28, 78}}));
    p.drawPolygon(polygon({{26, 52},
                           {20, 24},
                           {36, 40},
                           {42, 18},
                           {50, 36},
                           {58, 18},
                           {64, 40},
                           {80, 24},
                           {74, 52}}));
    for (const QPointF tip : {QPointF(20, 22), QPointF(42, 16), QPointF(58, 16), QPointF(80, 22)})
        p.drawEllipse(tip, 4, 4);
    drawBase(p);
}

void drawKing(QPainter& p)
{
    p.drawPolygon(polygon({{36, 52}, {64, 52}, {72, 78}, {28, 78}}));
    p.drawRoundedRect(QRectF(28, 36, 44, 16), 5, 5);
    p.drawRect(QRectF(46, 6, 8, 30));
    p.drawRect(QRectF(38, 13, 24, 8));
    drawBase(p);
}

// A unit counter: a square in the side's colour with a military symbol box.
void drawCounter(QPainter& p, const QString& kind, const QColor& fill, const QColor& line)
{
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(6, 6, 88, 88), 8, 8);
    const QRectF box(22, 30, 56, 40);
    p.setBrush(fill.lighter(130));
    p.setPen(QPen(line, 4));
    p.drawRect(box);
    if (kind == QLatin1String("infantry")) {
        p.drawLine(box.topLeft(), box.bottomRight());
        p.drawLine(box.bottomLeft(), box.topRight());
    } else if (kind == QLatin1String("armour")) {
        p.drawRoundedRect(box.adjusted(8, 8, -8, -8), 10, 10);
    } else {
        p.setBrush(line);
        p.drawEllipse(box.center(), 9, 9);
    }
}

void drawStar(QPainter& p)
{
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double radius = i % 2 == 0 ? 40 : 17;
        const double angle = -M_PI / 2 + i * M_PI / 5;
        star << QPointF(50 + radius * std::cos(angle), 52 + radius * std::sin(angle));
    }
    p.drawPolygon(star);
}

void drawArrow(QPainter& p, const QColor& line)
{
    p.setPen(QPen(line, 10, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(16, 84), QPointF(70, 30));
    p.setPen(Qt::NoPen);
    p.setBrush(line);
    p.drawPolygon(polygon({{86, 14}, {80, 52}, {48, 20}}));
}

QImage drawChessboard(QSize size, const QColor& light, const QColor& dark)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter p(&image);
    const double w = size.width() / 8.0;
    const double h = size.height() / 8.0;
    for (int row = 0; row < 8; ++row) {
        for (int column = 0; column < 8; ++column)
            p.fillRect(QRectF(column * w, row * h, w, h), (row + column) % 2 ? dark : light);
    }
    return image;
}

QColor terrainColor(QChar c)
{
    switch (c.toLatin1()) {
    case 'w':
        return QColor(0x6E, 0x9E, 0x4A); // woods
    case 'h':
        return QColor(0xC8, 0xA6, 0x6A); // hills
    case '~':
        return QColor(0x6A, 0xA8, 0xD8); // water
    case 't':
        return QColor(0xB4, 0xB0, 0xA8); // town
    default:
        return QColor(0xDC, 0xE6, 0xA8); // clear
    }
}

// Pointy-topped hexes, odd rows shifted half a hex to the right; one
// character of the terrain text per hex.
QImage drawHexboard(QSize size, const QString& terrain, double hexWidth, const QColor& line)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(0xF4, 0xF0, 0xE0));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(line, 1.2));
    const double radius = hexWidth / std::sqrt(3.0);
    const QStringList rows = terrain.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QString cells = rows[row].trimmed();
        for (qsizetype column = 0; column < cells.size(); ++column) {
            const QPointF centre(hexWidth / 2 + column * hexWidth + (row % 2) * hexWidth / 2,
                                 radius + row * 1.5 * radius);
            QPolygonF hex;
            for (int corner = 0; corner < 6; ++corner) {
                const double angle = M_PI / 6 + corner * M_PI / 3;
                hex << centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
            }
            p.setBrush(terrainColor(cells[column]));
            p.drawPolygon(hex);
        }
    }
    return image;
}

} // namespace

CPictureDrawer::CPictureDrawer(QString folder) : m_folder(std::move(folder)) {}

QColor CPictureDrawer::color(const QHash<QString, QString>& keys, const QString& key,
                             const QColor& fallback, int lineNumber) const
{
    if (!keys.contains(key))
        return fallback;
    const QColor value = QColor::fromString(keys.value(key));
    if (!value.isValid())
        fail(lineNumber, QStringLiteral("'") + keys.value(key) + QStringLiteral("' is no colour"));
    return value;
}

QString CPictureDrawer::readFile(const QString& name, int lineNumber) const
{
    QFile file(m_folder + QLatin1Char('/') + name);
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly))
        fail(lineNumber, QStringLiteral("cannot read the file '") + name + QLatin1Char('\''));
    return QString::fromUtf8(file.readAll());
}

QImage CPictureDrawer::Render(const QString& shape, QSize size, const QHash<QString, QString>& keys,
                              int lineNumber) const
{
    const QColor fill = color(keys, QStringLiteral("fill"), Qt::white, lineNumber);
    const QColor line = color(keys, QStringLiteral("line"), Qt::black, lineNumber);
    if (shape == QLatin1String("chessboard"))
        return drawChessboard(size, fill, line);
    if (shape == QLatin1String("hexboard")) {
        bool ok = false;
        const double hexWidth = keys.value(QStringLiteral("size")).toDouble(&ok);
        if (!ok || hexWidth < 8)
            fail(lineNumber, QStringLiteral("a hex board needs size= of at least 8"));
        return drawHexboard(size, readFile(keys.value(QStringLiteral("file")), lineNumber),
                            hexWidth, line);
    }

    // Token pictures: drawn in a 100 x 100 space on a transparent ground.
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size.width() / 100.0, size.height() / 100.0);
    p.setPen(QPen(line, 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(fill);
    if (shape == QLatin1String("pawn"))
        drawPawn(p);
    else if (shape == QLatin1String("rook"))
        drawRook(p);
    else if (shape == QLatin1String("bishop"))
        drawBishop(p, line);
    else if (shape == QLatin1String("knight"))
        drawKnight(p, line);
    else if (shape == QLatin1String("queen"))
        drawQueen(p);
    else if (shape == QLatin1String("king"))
        drawKing(p);
    else if (shape == QLatin1String("infantry") || shape == QLatin1String("armour") ||
             shape == QLatin1String("artillery"))
        drawCounter(p, shape, fill, line);
    else if (shape == QLatin1String("disc")) {
        p.drawEllipse(QPointF(50, 50), 42, 42);
        p.setBrush(color(keys, QStringLiteral("side"), fill.darker(120), lineNumber));
        p.drawEllipse(QPointF(50, 50), 24, 24);
    } else if (shape == QLatin1String("star"))
        drawStar(p);
    else if (shape == QLatin1String("flag")) {
        p.drawLine(QPointF(26, 90), QPointF(26, 10));
        p.drawPolygon(polygon({{26, 12}, {84, 26}, {26, 46}}));
    } else if (shape == QLatin1String("note")) {
        p.drawRect(QRectF(16, 10, 68, 80));
        for (int y = 28; y <= 72; y += 14)
            p.drawLine(QPointF(26, y), QPointF(74, y));
    } else if (shape == QLatin1String("arrow"))
        drawArrow(p, line);
    else
        fail(lineNumber, QStringLiteral("unknown shape '") + shape + QLatin1Char('\''));
    return image;
}

QByteArray CPictureDrawer::Draw(const QString& line, int lineNumber, QString& entryName) const
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList fields = line.split(blanks, Qt::SkipEmptyParts);
    if (fields.size() < 3)
        fail(lineNumber, QStringLiteral("expected: <entry> <width>x<height> <shape> [key=value]"));
    entryName = fields[0];
    static const QRegularExpression sizePattern(QStringLiteral("^(\\d{1,4})x(\\d{1,4})$"));
    const QRegularExpressionMatch size = sizePattern.match(fields[1]);
    if (!size.hasMatch() || size.captured(1).toInt() < 1 || size.captured(2).toInt() < 1)
        fail(lineNumber, QStringLiteral("'") + fields[1] + QStringLiteral("' is no size"));
    QHash<QString, QString> keys;
    for (qsizetype i = 3; i < fields.size(); ++i) {
        const qsizetype equals = fields[i].indexOf(QLatin1Char('='));
        if (equals <= 0)
            fail(lineNumber, QStringLiteral("'") + fields[i] + QStringLiteral("' is no key=value"));
        keys.insert(fields[i].left(equals), fields[i].mid(equals + 1));
    }
    const QImage image = Render(
        fields[2], QSize(size.captured(1).toInt(), size.captured(2).toInt()), keys, lineNumber);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        fail(lineNumber, QStringLiteral("the picture could not be encoded"));
    return bytes;
}
