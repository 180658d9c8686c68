#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <memory>

class CArrow;
class CMap;
class CUnit;
class IGameContext;
class QPainter;

// Draws a map as the board shows it: the board picture, every unit's picture
// with its label centred under it, and the arrows over everything. The board
// window, printing and korvane-tool all draw through this one class, so a saved
// picture of a map looks exactly like the screen.
//
// Positions are board pixels. A unit's picture has its top-left corner at the
// unit's x, y (the token's click region lies inside that picture). An arrow's
// ends are the positions of its two handle units, so each end is drawn where
// its handle is grabbed: at the centre of the arrow token's click region
// (ArrowOrigin), not at the handle picture's corner. The label
// font is sized in board pixels (its points at 96 per inch), so a label takes
// the same room on every device and at every scale.
class CBoardRenderer
{
public:
    // Coordinates from a file are clamped to this far off the board before
    // any geometry, so no sum can overflow; such units are off-board anyway.
    static constexpr std::int32_t CoordinateLimit = 1 << 24;
    // The largest picture RenderMap makes, per side and in all.
    static constexpr int MaxRenderSide = 32767;
    static constexpr qint64 MaxRenderPixels = 128LL * 1024 * 1024;
    // Label box: room left and right of the text.
    static constexpr int LabelPadding = 2;
    // Arrows: line width, and the length and half-width of the head.
    static constexpr int ArrowWidth = 3;
    static constexpr int ArrowHeadLength = 12;
    static constexpr int ArrowHeadHalfWidth = 6;

    // Reads the context's look: board picture, unit pictures, label font and
    // colours. A null context draws nothing and has an empty board.
    explicit CBoardRenderer(std::shared_ptr<IGameContext> context);

    QSize BoardSize() const;
    // Where on the board an arrow point of 0, 0 is drawn: the centre of the
    // click region of the context's first arrow token (arrow tokens of one
    // context share the unit picture size), or 0, 0 without one.
    QPoint ArrowOrigin() const { return m_arrowOrigin; }
    const QFont& LabelFont() const { return m_labelFont; }

    // Board, then the units in model order (a later unit covers an earlier
    // one, each with its label), then the arrows. Units and arrows are drawn
    // only while the map is locked; an unlocked map has none to reach.
    void PaintMap(QPainter& painter, const CMap& map) const;
    void PaintBoard(QPainter& painter) const;
    void PaintUnit(QPainter& painter, const CUnit& unit) const;
    void PaintArrow(QPainter& painter, const CArrow& arrow) const;

    // Where a unit's picture lies: at x, y, the size of its token's picture.
    QRect PictureRect(const CUnit& unit) const;
    // The label box under the picture, centred on it; empty for an empty caption.
    QRect LabelRect(const CUnit& unit) const;
    // Everything a unit paints.
    QRect UnitBounds(const CUnit& unit) const;
    // Everything an arrow paints, line and head.
    QRectF ArrowBounds(const CArrow& arrow) const;

    // The map as a picture of the board's size times scale. Raises a
    // KorvaneError when the board is empty, the scale is not a positive
    // number, or the picture would pass MaxRenderSide or MaxRenderPixels.
    QImage RenderMap(const CMap& map, double scale) const;

    // A 24-bit colour value (red in the low byte) as a QColor.
    static QColor ToColor(std::int32_t value);
    // The label font of a context: bold, in its face, its size in points as
    // pixels at 96 per inch (a module sets only the face and the size).
    static QFont MakeLabelFont(const QString& family, double pointSize);

private:
    QImage unitPicture(const CUnit& unit) const;
    QPointF headPoint(const CArrow& arrow) const;
    QPointF tailPoint(const CArrow& arrow) const;

    std::shared_ptr<IGameContext> m_context;
    QFont m_labelFont;
    QFontMetrics m_labelMetrics{m_labelFont};
    QColor m_foreColor;
    QColor m_backColor;
    QColor m_movedColor;
    bool m_transparentLabels = false;
    QPoint m_arrowOrigin;
};
