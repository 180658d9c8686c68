#include "CUnitItem.h"

#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "ui/board/CUnitPictureCache.h"

#include <QPainter>

CUnitItem::CUnitItem(std::shared_ptr<CUnit> unit, std::shared_ptr<const CBoardRenderer> renderer,
                     std::shared_ptr<CUnitPictureCache> pictures)
    : m_unit(std::move(unit)), m_renderer(std::move(renderer)), m_pictures(std::move(pictures))
{
    setAcceptedMouseButtons(Qt::NoButton);
    Sync();
}

void CUnitItem::Sync()
{
    prepareGeometryChange();
    m_origin = m_renderer->PictureRect(*m_unit).topLeft();
    m_bounds = QRectF(m_renderer->UnitBounds(*m_unit).translated(-m_origin));
    setPos(m_origin);
    update();
}

void CUnitItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget)
{
    // The renderer draws at the unit's model position; the item may stand
    // elsewhere while it is dragged.
    if (widget && m_pictures && m_pictures->Paint(*painter, *m_unit, -QPointF(m_origin)))
        return;
    painter->translate(-m_origin);
    m_renderer->PaintUnit(*painter, *m_unit);
}
