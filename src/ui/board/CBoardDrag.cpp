#include "CBoardDrag.h"

#include "actions/CArrowHandles.h"
#include "contexts/IGameContext.h"
#include "core/CDelayedMouseCapturer.h"
#include "core/CDragDropMgr.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/CWinApi.h"
#include "model/CUnit.h"
#include "tokens/CQuantityToken.h"
#include "tokens/IToken.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CMapState.h"
#include "ui/board/CUnitItem.h"

#include <QApplication>
#include <QCursor>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>

#include <cmath>

namespace {

// The least time between two steps of scrolling with Ctrl and the mouse.
constexpr double scrollInterval = 0.02;
// A dragging pointer this close to the view's edge scrolls the map.
constexpr int edgeMargin = 24;
constexpr int edgeInterval = 30;

int sign(int value)
{
    return (value > 0) - (value < 0);
}

QString reasonName(CBoardDrag::CancelReason reason)
{
    switch (reason) {
    case CBoardDrag::CancelReason::Escape:
        return QStringLiteral("Escape");
    case CBoardDrag::CancelReason::OtherButton:
        return QStringLiteral("Other Button");
    case CBoardDrag::CancelReason::FocusLost:
        return QStringLiteral("Focus Lost");
    case CBoardDrag::CancelReason::ModelChanged:
        return QStringLiteral("Model Changed");
    case CBoardDrag::CancelReason::NoDrop:
        break;
    }
    return QStringLiteral("No Drop");
}

bool fromBoard(const CDragDropMgr& manager)
{
    return manager.DragInProgress() && manager.DragSource() == CDragDropMgr::Source::Board;
}

} // namespace

CBoardDrag::CBoardDrag(QGraphicsView& view, CBoardScene& scene)
    : QObject(&view), m_view(view), m_scene(scene), m_edgeTimer(new QTimer(this))
{
    m_edgeTimer->setInterval(edgeInterval);
    connect(m_edgeTimer, &QTimer::timeout, this, [this] {
        if (!edgeScroll())
            m_edgeTimer->stop();
    });
    // A unit held while the board is rebuilt, or while its item goes, is let go.
    const auto holding = [this] {
        return m_state != State::Idle && m_state != State::ScrollingMap;
    };
    connect(&m_scene, &CBoardScene::Rebuilt, this, [this, holding] {
        if (holding())
            Cancel(CancelReason::ModelChanged);
    });
    connect(&m_scene, &CBoardScene::UnitGone, this, [this, holding](const QString& unitId) {
        if (holding() && unitId == m_unitId)
            Cancel(CancelReason::ModelChanged);
    });
}

CBoardDrag::~CBoardDrag() = default;

QPoint CBoardDrag::BoardPixel(const QGraphicsView& view, const QPointF& viewPoint)
{
    const QPointF board = view.viewportTransform().inverted().map(viewPoint);
    return QPoint(static_cast<int>(std::floor(board.x())), static_cast<int>(std::floor(board.y())));
}

QPoint CBoardDrag::CentredOn(const IToken& token, QPoint p)
{
    return QPoint(p.x() - token.RegionLeft() - token.RegionWidth() / 2,
                  p.y() - token.RegionTop() - token.RegionHeight() / 2);
}

// ---- the one way out ----

void CBoardDrag::Cancel(CancelReason reason)
{
    if (m_state == State::Idle)
        return;
    const CTraceScope scope("Cancel", "CBoardDrag");
    scope.Denote(QStringLiteral("Reason = ") + reasonName(reason));
    if (m_state == State::ScrollingMap) {
        endScroll();
        return;
    }
    // The drag manager tells its observer, this, which puts the unit back.
    CDragDropMgr& manager = Root().DragDropMgr();
    if (fromBoard(manager))
        manager.EndDrag();
    else
        NotifyNullDrop();
}

void CBoardDrag::NotifyNullDrop()
{
    const CTraceScope scope("NotifyNullDrop", "mdcBoard");
    const QString unitId = m_unitId;
    m_unitId.clear();
    if (m_state != State::ScrollingMap)
        m_state = State::Idle;
    m_edgeTimer->stop();
    // The dragged unit (and a dragged arrow end) go back to the model's place.
    if (!unitId.isEmpty())
        m_scene.RestoreUnit(unitId);
}

// ---- mouse ----

void CBoardDrag::Press(const QMouseEvent& event)
{
    if (m_state != State::Idle) {
        Cancel(CancelReason::OtherButton);
        return;
    }
    const QPoint p = BoardPixel(m_view, event.position());
    const std::shared_ptr<CUnit> unit = m_scene.HitTest(p.x(), p.y());
    if (!unit) {
        if (event.button() == Qt::LeftButton && event.modifiers() == Qt::ControlModifier)
            startScroll();
        return;
    }
    if (CMapState::ActiveFrozen())
        return;
    if (event.button() == Qt::LeftButton)
        pressUnit(event, unit, p);
    else if (event.button() == Qt::RightButton)
        unit->Token()->HandleRightClick(unit);
}

