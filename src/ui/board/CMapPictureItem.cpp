#include "CMapPictureItem.h"

#include "render/CBoardRenderer.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <cmath>

CMapPictureItem::CMapPictureItem()
{
    setFlag(ItemUsesExtendedStyleOption, true);
    setAcceptedMouseButtons(Qt::NoButton);
}

CMapPictureItem::~CMapPictureItem() = default;

void CMapPictureItem::SetRenderer(std::shared_ptr<const CBoardRenderer> renderer, QImage picture)
{
    prepareGeometryChange();
    m_renderer = std::move(renderer);
    if (picture.cacheKey() != m_picture.cacheKey())
        m_reduced = {};
    m_picture = std::move(picture);
    m_bounds = m_renderer ? QRectF(QPointF(0, 0), QSizeF(m_renderer->BoardSize())) : QRectF();
    update();
}

int CMapPictureItem::levelFor(double scale) const
{
    // The smallest copy that still has a pixel for every pixel on screen.
    int level = 0;
    while (level < MaxReductions && scale <= std::ldexp(1.0, -(level + 1)) + 1e-9)
        ++level;
    return level;
}

const QImage& CMapPictureItem::reduced(int level)
{
    QImage& copy = m_reduced[static_cast<std::size_t>(level) - 1];
    if (copy.isNull()) {
        const int divisor = 1 << level;
        const QSize size((m_picture.width() + divisor - 1) / divisor,
                         (m_picture.height() + divisor - 1) / divisor);
        // The screen's own format, so that the copy is drawn without converting.
        copy =
            m_picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(m_picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
    }
    return copy;
}

void CMapPictureItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                            QWidget* widget)
{
    if (!m_renderer)
        return;
    const QTransform& world = painter->worldTransform();
    const int level = widget && option && !m_picture.isNull() && world.type() <= QTransform::TxScale
                          ? levelFor(std::min(world.m11(), world.m22()))
                          : 0;
    if (level > 0) {
        paintReduced(*painter, option->exposedRect, level);
        return;
    }
    // A large map is drawn only where the view needs it.
    if (option)
        painter->setClipRect(option->exposedRect, Qt::IntersectClip);
    m_renderer->PaintBoard(*painter);
}

void CMapPictureItem::paintReduced(QPainter& painter, const QRectF& exposed, int level)
{
    const QImage& copy = reduced(level);
    // Copy pixels per picture pixel, across and down.
    const double across = double(copy.width()) / m_picture.width();
    const double down = double(copy.height()) / m_picture.height();
    const QRectF whole(QPointF(0, 0), QSizeF(m_picture.size()));
    const QRectF shown = exposed & whole;
    if (shown.isEmpty())
        return;
    // The part of the copy under the exposed area, widened to whole pixels.
    const QRect source = QRectF(shown.left() * across, shown.top() * down, shown.width() * across,
                                shown.height() * down)
                             .toAlignedRect() &
                         copy.rect();
    const QRectF target(source.left() / across, source.top() / down, source.width() / across,
                        source.height() / down);
    const QTransform device =
        QTransform::fromScale(1 / across, 1 / down) * painter.worldTransform();
    const QPointF corner = device.map(QPointF(source.topLeft()));
    painter.save();
    painter.setClipRect(shown, Qt::IntersectClip);
    if (std::abs(device.m11() - 1) < 1e-9 && std::abs(device.m22() - 1) < 1e-9 &&
        corner == QPointF(corner.toPoint())) {
        // One copy pixel to one screen pixel: a plain copy.
        painter.setWorldTransform(QTransform());
        painter.drawImage(corner.toPoint(), copy, source);
    } else {
        painter.drawImage(target, copy, source);
    }
    painter.restore();
}
