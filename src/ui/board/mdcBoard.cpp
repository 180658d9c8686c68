#include "mdcBoard.h"

#include "actions/CActionAddUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionGroup.h"
#include "actions/CActionMgr.h"
#include "actions/CActionMoveUnit.h"
#include "actions/CArrowHandles.h"
#include "contexts/IGameContext.h"
#include "core/CDelayedMouseCapturer.h"
#include "core/CDragDropMgr.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/CWinApi.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "tokens/CTokenBase.h"
#include "tokens/IToken.h"
#include "ui/board/CDigitKeyWatcher.h"
#include "ui/board/CMapPictureItem.h"
#include "ui/board/CMapState.h"
#include "ui/board/CUnitItem.h"
#include "ui/docks/UTokenPalette.h"
#include "ui/board/arcArrows.h"

#include <QApplication>
#include <QCursor>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>

namespace {

// Stacking: the map, the units in model order, a unit being dragged, arrows.
constexpr double pictureLayer = -1;
constexpr double draggedLayer = 0.5;
constexpr double arrowLayer = 1;
// The least time between two steps of scrolling with Ctrl and the mouse.
constexpr double scrollInterval = 0.02;
// A dragging pointer this close to the view's edge scrolls the map.
constexpr int edgeMargin = 24;

std::shared_ptr<CUnit> activeUnit(const QString& unitId)
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    return map && map->Units() ? map->UnitById(unitId) : nullptr;
}

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

mdcBoard::mdcBoard(QWidget* parent)
    : QGraphicsView(parent), m_picture(nullptr), m_arrows(nullptr), m_grip(nullptr),
      m_edgeTimer(new QTimer(this)), m_digits(new CDigitKeyWatcher(this))
{
    m_edgeTimer->setInterval(30);
    connect(m_edgeTimer, &QTimer::timeout, this, [this] {
        if (!edgeScroll())
            m_edgeTimer->stop();
    });
    setObjectName(QStringLiteral("mdcBoard"));
    auto* scene = new QGraphicsScene(this);
    // Units move with every drag step; a linear index is cheaper to keep
    // than a tree for a few thousand items.
    scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    setScene(scene);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setRenderHints(QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setBackgroundBrush(palette().dark());
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(CBoardCursors::Cursor(m_cursor));
    if (CKorvane* root = RootOrNull())
        root->WinApi().SetScrollClient(this);
    rebuild();
}

mdcBoard::~mdcBoard()
{
    if (CKorvane* root = RootOrNull())
        root->WinApi().SetScrollClient(nullptr);
}

// ---- update lock and keeping in step with the model ----

void mdcBoard::SetUpdateLock(std::int32_t level)
{
    const CTraceScope scope("UpdateLock", "mdcBoard");
    if (level == 0 && m_updateLock != 0 && m_pendingRefresh) {
        m_updateLock = 0;
        rebuild();
        m_pendingRefresh = false;
        return;
    }
    m_updateLock = level;
}

bool mdcBoard::deferred()
{
    if (m_updateLock < 1)
        return false;
    m_pendingRefresh = true;
    return true;
}

void mdcBoard::rebuild()
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
    }
    // Clearing the scene at once is much cheaper than removing items one by one.
    m_items.clear();
    scene()->clear();
    m_picture = new CMapPictureItem;
    m_picture->setZValue(pictureLayer);
    scene()->addItem(m_picture);
    m_arrows = new arcArrows;
    m_arrows->setZValue(arrowLayer);
    scene()->addItem(m_arrows);
    m_grip = scene()->addRect(QRectF(), QPen(Qt::black, 1), QBrush(QColor(255, 255, 255, 160)));
    m_grip->setZValue(arrowLayer + 1);
    m_grip->hide();

    redrawBackground();
    rebuildUnits();
    rebuildArrows();
    Q_EMIT Rebuilt();
}

void mdcBoard::redrawBackground()
{
    m_picture->SetRenderer(m_renderer);
    const QSize board = m_renderer ? m_renderer->BoardSize() : QSize();
    scene()->setSceneRect(QRectF(QPointF(0, 0), QSizeF(board)));
}

