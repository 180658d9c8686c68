#include "mdcBoard.h"

#include "core/CKorvane.h"
#include "model/CMap.h"
#include "render/CBoardRenderer.h"
#include "ui/CMapState.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>

#include <algorithm>

mdcBoard::mdcBoard(QWidget* parent) : QGraphicsView(parent)
{
    setObjectName(QStringLiteral("mdcBoard"));
    setScene(new QGraphicsScene(this));
    m_picture = scene()->addPixmap(QPixmap());
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void mdcBoard::SetUpdateLock(std::int32_t level)
{
    const bool release = level == 0 && m_updateLock != 0 && m_pending;
    m_updateLock = level;
    if (release) {
        refresh();
        m_pending = false;
    }
}

QImage mdcBoard::PaintToPbox()
{
    const auto map = CMapState::ActiveMap();
    CKorvane* root = RootOrNull();
    if (!map || !root || !root->Context())
        return QImage();
    return CBoardRenderer(root->Context()).RenderMap(*map, 1.0);
}

void mdcBoard::refresh()
{
    if (m_updateLock > 0) {
        m_pending = true;
        return;
    }
    const QImage picture = PaintToPbox();
    m_picture->setPixmap(QPixmap::fromImage(picture));
    scene()->setSceneRect(QRectF(QPointF(0, 0), QSizeF(picture.size())));
}

void mdcBoard::ZoomIn()
{
    setZoom(m_zoom * 1.25);
}

void mdcBoard::ZoomOut()
{
    setZoom(m_zoom / 1.25);
}

void mdcBoard::ZoomReset()
{
    setZoom(1.0);
}

void mdcBoard::ZoomFit()
{
    const QRectF board = sceneRect();
    if (board.isEmpty())
        return;
    setZoom(std::min(viewport()->width() / board.width(), viewport()->height() / board.height()));
}

void mdcBoard::setZoom(double zoom)
{
    m_zoom = std::clamp(zoom, 0.25, 4.0);
    setTransform(QTransform::fromScale(m_zoom, m_zoom));
}
