#pragma once

#include <QGraphicsItem>

#include <memory>

class CBoardRenderer;
class CUnit;
class CUnitPictureCache;

// A unit's picture and label drawn from a unit that belongs to no map: the
// older place of a counter shown over the board, or a counter of a replay.
// The item's position is the picture's corner, so moving the item moves the
// drawing and nothing in the game. On screen, zoomed, it draws from the
// board's pictures' cache like the unit items.
class CUnitGhostItem : public QGraphicsItem
{
public:
    CUnitGhostItem(std::shared_ptr<const CUnit> unit,
                   std::shared_ptr<const CBoardRenderer> renderer,
                   std::shared_ptr<CUnitPictureCache> pictures, QGraphicsItem* parent = nullptr);

    const std::shared_ptr<const CUnit>& Unit() const { return m_unit; }
    // Draws another unit (a new caption or count) where the item stands now.
    void SetUnit(std::shared_ptr<const CUnit> unit);
    // Where the item goes to show unit at its own place.
    QPointF HomeOf(const CUnit& unit) const;

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    std::shared_ptr<const CUnit> m_unit;
    std::shared_ptr<const CBoardRenderer> m_renderer;
    std::shared_ptr<CUnitPictureCache> m_pictures;
    QPoint m_origin;
    QRectF m_bounds;
};