QString mdcBoard::emptyHint()
{
    return QStringLiteral("No game is open.\n\nStart one with File > New Game (%1)\nor continue "
                          "one with File > Open Game (%2).")
        .arg(QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText),
             QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText));
}

void mdcBoard::drawBackground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawBackground(painter, rect);
    if (m_renderer && CMapState::ActiveMap())
        return;
    // A first start shows a way in instead of a bare grey field.
    painter->save();
    painter->resetTransform();
    QFont font = painter->font();
    font.setPointSizeF(font.pointSizeF() * 1.2);
    painter->setFont(font);
    painter->setPen(palette().color(QPalette::WindowText));
    painter->drawText(viewport()->rect(), Qt::AlignCenter, emptyHint());
    painter->restore();
}

void mdcBoard::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    // The hint is centred, so all of it moves when the view changes size.
    if (!m_renderer || !CMapState::ActiveMap())
        viewport()->update();
}

void mdcBoard::rebuildUnits()
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const CVector<CUnit>* units = map ? map->Units() : nullptr;
    if (!units || !m_renderer)
        return;
    m_items.reserve(units->Count());
    for (const auto& unit : *units)
        addUnitItem(unit);
}

void mdcBoard::rebuildArrows()
{
    m_arrows->SetRenderer(m_renderer);
    m_arrows->Clear();
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const CVector<CArrow>* arrows = map ? map->Arrows() : nullptr;
    if (!arrows)
        return;
    for (const auto& arrow : *arrows) {
        m_arrows->Add(arrow->Id(), arrow->HeadX(), arrow->HeadY(), arrow->TailX(), arrow->TailY(),
                      arrow->Color());
    }
}

void mdcBoard::addUnitItem(const std::shared_ptr<CUnit>& unit)
{
    auto* item = new CUnitItem(unit, m_renderer);
    scene()->addItem(item);
    m_items.insert(unit->Id(), item);
}

void mdcBoard::syncUnit(const QString& unitId)
{
    const std::shared_ptr<CUnit> unit = m_renderer ? activeUnit(unitId) : nullptr;
    CUnitItem* item = m_items.value(unitId);
    if (item && item->Unit() == unit) {
        item->setZValue(0);
        item->Sync();
        return;
    }
    // A unit gone, or another unit under the same id, takes a new item.
    delete m_items.take(unitId);
    if (unit)
        addUnitItem(unit);
}

void mdcBoard::syncArrow(const QString& arrowId)
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

void mdcBoard::NotifyOfNewGame()
{
    const CTraceScope scope("NotifyOfNewGame", "mdcBoard");
    CKorvane* root = RootOrNull();
    const std::shared_ptr<CGame> game = root ? root->Game() : nullptr;
    const double scale = m_zoom.SwitchGame(game ? game->Id() : QString());
    applyZoom(scale, QPointF());
    rebuild();
}

void mdcBoard::NotifyOfMapEdit(const QString&)
{
    const CTraceScope scope("NotifyOfMapEdit", "mdcBoard");
    if (!deferred())
        redrawBackground();
    Q_EMIT ModelFollowed();
}

void mdcBoard::follow(const char* method, void (mdcBoard::*sync)(const QString&), const QString& id)
{
    const CTraceScope scope(method, "mdcBoard");
    if (!deferred())
        (this->*sync)(id);
    Q_EMIT ModelFollowed();
}

void mdcBoard::NotifyNullDrop()
{
    const CTraceScope scope("NotifyNullDrop", "mdcBoard");
    // The dragged unit (and a dragged arrow end) go back to the model's place.
    const QString unitId = m_dragUnitId;
    m_dragUnitId.clear();
    m_edgeTimer->stop();
    const std::shared_ptr<CUnit> unit = activeUnit(unitId);
    if (!unit)
        return;
    syncUnit(unitId);
    QString arrowId;
    CArrowHandles::End end;
    if (CArrowHandles::Parse(unit->Data(), arrowId, end))
        syncArrow(arrowId);
}

QImage mdcBoard::PaintToPbox()
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
    scene()->render(&painter, area, area);
    painter.end();
    m_grip->setVisible(grip);
    return image;
}

// ---- positions ----

QPointF mdcBoard::toBoard(const QPointF& viewPoint) const
{
    return viewportTransform().inverted().map(viewPoint);
}

