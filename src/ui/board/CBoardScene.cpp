#include "CBoardScene.h"

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "tokens/IToken.h"
#include "ui/board/CMapPictureItem.h"
#include "ui/board/CMapState.h"
#include "ui/board/CUnitItem.h"
#include "ui/board/CUnitPictureCache.h"
#include "ui/board/arcArrows.h"

#include <QGraphicsRectItem>
#include <QPainter>

namespace {

// Stacking: the map, the units in model order, a unit shown ahead of the
// model, the arrows, the grip, then the overlay layer.
constexpr double pictureLayer = -1;
constexpr double unitLayer = 0;
constexpr double aheadLayer = 0.5;
constexpr double arrowLayer = 1;
constexpr double gripLayer = 2;
constexpr double overlayLayer = 3;

// An item that draws nothing itself: its children are the layer's contents.
class CLayerItem : public QGraphicsItem
{
public:
    CLayerItem() { setFlag(ItemHasNoContents, true); }
    QRectF boundingRect() const override { return QRectF(); }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
};

} // namespace

CBoardScene::CBoardScene(QObject* parent)
    : QGraphicsScene(parent), m_picture(new CMapPictureItem), m_overlay(new CLayerItem)
{
    // Units move with every drag step; a linear index is cheaper to keep
    // than a tree for a few thousand items.
    setItemIndexMethod(QGraphicsScene::NoIndex);
    m_picture->setZValue(pictureLayer);
    addItem(m_picture);
    m_overlay->setZValue(overlayLayer);
    addItem(m_overlay);
}

CBoardScene::~CBoardScene() = default;

void CBoardScene::SetUpdateLock(std::int32_t level)
{
    const CTraceScope scope("UpdateLock", "mdcBoard");
    if (level == 0 && m_updateLock != 0 && m_pendingRefresh) {
        m_updateLock = 0;
        Rebuild();
        m_pendingRefresh = false;
        return;
    }
    m_updateLock = level;
}

bool CBoardScene::deferred()
{
    if (m_updateLock < 1)
        return false;
    m_pendingRefresh = true;
    return true;
}

void CBoardScene::Rebuild()
{
    const CTraceScope scope("Rebuild", "mdcBoard");
    if (deferred())
        return;
    ++m_rebuilds;
    CKorvane* root = RootOrNull();
    const std::shared_ptr<IGameContext> context = root ? root->Context() : nullptr;
    if (context != m_context || !m_renderer) {
        m_context = context;
        m_renderer = context ? std::make_shared<CBoardRenderer>(context) : nullptr;
        m_pictures = m_renderer ? std::make_shared<CUnitPictureCache>(m_renderer) : nullptr;
    }
    // Clearing the scene at once is much cheaper than removing items one by
    // one. The map picture (with its reduced copies) and the overlay layer
    // are kept out of it.
    removeItem(m_picture);
    removeItem(m_overlay);
    std::unique_ptr<QGraphicsItem> picture(m_picture);
    std::unique_ptr<QGraphicsItem> overlay(m_overlay);
    m_items.clear();
    clear();
    addItem(picture.release());
    addItem(overlay.release());
    m_arrows = new arcArrows;
    m_arrows->setZValue(arrowLayer);
    addItem(m_arrows);
    m_grip = addRect(QRectF(), QPen(Qt::black, 1), QBrush(QColor(255, 255, 255, 160)));
    m_grip->setZValue(gripLayer);
    m_grip->hide();

    redrawBackground();
    rebuildUnits();
    rebuildArrows();
    Q_EMIT Rebuilt();
}

void CBoardScene::redrawBackground()
{
    m_picture->SetRenderer(m_renderer, m_context ? m_context->MapPicture() : QImage());
    const QSize board = m_renderer ? m_renderer->BoardSize() : QSize();
    setSceneRect(QRectF(QPointF(0, 0), QSizeF(board)));
}

void CBoardScene::rebuildUnits()
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const CVector<CUnit>* units = map ? map->Units() : nullptr;
    if (!units || !m_renderer)
        return;
    m_items.reserve(units->Count());
    for (const auto& unit : *units)
        addUnitItem(unit);
}

void CBoardScene::rebuildArrows()
{
    m_arrows->SetRenderer(m_renderer);
    m_arrows->CopyArrowsOf(CMapState::ActiveMap().get());
}

void CBoardScene::addUnitItem(const std::shared_ptr<CUnit>& unit)
{
    auto* item = new CUnitItem(unit, m_renderer, m_pictures);
    addItem(item);
    m_items.insert(unit->Id(), item);
}

void CBoardScene::FollowMapEdit()
{
    if (!deferred())
        redrawBackground();
    Q_EMIT ModelFollowed();
}

