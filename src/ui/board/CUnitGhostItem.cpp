#include "CUnitGhostItem.h"

#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "ui/board/CUnitPictureCache.h"

#include <QPainter>

CUnitGhostItem::CUnitGhostItem(std::shared_ptr<const CUnit> unit,
                               std::shared_ptr<const CBoardRenderer> renderer,
                               std::shared_ptr<CUnitPictureCache> pictures, QGraphicsItem* parent)
    : QGraphicsItem(parent), m_renderer(std::move(renderer)), m_pictures(std::move(pictures))
{
    setAcceptedMouseButtons(Qt::NoButton);
    SetUnit(std::move(unit));
    setPos(m_origin);
}

void CUnitGhostItem::SetUnit(std::shared_ptr<const CUnit> unit)
{
    prepareGeometryChange();
    m_unit = std::move(unit);
    m_origin = m_renderer->PictureRect(*m_unit).topLeft();
    m_bounds = QRectF(m_renderer->UnitBounds(*m_unit).translated(-m_origin));
    update();
}

QPointF CUnitGhostItem::HomeOf(const CUnit& unit) const
{
    return m_renderer->PictureRect(unit).topLeft();
}

void CUnitGhostItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget)
{
    // The renderer draws at the unit's own position; the item may stand
    // elsewhere.
    if (widget && m_pictures && m_pictures->Paint(*painter, *m_unit, -QPointF(m_origin)))
        return;
    painter->translate(-m_origin);
    m_renderer->PaintUnit(*painter, *m_unit);
}