QPoint mdcBoard::boardPixel(const QPointF& boardPoint)
{
    return QPoint(static_cast<int>(std::floor(boardPoint.x())),
                  static_cast<int>(std::floor(boardPoint.y())));
}

bool mdcBoard::onBoard(QPoint p) const
{
    return m_renderer && QRect(QPoint(0, 0), m_renderer->BoardSize()).contains(p);
}

QPoint mdcBoard::centredOn(const IToken& token, QPoint p)
{
    return QPoint(p.x() - token.RegionLeft() - token.RegionWidth() / 2,
                  p.y() - token.RegionTop() - token.RegionHeight() / 2);
}

std::shared_ptr<CUnit> mdcBoard::HitTest(std::int32_t x, std::int32_t y,
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

// ---- mouse ----

void mdcBoard::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    event->accept();
    if (m_mapScroll)
        return;
    // Another button during a drag cancels it.
    if (!m_dragUnitId.isEmpty()) {
        cancelUnitDrag();
        return;
    }
    const QPoint p = boardPixel(toBoard(event->position()));
    const std::shared_ptr<CUnit> unit = HitTest(p.x(), p.y());
    if (!unit) {
        if (event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier) {
            m_mapScroll = true;
            m_savedCursorPos = Root().WinApi().GetCursorPos();
            m_lastScrollTime = CUtility::GetTimestamp();
            setBoardCursor(tBoardCursor::CursorMapScroll);
            // The release must come here wherever the pointer goes.
            if (QWindow* window = this->window()->windowHandle())
                CDelayedMouseCapturer::Start(window);
        }
        return;
    }
    if (CMapState::ActiveFrozen())
        return;
    if (event->button() == Qt::LeftButton) {
        QString dragged = unit->Id();
        const int amount = Root().WinApi().GetPressedNumeric();
        const QString torn = amount > 0 ? tearOff(unit, amount, p) : QString();
        if (!torn.isEmpty())
            dragged = torn;
        m_dragUnitId = dragged;
        m_pressPoint = event->position().toPoint();
        m_dragMoved = false;
        Root().DragDropMgr().StartDrag(CDragDropMgr::Source::Board, dragged, this);
    } else if (event->button() == Qt::RightButton) {
        unit->Token()->HandleRightClick(unit);
    }
}

void mdcBoard::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    // Putting the pointer back while scrolling sends another move.
    if (m_inMouseMove)
        return;
    const QScopedValueRollback<bool> guard(m_inMouseMove, true);
    if (m_mapScroll) {
        scrollStep();
        return;
    }
    const QPoint p = boardPixel(toBoard(event->position()));
    if (!m_dragUnitId.isEmpty()) {
        if (!m_dragMoved && (event->position().toPoint() - m_pressPoint).manhattanLength() <
                                QApplication::startDragDistance())
            return;
        m_dragMoved = true;
        m_grip->hide();
        dragStep(p);
        if (!m_edgeTimer->isActive() && edgeScroll())
            m_edgeTimer->start();
        return;
    }
    hover(p);
}

void mdcBoard::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    if (m_mapScroll) {
        m_mapScroll = false;
        setBoardCursor(tBoardCursor::CursorNormal);
        if (QWindow* window = this->window()->windowHandle())
            window->setMouseGrabEnabled(false);
        return;
    }
    if (!m_dragUnitId.isEmpty())
        endUnitDrag(event);
}

void mdcBoard::endUnitDrag(QMouseEvent* event)
{
    const QString unitId = m_dragUnitId;
    CDragDropMgr& manager = Root().DragDropMgr();
    if (!manager.DragInProgress() || manager.DragSource() != CDragDropMgr::Source::Board) {
        NotifyNullDrop();
        return;
    }
    // A click without a drag, a release off the map or outside the window,
    // and a drag on a frozen map all end as a drag that nobody took.
    const QPoint p = boardPixel(toBoard(event->position()));
    const bool inside = viewport()->rect().contains(event->position().toPoint()) && onBoard(p);
    if (!m_dragMoved || !inside || CMapState::ActiveFrozen()) {
        manager.EndDrag();
        return;
    }
    manager.Dropped();
    m_dragUnitId.clear();
    m_edgeTimer->stop();
    dropUnit(unitId, p);
}

