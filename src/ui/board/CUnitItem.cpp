#include "CUnitItem.h"

#include "model/CUnit.h"
#include "render/CBoardRenderer.h"

#include <QPainter>

CUnitItem::CUnitItem(std::shared_ptr<CUnit> unit, std::shared_ptr<const CBoardRenderer> renderer)
    : m_unit(std::move(unit)), m_renderer(std::move(renderer))
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

void CUnitItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    // The renderer draws at the unit's model position; the item may stand
    // elsewhere while it is dragged.
    painter->translate(-m_origin);
    m_renderer->PaintUnit(*painter, *m_unit);
}
