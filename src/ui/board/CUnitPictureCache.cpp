#include "CUnitPictureCache.h"

#include "model/CUnit.h"
#include "render/CBoardRenderer.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr int phaseSteps = 8;

// The whole device pixel at or left of value, and the eighths beyond it.
std::pair<int, int> split(double value)
{
    const double steps = std::round(value * phaseSteps);
    const int whole = static_cast<int>(std::floor(steps / phaseSteps));
    return {whole, static_cast<int>(steps) - whole * phaseSteps};
}

} // namespace

size_t qHash(const CUnitPictureCache::Key& key, size_t seed) noexcept
{
    return qHashMulti(seed, key.Token, key.Caption, key.Moved, key.PhaseX, key.PhaseY);
}

CUnitPictureCache::CUnitPictureCache(std::shared_ptr<const CBoardRenderer> renderer)
    : m_renderer(std::move(renderer))
{}

bool CUnitPictureCache::Paint(QPainter& painter, const CUnit& unit, QPointF offset)
{
    const QTransform& world = painter.worldTransform();
    const double scale = world.m11();
    if (world.type() > QTransform::TxScale || scale != world.m22() || scale <= 0 || scale == 1.0)
        return false;
    const double dpr = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    if (scale != m_scale || dpr != m_dpr) {
        m_pictures.clear();
        m_bytes = 0;
        m_scale = scale;
        m_dpr = dpr;
    }
    const QRect bounds = m_renderer->UnitBounds(unit);
    const QPointF corner = world.map(QPointF(bounds.topLeft()) + offset) * dpr;
    const auto [x, phaseX] = split(corner.x());
    const auto [y, phaseY] = split(corner.y());
    const Key key{unit.Token().get(), unit.Caption(), unit.HasMoved(), phaseX, phaseY};
    auto found = m_pictures.constFind(key);
    if (found == m_pictures.constEnd()) {
        QPixmap picture =
            draw(unit, scale, dpr, QPointF(phaseX, phaseY) / static_cast<double>(phaseSteps));
        const std::int64_t bytes = std::int64_t(picture.width()) * picture.height() * 4;
        if (m_bytes + bytes > MaxBytes) {
            m_pictures.clear();
            m_bytes = 0;
        }
        m_bytes += bytes;
        found = m_pictures.insert(key, picture);
    }
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawPixmap(QPointF(x, y) / dpr, *found);
    painter.restore();
    return true;
}

QPixmap CUnitPictureCache::draw(const CUnit& unit, double scale, double dpr, QPointF phase) const
{
    const QRect bounds = m_renderer->UnitBounds(unit);
    const double device = scale * dpr;
    const QSize size(static_cast<int>(std::ceil(bounds.width() * device + phase.x())),
                     static_cast<int>(std::ceil(bounds.height() * device + phase.y())));
    QPixmap picture(size.expandedTo(QSize(1, 1)));
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    painter.translate(phase);
    painter.scale(device, device);
    painter.translate(-bounds.topLeft());
    m_renderer->PaintUnit(painter, unit);
    painter.end();
    picture.setDevicePixelRatio(dpr);
    return picture;
}