bool mdcBoard::edgeScroll()
{
    if (m_dragUnitId.isEmpty() || !m_dragMoved)
        return false;
    const QPoint at = viewport()->mapFromGlobal(QCursor::pos());
    const QRect inner =
        viewport()->rect().adjusted(edgeMargin, edgeMargin, -edgeMargin, -edgeMargin);
    const int dx = at.x() < inner.left() ? -1 : (at.x() > inner.right() ? 1 : 0);
    const int dy = at.y() < inner.top() ? -1 : (at.y() > inner.bottom() ? 1 : 0);
    if ((dx == 0 && dy == 0) || !viewport()->rect().contains(at))
        return false;
    ScrollLines(dx, dy);
    dragStep(boardPixel(toBoard(QPointF(at))));
    return true;
}

void mdcBoard::cancelUnitDrag()
{
    CDragDropMgr& manager = Root().DragDropMgr();
    if (manager.DragInProgress() && manager.DragSource() == CDragDropMgr::Source::Board)
        manager.EndDrag();
    else
        NotifyNullDrop();
}

void mdcBoard::dragStep(QPoint p)
{
    if (!Root().DragDropMgr().DragInProgress() || CMapState::ActiveFrozen())
        return;
    // The board keeps an item for every unit of the shown map.
    CUnitItem* item = m_items.value(m_dragUnitId);
    if (!item)
        return;
    const std::shared_ptr<CUnit> unit = item->Unit();
    const QPoint corner = centredOn(*unit->Token(), p);
    if (!CArrowHandles::IsArrowToken(*unit->Token())) {
        item->setZValue(draggedLayer);
        item->setPos(corner);
        return;
    }
    const CTraceScope scope("OLEDragOver", "mdcBoard");
    scope.Denote(QStringLiteral("Skip in OLEDragOver"));
    // An arrow handle stays where it is; the arrow shows its end following
    // the pointer until the arrow token moves it for real.
    QString arrowId;
    CArrowHandles::End end;
    const CArrow* arrow =
        CArrowHandles::Parse(unit->Data(), arrowId, end) ? m_arrows->Find(arrowId) : nullptr;
    if (!arrow)
        return;
    const bool head = end == CArrowHandles::End::Head;
    m_arrows->Replace(arrowId, head ? corner.x() : arrow->HeadX(),
                      head ? corner.y() : arrow->HeadY(), head ? arrow->TailX() : corner.x(),
                      head ? arrow->TailY() : corner.y(), arrow->Color());
}

void mdcBoard::dropUnit(const QString& unitId, QPoint p)
{
    const CTraceScope scope("OLEDragDrop", "mdcBoard");
    const std::shared_ptr<CUnit> unit = activeUnit(unitId);
    if (!unit)
        return;
    const std::shared_ptr<IToken> token = unit->Token();
    if (token->SupportsMoveOnto()) {
        const std::shared_ptr<CUnit> target = HitTest(p.x(), p.y(), unitId);
        if (target && target->Token()->Id() == token->Id()) {
            token->HandleMoveOnto(unit, target);
            syncUnit(unitId);
            return;
        }
    }
    const QPoint corner = centredOn(*token, p);
    token->HandleMove(corner.x(), corner.y(), unit);
    // A move to where the unit stood changes nothing the board hears of.
    syncUnit(unitId);
}

QString mdcBoard::tearOff(const std::shared_ptr<CUnit>& unit, int amount, QPoint p)
{
    const CTraceScope scope("TearOff", "mdcBoard");
    const std::shared_ptr<IToken> token = unit->Token();
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    if (!map || token->Class() != QLatin1String("CQuantityToken"))
        return QString();
    const std::int32_t quantity = CTokenBase::CountOf(unit->Data());
    if (quantity <= amount)
        return QString();
    const QPoint corner = centredOn(*token, p);
    auto added = std::make_shared<CActionAddUnit>();
    added->SetMapId(map->Id());
    added->SetUnitId(CUtility::GenerateId());
    added->SetTokenId(token->Id());
    added->SetPosition(corner.x(), corner.y());
    // The group ends with a move of the new stack, so that the drag that
    // follows chains into it and one undo takes back tear-off and drag.
    auto placed = std::make_shared<CActionMoveUnit>();
    placed->SetMapId(map->Id());
    placed->SetUnitId(added->UnitId());
    placed->SetPosition(static_cast<float>(corner.x()), static_cast<float>(corner.y()));
    placed->SetHasMoved(unit->HasMoved());

    auto group = std::make_shared<CActionGroup>();
    group->SetCaption(QStringLiteral("Tear Off ") + QString::number(amount));
    group->SetAllowChain(true);
    auto newCount = CTokenBase::CountEditOf(*unit, amount);
    newCount->SetUnitId(added->UnitId());
    group->AddAction(CTokenBase::CountEditOf(*unit, quantity - amount));
    group->AddAction(added);
    group->AddAction(newCount);
    group->AddAction(placed);
    Root().ActionMgr().Execute(group);
    return added->UnitId();
}