void CBoardScene::FollowUnit(const QString& unitId)
{
    if (!deferred())
        syncUnit(unitId);
    Q_EMIT ModelFollowed();
}

void CBoardScene::FollowArrow(const QString& arrowId)
{
    if (!deferred())
        syncArrow(arrowId);
    Q_EMIT ModelFollowed();
}

void CBoardScene::syncUnit(const QString& unitId)
{
    const std::shared_ptr<CUnit> unit = m_renderer ? CMapState::ActiveUnit(unitId) : nullptr;
    CUnitItem* item = m_items.value(unitId);
    if (item && item->Unit() == unit) {
        item->setZValue(unitLayer);
        item->Sync();
        return;
    }
    // A unit gone, or another unit under the same id, takes a new item.
    delete m_items.take(unitId);
    if (unit)
        addUnitItem(unit);
    if (item)
        Q_EMIT UnitGone(unitId);
}

void CBoardScene::syncArrow(const QString& arrowId)
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const std::shared_ptr<CArrow> arrow = map && map->Arrows() ? map->ArrowById(arrowId) : nullptr;
    if (!arrow) {
        m_arrows->Delete(arrowId);
        return;
    }
    m_arrows->Replace(arrowId, arrow->HeadX(), arrow->HeadY(), arrow->TailX(), arrow->TailY(),
                      arrow->Color());
}

bool CBoardScene::ShowsMap() const
{
    return m_renderer && CMapState::ActiveMap();
}

bool CBoardScene::OnBoard(QPoint p) const
{
    return m_renderer && QRect(QPoint(0, 0), m_renderer->BoardSize()).contains(p);
}

std::shared_ptr<CUnit> CBoardScene::HitTest(std::int32_t x, std::int32_t y,
                                            const QString& excludeId) const
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const CVector<CUnit>* units = map ? map->Units() : nullptr;
    if (!units)
        return nullptr;
    const std::int64_t px = x;
    const std::int64_t py = y;
    for (const auto& unit : *units) {
        if (!excludeId.isEmpty() && unit->Id() == excludeId)
            continue;
        const CUnitItem* item = m_items.value(unit->Id());
        const QPointF corner = item ? item->pos() : QPointF(unit->x(), unit->y());
        const IToken& token = *unit->Token();
        const std::int64_t left = static_cast<std::int64_t>(corner.x()) + token.RegionLeft();
        const std::int64_t top = static_cast<std::int64_t>(corner.y()) + token.RegionTop();
        if (left <= px && px <= left + token.RegionWidth() && top <= py &&
            py <= top + token.RegionHeight())
            return unit;
    }
    return nullptr;
}

QImage CBoardScene::PaintToPbox()
{
    const CTraceScope scope("PaintToPbox", "mdcBoard");
    const QSize board = m_renderer ? m_renderer->BoardSize() : QSize();
    if (board.isEmpty())
        return QImage();
    QImage image(board, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    // The grip is a hint for the pointer, not part of the map's picture.
    const bool grip = m_grip->isVisible();
    m_grip->hide();
    QPainter painter(&image);
    const QRectF area(QPointF(0, 0), QSizeF(board));
    render(&painter, area, area);
    painter.end();
    m_grip->setVisible(grip);
    return image;
}

void CBoardScene::ShowUnitAt(const QString& unitId, QPoint corner)
{
    if (CUnitItem* item = m_items.value(unitId)) {
        item->setZValue(aheadLayer);
        item->setPos(corner);
    }
}

void CBoardScene::ShowArrowEnd(const QString& arrowId, CArrowHandles::End end, QPoint p)
{
    const CArrow* arrow = m_arrows->Find(arrowId);
    if (!arrow)
        return;
    const bool head = end == CArrowHandles::End::Head;
    m_arrows->Replace(arrowId, head ? p.x() : arrow->HeadX(), head ? p.y() : arrow->HeadY(),
                      head ? arrow->TailX() : p.x(), head ? arrow->TailY() : p.y(), arrow->Color());
}

void CBoardScene::RestoreUnit(const QString& unitId)
{
    syncUnit(unitId);
    const std::shared_ptr<CUnit> unit = CMapState::ActiveUnit(unitId);
    if (!unit)
        return;
    QString arrowId;
    CArrowHandles::End end;
    if (CArrowHandles::Parse(unit->Data(), arrowId, end))
        syncArrow(arrowId);
}

void CBoardScene::ShowGrip(const CUnit* handle)
{
    const CUnitItem* item = handle ? m_items.value(handle->Id()) : nullptr;
    m_grip->setVisible(item != nullptr);
    if (!item)
        return;
    const IToken& token = *handle->Token();
    m_grip->setRect(QRectF(item->pos().x() + token.RegionLeft(),
                           item->pos().y() + token.RegionTop(), token.RegionWidth(),
                           token.RegionHeight()));
}
