#include "CMapPictureItem.h"

#include "render/CBoardRenderer.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

CMapPictureItem::CMapPictureItem()
{
    setFlag(ItemUsesExtendedStyleOption, true);
    setAcceptedMouseButtons(Qt::NoButton);
}

void CMapPictureItem::SetRenderer(std::shared_ptr<const CBoardRenderer> renderer)
{
    prepareGeometryChange();
    m_renderer = std::move(renderer);
    m_bounds = m_renderer ? QRectF(QPointF(0, 0), QSizeF(m_renderer->BoardSize())) : QRectF();
    update();
}

void CMapPictureItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    if (!m_renderer)
        return;
    // A large map is drawn only where the view needs it.
    if (option)
        painter->setClipRect(option->exposedRect, Qt::IntersectClip);
    m_renderer->PaintBoard(*painter);
}