void mdcBoard::scrollStep()
{
    CWinApi& api = Root().WinApi();
    const QPoint now = api.GetCursorPos();
    const double time = CUtility::GetTimestamp();
    if (time - m_lastScrollTime > scrollInterval) {
        const int dx = sign(now.x() - m_savedCursorPos.x());
        const int dy = sign(now.y() - m_savedCursorPos.y());
        if (dx < 0)
            api.WndScrollLeft();
        else if (dx > 0)
            api.WndScrollRight();
        if (dy < 0)
            api.WndScrollUp();
        else if (dy > 0)
            api.WndScrollDown();
        m_lastScrollTime = time;
    }
    api.SetCursorPos(m_savedCursorPos);
    // Where the pointer cannot be put back, scrolling follows its movement.
    if (api.GetCursorPos() != m_savedCursorPos)
        m_savedCursorPos = now;
}

void mdcBoard::hover(QPoint p)
{
    const std::shared_ptr<CUnit> unit = HitTest(p.x(), p.y());
    const CUnitItem* item =
        unit && CArrowHandles::IsArrowToken(*unit->Token()) ? m_items.value(unit->Id()) : nullptr;
    m_grip->setVisible(item != nullptr);
    if (item) {
        const IToken& token = *unit->Token();
        m_grip->setRect(QRectF(item->pos().x() + token.RegionLeft(),
                               item->pos().y() + token.RegionTop(), token.RegionWidth(),
                               token.RegionHeight()));
    }
    if (!unit) {
        setBoardCursor(tBoardCursor::CursorNormal);
        if (!viewport()->toolTip().isEmpty())
            viewport()->setToolTip(QString());
        return;
    }
    setBoardCursor(tBoardCursor::CursorHotspot);
    viewport()->setToolTip(unit->Token()->Caption());
}

void mdcBoard::setBoardCursor(tBoardCursor cursor)
{
    if (cursor == m_cursor)
        return;
    m_cursor = cursor;
    viewport()->setCursor(CBoardCursors::Cursor(cursor));
}

// ---- keys, scrolling and zoom ----

void mdcBoard::keyPressEvent(QKeyEvent* event)
{
    // Every key stops here: the scene has nothing to do with keys.
    event->accept();
    // Escape during a drag puts the unit back.
    if (event->key() == Qt::Key_Escape && !m_dragUnitId.isEmpty()) {
        cancelUnitDrag();
        return;
    }
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    using Scroll = void (CWinApi::*)() const;
    struct KeyScroll
    {
        int Key;
        Scroll Plain;
        Scroll Ctrl;
    };
    static constexpr KeyScroll table[] = {
        {Qt::Key_Down, &CWinApi::WndScrollDown, &CWinApi::WndScrollDownLarge},
        {Qt::Key_Up, &CWinApi::WndScrollUp, &CWinApi::WndScrollUpLarge},
        {Qt::Key_Left, &CWinApi::WndScrollLeft, &CWinApi::WndScrollLeftLarge},
        {Qt::Key_Right, &CWinApi::WndScrollRight, &CWinApi::WndScrollRightLarge},
        {Qt::Key_PageDown, &CWinApi::WndScrollDownLarge, nullptr},
        {Qt::Key_PageUp, &CWinApi::WndScrollUpLarge, nullptr},
        {Qt::Key_Home, &CWinApi::WndScrollLeftLarge, nullptr},
        {Qt::Key_End, &CWinApi::WndScrollRightLarge, nullptr},
    };
    // Shift, Alt and any mix of modifiers do nothing.
    const bool plain = modifiers == Qt::NoModifier;
    if (!plain && modifiers != Qt::ControlModifier)
        return;
    for (const KeyScroll& entry : table) {
        const Scroll scroll = plain ? entry.Plain : entry.Ctrl;
        if (entry.Key == event->key() && scroll)
            (Root().WinApi().*scroll)();
    }
}

