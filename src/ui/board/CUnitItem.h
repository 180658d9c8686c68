#pragma once

#include <QGraphicsItem>

#include <memory>

class CBoardRenderer;
class CUnit;
class CUnitPictureCache;

// One unit on the board: its picture with its label under it, drawn by the
// board renderer. The item's position is the unit's picture corner; while a
// unit is dragged the item moves ahead of the model and Sync puts it back.
// On screen, zoomed in or out, it draws from the pictures' cache when given one.
class CUnitItem : public QGraphicsItem
{
public:
    CUnitItem(std::shared_ptr<CUnit> unit, std::shared_ptr<const CBoardRenderer> renderer,
              std::shared_ptr<CUnitPictureCache> pictures = nullptr);

    const std::shared_ptr<CUnit>& Unit() const { return m_unit; }
    // Reads position, picture, caption and moved mark from the unit again.
    void Sync();

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    std::shared_ptr<CUnit> m_unit;
    std::shared_ptr<const CBoardRenderer> m_renderer;
    std::shared_ptr<CUnitPictureCache> m_pictures;
    QPoint m_origin;
    QRectF m_bounds;
};
