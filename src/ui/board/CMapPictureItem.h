#pragma once

#include <QGraphicsItem>

#include <memory>

class CBoardRenderer;

// The map picture under everything on the board, drawn by the board renderer
// and clipped to what the view exposes.
class CMapPictureItem : public QGraphicsItem
{
public:
    CMapPictureItem();

    void SetRenderer(std::shared_ptr<const CBoardRenderer> renderer);

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    std::shared_ptr<const CBoardRenderer> m_renderer;
    QRectF m_bounds;
};
