#include "arcArrows.h"

#include "model/CArrow.h"
#include "render/CBoardRenderer.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

std::unique_ptr<CArrow> makeArrow(const QString& id, std::int32_t headX, std::int32_t headY,
                                  std::int32_t tailX, std::int32_t tailY, std::int32_t color)
{
    auto arrow = std::make_unique<CArrow>(id);
    arrow->SetHeadX(headX);
    arrow->SetHeadY(headY);
    arrow->SetTailX(tailX);
    arrow->SetTailY(tailY);
    arrow->SetColor(color);
    return arrow;
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

void arcArrows::Add(const QString& id, std::int32_t headX, std::int32_t headY, std::int32_t tailX,
                    std::int32_t tailY, std::int32_t color)
{
    m_arrows.push_back(makeArrow(id, headX, headY, tailX, tailY, color));
    update(boundsOf(*m_arrows.back()));
    updateBounds();
}

void arcArrows::Delete(const QString& id)
{
    const auto it = find(id);
    if (it == m_arrows.end())
        return;
    update(boundsOf(**it));
    m_arrows.erase(it);
    updateBounds();
}

void arcArrows::Replace(const QString& id, std::int32_t headX, std::int32_t headY,
                        std::int32_t tailX, std::int32_t tailY, std::int32_t color)
{
    const auto it = find(id);
    if (it == m_arrows.end()) {
        Add(id, headX, headY, tailX, tailY, color);
        return;
    }
    update(boundsOf(**it));
    *it = makeArrow(id, headX, headY, tailX, tailY, color);
    update(boundsOf(**it));
    updateBounds();
}

const CArrow* arcArrows::Find(const QString& id) const
{
    for (const auto& arrow : m_arrows) {
        if (arrow->Id() == id)
            return arrow.get();
    }
    return nullptr;
}

std::vector<std::unique_ptr<CArrow>>::iterator arcArrows::find(const QString& id)
{
    return std::find_if(m_arrows.begin(), m_arrows.end(),
                        [&id](const std::unique_ptr<CArrow>& arrow) { return arrow->Id() == id; });
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