void CBoardDrag::pressUnit(const QMouseEvent& event, const std::shared_ptr<CUnit>& unit, QPoint p)
{
    // A held digit tears that many off the stack, and the drag takes them.
    const int amount = Root().WinApi().GetPressedNumeric();
    const QPoint corner = CentredOn(*unit->Token(), p);
    const QString torn =
        amount > 0 ? CQuantityToken::TearOff(unit, amount, corner.x(), corner.y()) : QString();
    m_unitId = torn.isEmpty() ? unit->Id() : torn;
    m_pressPoint = event.position().toPoint();
    m_state = State::Pressed;
    Root().DragDropMgr().StartDrag(CDragDropMgr::Source::Board, m_unitId, this);
}

void CBoardDrag::Move(const QMouseEvent& event)
{
    // Putting the pointer back while scrolling sends another move.
    if (m_inMove)
        return;
    const QScopedValueRollback<bool> guard(m_inMove, true);
    if (m_state == State::ScrollingMap) {
        scrollStep();
        return;
    }
    const QPoint p = BoardPixel(m_view, event.position());
    if (m_state == State::Idle) {
        hover(p);
        return;
    }
    if (m_state == State::Pressed) {
        if ((event.position().toPoint() - m_pressPoint).manhattanLength() <
            QApplication::startDragDistance())
            return;
        const CUnitItem* item = m_scene.ItemFor(m_unitId);
        const bool handle = item && CArrowHandles::IsArrowToken(*item->Unit()->Token());
        m_state = handle ? State::DraggingArrowEnd : State::DraggingUnit;
        m_scene.ShowGrip(nullptr);
    }
    dragStep(p);
    if (!m_edgeTimer->isActive() && edgeScroll())
        m_edgeTimer->start();
}

void CBoardDrag::Release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    if (m_state == State::ScrollingMap)
        endScroll();
    else if (m_state != State::Idle)
        drop(event);
}

void CBoardDrag::drop(const QMouseEvent& event)
{
    // A click without a drag, a release off the map or outside the window,
    // and a drag on a frozen map all end as a drag that nobody took.
    const QPoint p = BoardPixel(m_view, event.position());
    const bool inside =
        m_view.viewport()->rect().contains(event.position().toPoint()) && m_scene.OnBoard(p);
    CDragDropMgr& manager = Root().DragDropMgr();
    if (!fromBoard(manager) || m_state == State::Pressed || !inside || CMapState::ActiveFrozen()) {
        Cancel(CancelReason::NoDrop);
        return;
    }
    const QString unitId = m_unitId;
    manager.Dropped();
    m_unitId.clear();
    m_state = State::Idle;
    m_edgeTimer->stop();
    dropUnit(unitId, p);
}

void CBoardDrag::dropUnit(const QString& unitId, QPoint p)
{
    const CTraceScope scope("OLEDragDrop", "mdcBoard");
    const std::shared_ptr<CUnit> unit = CMapState::ActiveUnit(unitId);
    if (!unit)
        return;
    const std::shared_ptr<IToken> token = unit->Token();
    const std::shared_ptr<CUnit> target =
        token->SupportsMoveOnto() ? m_scene.HitTest(p.x(), p.y(), unitId) : nullptr;
    if (target && target->Token()->Id() == token->Id()) {
        token->HandleMoveOnto(unit, target);
    } else {
        const QPoint corner = CentredOn(*token, p);
        token->HandleMove(corner.x(), corner.y(), unit);
    }
    // A move to where the unit stood changes nothing the board hears of.
    m_scene.RestoreUnit(unitId);
}

void CBoardDrag::dragStep(QPoint p)
{
    if (!Root().DragDropMgr().DragInProgress() || CMapState::ActiveFrozen())
        return;
    const CUnitItem* item = m_scene.ItemFor(m_unitId);
    if (!item)
        return;
    const std::shared_ptr<CUnit> unit = item->Unit();
    const QPoint corner = CentredOn(*unit->Token(), p);
    if (m_state == State::DraggingUnit) {
        m_scene.ShowUnitAt(m_unitId, corner);
        return;
    }
    const CTraceScope scope("OLEDragOver", "mdcBoard");
    scope.Denote(QStringLiteral("Skip in OLEDragOver"));
    // An arrow handle stays where it is; the arrow shows its end following
    // the pointer until the arrow token moves it for real.
    QString arrowId;
    CArrowHandles::End end;
    if (CArrowHandles::Parse(unit->Data(), arrowId, end))
        m_scene.ShowArrowEnd(arrowId, end, corner);
}

