#include "CChangeOverlay.h"

#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "review/CMapComparison.h"
#include "ui/board/CBoardLayer.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CChangeUnits.h"
#include "ui/board/CUnitGhostItem.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QPen>

#include <algorithm>

namespace {

const QColor lineColor(255, 160, 0, 220);
const QColor ringColor(255, 220, 0);
const QColor arrowGhostColor(60, 60, 60, 110);
// A glow along an added arrow, drawn under the arrow itself.
const QColor arrowGlowColor(255, 220, 0, 170);
constexpr double arrowGlowWidth = 10;

void addLine(QGraphicsItem* layer, QPointF from, QPointF to, const QColor& color,
             Qt::PenStyle style)
{
    auto* line = new QGraphicsLineItem(QLineF(from, to), layer);
    QPen pen(color, 2.5, style, Qt::RoundCap);
    pen.setCosmetic(false);
    line->setPen(pen);
}

void addRing(QGraphicsItem* layer, const QRectF& picture)
{
    const double radius = std::max(picture.width(), picture.height()) * 0.75;
    QRectF ring(0, 0, 2 * radius, 2 * radius);
    ring.moveCenter(picture.center());
    auto* item = new QGraphicsEllipseItem(ring, layer);
    item->setPen(QPen(ringColor, 3));
}

// An added arrow: a glow along it and a ring around its head.
void addArrowMark(QGraphicsItem* layer, QPointF tail, QPointF head)
{
    auto* glow = new QGraphicsLineItem(QLineF(tail, head), layer);
    glow->setPen(QPen(arrowGlowColor, arrowGlowWidth, Qt::SolidLine, Qt::RoundCap));
    const double size = 2 * CBoardRenderer::ArrowHeadLength;
    addRing(layer, QRectF(head.x() - size / 2, head.y() - size / 2, size, size));
}

} // namespace

CChangeOverlay::~CChangeOverlay()
{
    Clear();
}

void CChangeOverlay::Show(CBoardScene& scene, const CMapComparison& comparison)
{
    Clear();
    const std::shared_ptr<const CBoardRenderer> renderer = scene.Renderer();
    if (!renderer)
        return;
    m_under = new CBoardLayer(UnderLayer);
    m_over = new CBoardLayer(OverLayer);
    for (const CMapChange& change : comparison.Changes) {
        if (change.IsArrow()) {
            const QPoint origin = renderer->ArrowOrigin();
            if (change.HasFrom())
                addLine(m_under, change.From + origin, change.FromHead + origin, arrowGhostColor,
                        Qt::DashLine);
            if (change.Kind == CMapChange::ChangeKind::Added)
                addArrowMark(m_over, change.To + origin, change.ToHead + origin);
            continue;
        }
        const std::shared_ptr<const CUnit> before = CChangeUnits::Before(change);
        const std::shared_ptr<const CUnit> after = CChangeUnits::After(change);
        switch (change.Kind) {
        case CMapChange::ChangeKind::Moved:
        case CMapChange::ChangeKind::Removed:
            if (before)
                new CUnitGhostItem(before, renderer, scene.Pictures(), m_under);
            if (before && after)
                addLine(m_over, CChangeUnits::Centre(*renderer, *before),
                        CChangeUnits::Centre(*renderer, *after), lineColor, Qt::SolidLine);
            break;
        case CMapChange::ChangeKind::Added:
        case CMapChange::ChangeKind::Changed:
            if (after)
                addRing(m_over, QRectF(renderer->PictureRect(*after)));
            break;
        }
    }
    for (QGraphicsItem* ghost : m_under->childItems())
        ghost->setOpacity(GhostOpacity);
    scene.addItem(m_under);
    scene.addItem(m_over);
}

void CChangeOverlay::Clear()
{
    delete m_under.data();
    delete m_over.data();
}

void CChangeOverlay::SetVisible(bool visible)
{
    if (m_under)
        m_under->setVisible(visible);
    if (m_over)
        m_over->setVisible(visible);
}

bool CChangeOverlay::Visible() const
{
    return m_over && m_over->isVisible();
}

int CChangeOverlay::Ghosts() const
{
    return m_under ? static_cast<int>(m_under->childItems().size()) : 0;
}

int CChangeOverlay::Marks() const
{
    return m_over ? static_cast<int>(m_over->childItems().size()) : 0;
}
