#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>

#include <cstdint>
#include <memory>

class CBoardRenderer;
class CUnit;
class IToken;
class QPainter;

// Units as the view shows them zoomed in or out: the renderer draws a unit's
// picture with its label once per look (token, caption, moved mark) at the
// view's scale and at the unit's offset within a device pixel, and every unit
// that looks the same is a copy of that pixmap. So a zoomed-out board with
// hundreds of counters in view draws no scaled pictures and no text. Drawn
// where the renderer would draw, to an eighth of a device pixel.
//
// Only for the screen: print and export draw through the renderer itself,
// and so does the view at 100 %, where the two must agree pixel for pixel.
class CUnitPictureCache
{
public:
    explicit CUnitPictureCache(std::shared_ptr<const CBoardRenderer> renderer);

    // Draws unit (its model position shifted by offset, in board pixels) with
    // painter's transform from the cache; false, drawing nothing, where the
    // cache does not serve: at 100 %, or a transform that is no plain scale.
    bool Paint(QPainter& painter, const CUnit& unit, QPointF offset);

    // How many looks are kept; the cache empties itself when the scale
    // changes or it outgrows MaxBytes.
    int Count() const { return static_cast<int>(m_pictures.size()); }
    static constexpr std::int64_t MaxBytes = 64LL * 1024 * 1024;

private:
    struct Key
    {
        const IToken* Token;
        QString Caption;
        bool Moved;
        // The unit's corner within a device pixel, in eighths.
        int PhaseX;
        int PhaseY;
        bool operator==(const Key& other) const = default;
    };
    friend size_t qHash(const Key& key, size_t seed) noexcept;

    QPixmap draw(const CUnit& unit, double scale, double dpr, QPointF phase) const;

    std::shared_ptr<const CBoardRenderer> m_renderer;
    QHash<Key, QPixmap> m_pictures;
    double m_scale = 0;
    double m_dpr = 0;
    std::int64_t m_bytes = 0;
};