bool CBoardDrag::edgeScroll()
{
    if (m_state != State::DraggingUnit && m_state != State::DraggingArrowEnd)
        return false;
    QWidget* viewport = m_view.viewport();
    const QPoint at = viewport->mapFromGlobal(QCursor::pos());
    const QRect inner = viewport->rect().adjusted(edgeMargin, edgeMargin, -edgeMargin, -edgeMargin);
    const int dx = at.x() < inner.left() ? -1 : (at.x() > inner.right() ? 1 : 0);
    const int dy = at.y() < inner.top() ? -1 : (at.y() > inner.bottom() ? 1 : 0);
    if ((dx == 0 && dy == 0) || !viewport->rect().contains(at))
        return false;
    scrollToward(dx, dy);
    dragStep(BoardPixel(m_view, QPointF(at)));
    return true;
}

// ---- scrolling the map with Ctrl and the mouse ----

void CBoardDrag::startScroll()
{
    m_state = State::ScrollingMap;
    m_savedCursorPos = Root().WinApi().GetCursorPos();
    m_lastScrollTime = CUtility::GetTimestamp();
    Q_EMIT CursorWanted(tBoardCursor::CursorMapScroll);
    // The release must come here wherever the pointer goes.
    if (QWindow* window = m_view.window()->windowHandle())
        CDelayedMouseCapturer::Start(window);
}

void CBoardDrag::endScroll()
{
    m_state = State::Idle;
    Q_EMIT CursorWanted(tBoardCursor::CursorNormal);
    if (QWindow* window = m_view.window()->windowHandle())
        window->setMouseGrabEnabled(false);
}

void CBoardDrag::scrollToward(int dx, int dy)
{
    const CWinApi& api = Root().WinApi();
    if (dx < 0)
        api.WndScrollLeft();
    else if (dx > 0)
        api.WndScrollRight();
    if (dy < 0)
        api.WndScrollUp();
    else if (dy > 0)
        api.WndScrollDown();
}

void CBoardDrag::scrollStep()
{
    CWinApi& api = Root().WinApi();
    const QPoint now = api.GetCursorPos();
    const double time = CUtility::GetTimestamp();
    if (time - m_lastScrollTime > scrollInterval) {
        scrollToward(sign(now.x() - m_savedCursorPos.x()), sign(now.y() - m_savedCursorPos.y()));
        m_lastScrollTime = time;
    }
    api.SetCursorPos(m_savedCursorPos);
    // Where the pointer cannot be put back, scrolling follows its movement.
    if (api.GetCursorPos() != m_savedCursorPos)
        m_savedCursorPos = now;
}

// ---- hover and palette drops ----

void CBoardDrag::hover(QPoint p)
{
    const std::shared_ptr<CUnit> unit = m_scene.HitTest(p.x(), p.y());
    m_scene.ShowGrip(unit && CArrowHandles::IsArrowToken(*unit->Token()) ? unit.get() : nullptr);
    QWidget* viewport = m_view.viewport();
    if (!unit) {
        Q_EMIT CursorWanted(tBoardCursor::CursorNormal);
        if (!viewport->toolTip().isEmpty())
            viewport->setToolTip(QString());
        return;
    }
    Q_EMIT CursorWanted(tBoardCursor::CursorHotspot);
    viewport->setToolTip(unit->Token()->Caption());
}

bool CBoardDrag::AcceptsToken(QPoint board) const
{
    return Root().DragDropMgr().DragInProgress() && !CMapState::ActiveFrozen() &&
           m_scene.OnBoard(board);
}

bool CBoardDrag::DropToken(const QString& tokenId, QPoint board)
{
    const CTraceScope scope("OLEDragDrop", "mdcBoard");
    CDragDropMgr& manager = Root().DragDropMgr();
    const std::shared_ptr<IGameContext>& context = m_scene.Context();
    // A protected map, or one of a closed archive, takes no new counters.
    if (!manager.DragInProgress() || manager.DragSource() != CDragDropMgr::Source::Palette ||
        !context || !m_scene.OnBoard(board) || CMapState::ActiveFrozen())
        return false;
    const CVector<IToken>& tokens = context->Tokens();
    const std::int32_t index = CUtility::SearchById(tokens, tokenId);
    if (index == 0)
        return false;
    manager.Dropped();
    const std::shared_ptr<IToken> token = tokens.Item(index);
    const QPoint corner = CentredOn(*token, board);
    token->HandleDrop(corner.x(), corner.y());
    return true;
}
