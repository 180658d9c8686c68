#include "arcArrows.h"

#include "model/CArrow.h"
#include "model/CMap.h"
#include "render/CBoardRenderer.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

void place(CArrow& arrow, std::int32_t headX, std::int32_t headY, std::int32_t tailX,
           std::int32_t tailY, std::int32_t color)
{
    arrow.SetHeadX(headX);
    arrow.SetHeadY(headY);
    arrow.SetTailX(tailX);
    arrow.SetTailY(tailY);
    arrow.SetColor(color);
}

} // namespace

arcArrows::arcArrows(QGraphicsItem* parent) : QGraphicsItem(parent)
{
    setFlag(ItemUsesExtendedStyleOption, true);
    setAcceptedMouseButtons(Qt::NoButton);
}

arcArrows::~arcArrows() = default;

void arcArrows::SetRenderer(std::shared_ptr<const CBoardRenderer> renderer)
{
    m_renderer = std::move(renderer);
    updateBounds();
}

void arcArrows::Clear()
{
    m_arrows.clear();
    updateBounds();
}

void arcArrows::CopyArrowsOf(const CMap* map)
{
    Clear();
    const CVector<CArrow>* arrows = map ? map->Arrows() : nullptr;
    if (!arrows)
        return;
    for (const auto& arrow : *arrows)
        Add(arrow->Id(), arrow->HeadX(), arrow->HeadY(), arrow->TailX(), arrow->TailY(),
            arrow->Color());
}

void arcArrows::Add(const QString& id, std::int32_t headX, std::int32_t headY, std::int32_t tailX,
                    std::int32_t tailY, std::int32_t color)
{
    m_arrows.push_back(std::make_unique<CArrow>(id));
    place(*m_arrows.back(), headX, headY, tailX, tailY, color);
    const QRectF bounds = boundsOf(*m_arrows.back());
    update(bounds);
    setBounds(m_bounds.united(bounds));
}

void arcArrows::Delete(const QString& id)
{
    const std::size_t index = indexOf(id);
    if (index == m_arrows.size())
        return;
    update(boundsOf(*m_arrows[index]));
    m_arrows.erase(m_arrows.begin() + static_cast<std::ptrdiff_t>(index));
    updateBounds();
}

void arcArrows::Replace(const QString& id, std::int32_t headX, std::int32_t headY,
                        std::int32_t tailX, std::int32_t tailY, std::int32_t color)
{
    const std::size_t index = indexOf(id);
    if (index == m_arrows.size()) {
        Add(id, headX, headY, tailX, tailY, color);
        return;
    }
    CArrow& arrow = *m_arrows[index];
    update(boundsOf(arrow));
    place(arrow, headX, headY, tailX, tailY, color);
    update(boundsOf(arrow));
    updateBounds();
}

const CArrow* arcArrows::Find(const QString& id) const
{
    const std::size_t index = indexOf(id);
    return index == m_arrows.size() ? nullptr : m_arrows[index].get();
}

std::size_t arcArrows::indexOf(const QString& id) const
{
    const auto it =
        std::find_if(m_arrows.begin(), m_arrows.end(),
                     [&id](const std::unique_ptr<CArrow>& arrow) { return arrow->Id() == id; });
    return static_cast<std::size_t>(it - m_arrows.begin());
}

QRectF arcArrows::boundsOf(const CArrow& arrow) const
{
    return m_renderer ? m_renderer->ArrowBounds(arrow) : QRectF();
}

void arcArrows::updateBounds()
{
    QRectF bounds;
    for (const auto& arrow : m_arrows)
        bounds = bounds.united(boundsOf(*arrow));
    setBounds(bounds);
}

void arcArrows::setBounds(const QRectF& bounds)
{
    if (bounds != m_bounds) {
        prepareGeometryChange();
        m_bounds = bounds;
    }
}

void arcArrows::Paint(QPainter& painter, const QRectF& clip) const
{
    if (!m_renderer)
        return;
    for (const auto& arrow : m_arrows) {
        if (clip.isEmpty() || clip.intersects(m_renderer->ArrowBounds(*arrow)))
            m_renderer->PaintArrow(painter, *arrow);
    }
}

void arcArrows::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    Paint(*painter, option ? option->exposedRect : QRectF());
}
