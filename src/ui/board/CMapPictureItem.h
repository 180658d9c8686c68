#pragma once

#include <QGraphicsItem>
#include <QImage>

#include <array>
#include <memory>

class CBoardRenderer;

// The map picture under everything on the board, drawn by the board renderer
// and clipped to what the view exposes.
//
// Zoomed out, the view draws from reduced copies of the picture instead (a
// half and a quarter of each side, each made the first time a view needs
// it), so a repaint costs what the screen shows,
// not what the board holds. A copy covers exactly the full picture's place.
// Print, export and the view at 100 % and above draw the full picture.
class CMapPictureItem : public QGraphicsItem
{
public:
    CMapPictureItem();
    ~CMapPictureItem() override;

    // picture is the one the renderer draws (the context's map picture).
    void SetRenderer(std::shared_ptr<const CBoardRenderer> renderer, QImage picture);

    static constexpr int MaxReductions = 2;

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    // The copy to draw at scale (0 to MaxReductions halvings; 0 is the picture).
    int levelFor(double scale) const;
    const QImage& reduced(int level);
    void paintReduced(QPainter& painter, const QRectF& exposed, int level);

    std::shared_ptr<const CBoardRenderer> m_renderer;
    QImage m_picture;
    // Index level - 1; null until made.
    std::array<QImage, MaxReductions> m_reduced;
    QRectF m_bounds;
};
