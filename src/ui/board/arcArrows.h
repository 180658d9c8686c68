#pragma once

#include <QGraphicsItem>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class CArrow;
class CMap;
class CBoardRenderer;

// The arrow canvas: one layer over the units that draws the shown map's
// arrows through the board renderer. It keeps its own copy of each arrow
// (id, head, tail, colour) so that the board can show an arrow end following
// the pointer before the model hears of the move.
class arcArrows : public QGraphicsItem
{
public:
    explicit arcArrows(QGraphicsItem* parent = nullptr);
    ~arcArrows() override;

    void SetRenderer(std::shared_ptr<const CBoardRenderer> renderer);

    void Clear();
    // Holds copies of map's arrows (none for null) in place of those held.
    void CopyArrowsOf(const CMap* map);
    void Add(const QString& id, std::int32_t headX, std::int32_t headY, std::int32_t tailX,
             std::int32_t tailY, std::int32_t color);
    // Nothing happens for an id the canvas does not hold.
    void Delete(const QString& id);
    // Replaces the arrow with this id in place; adds it when it is missing.
    void Replace(const QString& id, std::int32_t headX, std::int32_t headY, std::int32_t tailX,
                 std::int32_t tailY, std::int32_t color);
    // The arrow held under id, or null.
    const CArrow* Find(const QString& id) const;
    int Count() const { return static_cast<int>(m_arrows.size()); }

    // Draws the arrows that meet clip (all of them for an empty clip), in the
    // order they were added.
    void Paint(QPainter& painter, const QRectF& clip = QRectF()) const;

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    // The position of the arrow with this id, or the count when there is none.
    std::size_t indexOf(const QString& id) const;
    QRectF boundsOf(const CArrow& arrow) const;
    // Joins the bounds of all arrows; setBounds takes a new bounding rectangle.
    void updateBounds();
    void setBounds(const QRectF& bounds);

    std::shared_ptr<const CBoardRenderer> m_renderer;
    std::vector<std::unique_ptr<CArrow>> m_arrows;
    QRectF m_bounds;
};
