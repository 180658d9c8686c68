#include "CBoardCursors.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>

namespace {

constexpr int side = 32;

// A pointer picture drawn at twice its size, so a 2x screen shows it sharp.
QPixmap canvas()
{
    QPixmap pixmap(side * 2, side * 2);
    pixmap.setDevicePixelRatio(2.0);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void outlined(QPainter& painter, const QPainterPath& path)
{
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Qt::black);
    painter.drawPath(path);
}

QCursor normalCursor()
{
    QPixmap pixmap = canvas();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addPolygon(QPolygonF{{1, 1}, {1, 17}, {5, 13}, {8, 20}, {11, 19}, {8, 12}, {13, 12}});
    path.closeSubpath();
    outlined(painter, path);
    return QCursor(pixmap, 1, 1);
}

// A hand's worth of meaning without the hand: a ring with a cross, centred,
// telling that the counter under it can be taken.
QCursor hotspotCursor()
{
    QPixmap pixmap = canvas();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(side / 2.0, side / 2.0);
    painter.setPen(QPen(Qt::white, 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, 8, 8);
    painter.drawLine(centre - QPointF(12, 0), centre + QPointF(12, 0));
    painter.drawLine(centre - QPointF(0, 12), centre + QPointF(0, 12));
    painter.setPen(QPen(Qt::black, 2));
    painter.drawEllipse(centre, 8, 8);
    painter.drawLine(centre - QPointF(12, 0), centre + QPointF(12, 0));
    painter.drawLine(centre - QPointF(0, 12), centre + QPointF(0, 12));
    return QCursor(pixmap, side / 2, side / 2);
}

// Four arrow heads around a dot: the map moves under a still pointer.
QCursor scrollCursor()
{
    QPixmap pixmap = canvas();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double c = side / 2.0;
    QPainterPath path;
    for (int turn = 0; turn < 4; ++turn) {
        QTransform rotation;
        rotation.translate(c, c);
        rotation.rotate(90.0 * turn);
        path.addPolygon(rotation.map(QPolygonF{{0, -14}, {6, -7}, {-6, -7}, {0, -14}}));
    }
    path.addEllipse(QPointF(c, c), 3, 3);
    outlined(painter, path);
    return QCursor(pixmap, side / 2, side / 2);
}

} // namespace

QCursor CBoardCursors::Cursor(tBoardCursor which)
{
    switch (which) {
    case tBoardCursor::CursorHotspot:
        return hotspotCursor();
    case tBoardCursor::CursorMapScroll:
        return scrollCursor();
    case tBoardCursor::CursorNormal:
        break;
    }
    return normalCursor();
}
