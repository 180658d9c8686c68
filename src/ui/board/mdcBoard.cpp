#include "mdcBoard.h"

#include "core/CDragDropMgr.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CWinApi.h"
#include "model/CGame.h"
#include "ui/board/CBoardDrag.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CDigitKeyWatcher.h"
#include "ui/board/CMapState.h"
#include "ui/docks/UTokenPalette.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

mdcBoard::mdcBoard(QWidget* parent)
    : QGraphicsView(parent), m_scene(new CBoardScene(this)),
      m_drag(new CBoardDrag(*this, *m_scene)), m_digits(new CDigitKeyWatcher(this))
{
    setObjectName(QStringLiteral("mdcBoard"));
    setScene(m_scene);
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
    connect(m_drag, &CBoardDrag::CursorWanted, this, &mdcBoard::setBoardCursor);
    if (CKorvane* root = RootOrNull())
        root->WinApi().SetScrollClient(this);
    m_scene->Rebuild();
}

mdcBoard::~mdcBoard()
{
    if (CKorvane* root = RootOrNull())
        root->WinApi().SetScrollClient(nullptr);
}

// ---- the board as the program sees it ----

std::int32_t mdcBoard::UpdateLock() const
{
    return m_scene->UpdateLock();
}

void mdcBoard::SetUpdateLock(std::int32_t level)
{
    m_scene->SetUpdateLock(level);
}

QImage mdcBoard::PaintToPbox()
{
    return m_scene->PaintToPbox();
}

std::shared_ptr<CUnit> mdcBoard::HitTest(std::int32_t x, std::int32_t y,
                                         const QString& excludeId) const
{
    return m_scene->HitTest(x, y, excludeId);
}

CUnitItem* mdcBoard::ItemFor(const QString& unitId) const
{
    return m_scene->ItemFor(unitId);
}

arcArrows* mdcBoard::Arrows() const
{
    return m_scene->Arrows();
}

int mdcBoard::Rebuilds() const
{
    return m_scene->Rebuilds();
}

void mdcBoard::NotifyNullDrop()
{
    m_drag->NotifyNullDrop();
}

// ---- following the model ----

void mdcBoard::followUnit(const char* method, const QString& id)
{
    const CTraceScope scope(method, "mdcBoard");
    m_scene->FollowUnit(id);
}

void mdcBoard::followArrow(const char* method, const QString& id)
{
    const CTraceScope scope(method, "mdcBoard");
    m_scene->FollowArrow(id);
}

void mdcBoard::NotifyOfGroupSwitch(const QString&, const QString&)
{
    m_scene->Rebuild();
}

void mdcBoard::NotifyOfMapSwitch(const QString&, const QString&)
{
    m_scene->Rebuild();
}

void mdcBoard::NotifyOfNewContext()
{
    m_scene->Rebuild();
}

void mdcBoard::NotifyOfNewGame()
{
    const CTraceScope scope("NotifyOfNewGame", "mdcBoard");
    const std::shared_ptr<CGame> game = CMapState::OpenGame();
    const double scale = m_zoom.SwitchGame(game ? game->Id() : QString());
    applyZoom(scale, QPointF());
    m_scene->Rebuild();
}

void mdcBoard::NotifyOfMapEdit(const QString&)
{
    const CTraceScope scope("NotifyOfMapEdit", "mdcBoard");
    m_scene->FollowMapEdit();
}

// ---- the empty board ----

QString mdcBoard::emptyHint()
{
    return tr("No game is open.\n\nStart one with File > New Game (%1)\nor continue one with "
              "File > Open Game (%2).")
        .arg(QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText),
             QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText));
}

void mdcBoard::drawBackground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawBackground(painter, rect);
    if (m_scene->ShowsMap())
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
    if (!m_scene->ShowsMap())
        viewport()->update();
}

// ---- mouse and focus: the gestures are the drag controller's ----

void mdcBoard::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    event->accept();
    m_drag->Press(*event);
}

void mdcBoard::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    m_drag->Move(*event);
}

void mdcBoard::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    m_drag->Release(*event);
}

void mdcBoard::focusOutEvent(QFocusEvent* event)
{
    QGraphicsView::focusOutEvent(event);
    m_drag->Cancel(CBoardDrag::CancelReason::FocusLost);
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
    // Escape ends a gesture under way: a dragged unit goes back.
    if (event->key() == Qt::Key_Escape && m_drag->Current() != CBoardDrag::State::Idle) {
        m_drag->Cancel(CBoardDrag::CancelReason::Escape);
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
    const QPointF anchored = viewportTransform().inverted().map(viewAnchor);
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
        m_drag->AcceptsToken(CBoardDrag::BoardPixel(*this, event->position())))
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
    if (DropToken(tokenId, CBoardDrag::BoardPixel(*this, event->position())))
        event->acceptProposedAction();
    else
        event->ignore();
}

bool mdcBoard::DropToken(const QString& tokenId, QPoint board)
{
    return m_drag->DropToken(tokenId, board);
}