void mdcBoard::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
}

void mdcBoard::ScrollLines(int dx, int dy)
{
    QScrollBar* across = horizontalScrollBar();
    QScrollBar* down = verticalScrollBar();
    across->setValue(across->value() + dx * across->singleStep());
    down->setValue(down->value() + dy * down->singleStep());
}

void mdcBoard::ScrollPages(int dx, int dy)
{
    QScrollBar* across = horizontalScrollBar();
    QScrollBar* down = verticalScrollBar();
    across->setValue(across->value() + dx * across->pageStep());
    down->setValue(down->value() + dy * down->pageStep());
}

void mdcBoard::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    event->accept();
    const int delta = event->angleDelta().y();
    if (delta == 0)
        return;
    applyZoom(delta > 0 ? m_zoom.StepIn() : m_zoom.StepOut(), event->position());
}

void mdcBoard::ZoomIn()
{
    applyZoom(m_zoom.StepIn(), QRectF(viewport()->rect()).center());
}

void mdcBoard::ZoomOut()
{
    applyZoom(m_zoom.StepOut(), QRectF(viewport()->rect()).center());
}

void mdcBoard::ZoomReset()
{
    applyZoom(1.0, QRectF(viewport()->rect()).center());
}

void mdcBoard::ZoomFit()
{
    const QRectF board = sceneRect();
    if (board.isEmpty())
        return;
    applyZoom(std::min(viewport()->width() / board.width(), viewport()->height() / board.height()),
              QPointF());
}

void mdcBoard::applyZoom(double scale, const QPointF& viewAnchor)
{
    // The board point under the anchor stays under it.
    const QPointF anchored = toBoard(viewAnchor);
    const double taken = m_zoom.SetScale(scale);
    setTransform(QTransform::fromScale(taken, taken));
    const QPointF moved = viewportTransform().map(anchored) - viewAnchor;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
}

// ---- drops from the palette ----

void mdcBoard::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasFormat(QLatin1String(UTokenPalette::MimeType)) &&
        Root().DragDropMgr().DragInProgress())
        event->acceptProposedAction();
    else
        event->ignore();
}

void mdcBoard::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->mimeData()->hasFormat(QLatin1String(UTokenPalette::MimeType)) &&
        Root().DragDropMgr().DragInProgress() && !CMapState::ActiveFrozen() &&
        onBoard(boardPixel(toBoard(event->position()))))
        event->acceptProposedAction();
    else
        event->ignore();
}

// A palette drag that leaves the board keeps its state: it may come back.
void mdcBoard::dragLeaveEvent(QDragLeaveEvent* event)
{
    event->accept();
}

void mdcBoard::dropEvent(QDropEvent* event)
{
    const CDragDropMgr& manager = Root().DragDropMgr();
    const QString tokenId = manager.DraggedId();
    if (DropToken(tokenId, boardPixel(toBoard(event->position()))))
        event->acceptProposedAction();
    else
        event->ignore();
}

bool mdcBoard::DropToken(const QString& tokenId, QPoint board)
{
    const CTraceScope scope("OLEDragDrop", "mdcBoard");
    CDragDropMgr& manager = Root().DragDropMgr();
    // A protected map, or one of a closed archive, takes no new counters.
    if (!manager.DragInProgress() || manager.DragSource() != CDragDropMgr::Source::Palette ||
        !m_context || !onBoard(board) || CMapState::ActiveFrozen())
        return false;
    const CVector<IToken>& tokens = m_context->Tokens();
    const std::int32_t index = CUtility::SearchById(tokens, tokenId);
    if (index == 0)
        return false;
    manager.Dropped();
    const std::shared_ptr<IToken> token = tokens.Item(index);
    const QPoint corner = centredOn(*token, board);
    token->HandleDrop(corner.x(), corner.y());
    return true;
}
