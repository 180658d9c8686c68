#include "core/CDragDropMgr.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "support/WindowFixture.h"
#include "ui/board/CBoardDrag.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CBoardZoom.h"
#include "ui/board/CUnitItem.h"
#include "ui/board/arcArrows.h"
#include "ui/board/mdcBoard.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGraphicsRectItem>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>

namespace {

// The main window on screen with Border Skirmish's new game, its map emptied.
class BoardTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        board = window->Board();
        newGame();
        while (map()->Units()->Count() > 0)
            removeUnit(map()->Units()->Item(1));
        Root().ActionMgr().Clear();
    }
    static std::int32_t units() { return map()->Units()->Count(); }
    static std::shared_ptr<CUnit> last() { return map()->Units()->Item(units()); }
    QPoint view(QPoint boardPixel) const { return board->mapFromScene(QPointF(boardPixel)); }

    void mouse(QEvent::Type type, QPoint boardPixel, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        const QPointF local(view(boardPixel));
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, local, board->viewport()->mapToGlobal(local),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
        QApplication::sendEvent(board->viewport(), &event);
    }
    // Press, two steps of movement and release, as a hand drags.
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
        mouse(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton, modifiers);
        mouse(QEvent::MouseMove, to, Qt::LeftButton, modifiers);
        mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, modifiers);
    }
    // A palette drag as the offscreen platform allows: the drag events sent
    // by hand, with a trip out of the board and back before the drop.
    void dropFromPalette(const QString& tokenId, QPoint at) const
    {
        CDragDropMgr& manager = Root().DragDropMgr();
        manager.StartDrag(CDragDropMgr::Source::Palette, tokenId, nullptr);
        QMimeData mime;
        mime.setData(QLatin1String(UTokenPalette::MimeType), tokenId.toUtf8());
        const QPointF local(view(at));
        for (int trip = 0; trip < 2; ++trip) {
            QDragEnterEvent enter(view(at), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(board->viewport(), &enter);
            QDragMoveEvent move(view(at), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(board->viewport(), &move);
            if (trip == 0) {
                QDragLeaveEvent leave;
                QApplication::sendEvent(board->viewport(), &leave);
            }
        }
        QDropEvent drop(local, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(board->viewport(), &drop);
        manager.EndDrag();
    }
    // A stack of count red infantry whose click region is centred on centre.
    std::shared_ptr<CUnit> stack(QPoint centre, int count) const
    {
        dropFromPalette(QStringLiteral("red_inf"), centre);
        editUnit(last(), QString::number(count), QStringLiteral("x%1").arg(count));
        return last();
    }

    mdcBoard* board = nullptr;
};

QPoint placeOf(const CUnit& unit)
{
    return QPoint(unit.x(), unit.y());
}

// red_inf pictures are 40 x 40 with the click region (2, 2, 36, 36): a unit
// centred on a point stands 20 pixels up and left of it.
const QPoint toCorner(20, 20);

TEST_F(BoardTest, DropsDragsAndMergesGoThroughTheTokensAsUndoableSteps)
{
    dropFromPalette(QStringLiteral("red_inf"), QPoint(300, 200));
    ASSERT_EQ(units(), 1);
    const auto dropped = last();
    EXPECT_EQ(placeOf(*dropped), QPoint(280, 180));

    // A drag carries the unit by its click region; undo puts it and its picture back.
    const std::int32_t undoPos = Root().ActionMgr().UndoPos();
    drag(QPoint(300, 200), QPoint(420, 300));
    EXPECT_EQ(placeOf(*dropped), QPoint(420, 300) - toCorner);
    Root().ActionMgr().Undo();
    EXPECT_EQ(board->ItemFor(dropped->Id())->pos(), QPointF(280, 180));

    // A release off the map or a click without movement changes nothing.
    drag(QPoint(300, 200), QPoint(5000, 5000));
    mouse(QEvent::MouseButtonPress, QPoint(300, 200));
    mouse(QEvent::MouseButtonRelease, QPoint(300, 200));
    EXPECT_EQ(placeOf(*dropped), QPoint(280, 180));
    EXPECT_EQ(board->ItemFor(dropped->Id())->pos(), QPointF(280, 180));
    EXPECT_EQ(Root().ActionMgr().UndoPos(), undoPos);

    // A stack dropped on a like stack merges; undo brings the dropped one back.
    stack(QPoint(100, 100), 4);
    const auto moving = stack(QPoint(200, 300), 3);
    drag(QPoint(200, 300), QPoint(110, 105));
    ASSERT_EQ(units(), 2);
    EXPECT_EQ(board->ItemFor(moving->Id()), nullptr);
    Root().ActionMgr().Undo();
    EXPECT_EQ(board->ItemFor(moving->Id())->pos(), QPointF(180, 280));
}

TEST_F(BoardTest, HeldDigitTearsOffThatManyAndTheDragCarriesThem)
{
    // The key held, the stack's size and how many are torn off (0: the whole stack).
    const std::tuple<QKeyCombination, int, int> cases[] = {
        {Qt::Key_3, 12, 3}, {Qt::KeypadModifier | Qt::Key_0, 12, 10}, {Qt::Key_5, 5, 0}};
    for (const auto& [key, stackSize, tornOff] : cases) {
        SCOPED_TRACE(tornOff);
        const auto pressed = stack(QPoint(100, 100), stackSize);
        const std::int32_t before = units();
        QTest::keyPress(board, key.key(), key.keyboardModifiers());
        drag(QPoint(100, 100), QPoint(300, 250));
        QTest::keyRelease(board, key.key(), key.keyboardModifiers());
        if (tornOff == 0) {
            EXPECT_EQ(units(), before);
            EXPECT_EQ(placeOf(*pressed), QPoint(300, 250) - toCorner);
        } else {
            ASSERT_EQ(units(), before + 1);
            EXPECT_EQ(pressed->Data(), QString::number(stackSize - tornOff));
            EXPECT_EQ(placeOf(*pressed), QPoint(80, 80));
            EXPECT_EQ(last()->Caption(), QStringLiteral("x%1").arg(tornOff));
            EXPECT_EQ(placeOf(*last()), QPoint(300, 250) - toCorner);
            EXPECT_EQ(Root().ActionMgr().NextUndoAction()->Caption(),
                      QStringLiteral("Tear Off %1").arg(tornOff));
        }
        Root().ActionMgr().Undo();
        EXPECT_EQ(units(), before);
        EXPECT_EQ(pressed->Data(), QString::number(stackSize));
        EXPECT_EQ(placeOf(*pressed), QPoint(80, 80));
        Root().ActionMgr().Undo(); // the stack itself
        Root().ActionMgr().Undo();
    }
}

TEST_F(BoardTest, HitTestPicksTheEarliestUnitAndFrozenMapsRefuseSilently)
{
    const auto first = stack(QPoint(100, 100), 2);
    const auto second = stack(QPoint(110, 110), 2);
    // Region of the first: x 82..118 and y 82..118, edges included.
    EXPECT_EQ(board->HitTest(118, 118), first);
    EXPECT_EQ(board->HitTest(119, 100), second);
    EXPECT_EQ(board->HitTest(129, 128), nullptr);
    EXPECT_EQ(board->HitTest(110, 110, first->Id()), second);

    drag(QPoint(112, 112), QPoint(300, 300));
    EXPECT_EQ(placeOf(*first), QPoint(280, 280));
    EXPECT_EQ(placeOf(*second), QPoint(90, 90));

    // Tool tip and cursor follow the pointer.
    mouse(QEvent::MouseMove, QPoint(300, 300), Qt::NoButton);
    EXPECT_EQ(board->viewport()->toolTip(), QStringLiteral("Red Infantry"));
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorHotspot);
    mouse(QEvent::MouseMove, QPoint(400, 50), Qt::NoButton);
    EXPECT_EQ(board->viewport()->toolTip(), QString());
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorNormal);

    // Right click shows the token's menu, unless the map is frozen.
    mouse(QEvent::MouseButtonPress, QPoint(300, 300), Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, QPoint(300, 300), Qt::RightButton);
    EXPECT_EQ(gui->Popup.ShowCount, 1);
    const std::int32_t undoPos = Root().ActionMgr().UndoPos();
    map()->SetFrozen(true);
    drag(QPoint(300, 300), QPoint(200, 200));
    mouse(QEvent::MouseButtonPress, QPoint(300, 300), Qt::RightButton);
    EXPECT_EQ(placeOf(*first), QPoint(280, 280));
    EXPECT_EQ(board->ItemFor(first->Id())->pos(), QPointF(280, 280));
    EXPECT_EQ(gui->Popup.ShowCount, 1);
    const std::int32_t units = map()->Units()->Count();
    dropFromPalette(QStringLiteral("red_inf"), QPoint(400, 200));
    EXPECT_EQ(map()->Units()->Count(), units);
    EXPECT_EQ(Root().ActionMgr().UndoPos(), undoPos);
    EXPECT_FALSE(Root().DragDropMgr().DragInProgress());
}

// However a drag ends without a drop (Escape, another button, the board
// losing focus, the map rebuilt, the unit taken away), the unit goes back,
// nothing is recorded and the next drag starts afresh.
TEST_F(BoardTest, EveryWayOutOfADragPutsTheUnitBackAndRecordsNothing)
{
    const auto unit = stack(QPoint(300, 200), 3);
    const std::int32_t undoPos = Root().ActionMgr().UndoPos();
    const auto grab = [this] {
        mouse(QEvent::MouseButtonPress, QPoint(300, 200));
        mouse(QEvent::MouseMove, QPoint(400, 300), Qt::LeftButton);
        ASSERT_EQ(board->Drag()->Current(), CBoardDrag::State::DraggingUnit);
        ASSERT_EQ(board->ItemFor(last()->Id())->pos(), QPointF(380, 280));
    };
    QFocusEvent focusLost(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    const std::function<void()> ways[] = {
        [this] { QTest::keyClick(board, Qt::Key_Escape); },
        [this] { mouse(QEvent::MouseButtonPress, QPoint(400, 300), Qt::RightButton); },
        [this, &focusLost] { QApplication::sendEvent(board, &focusLost); },
        [this] { board->NotifyOfNewContext(); },
    };
    for (const auto& way : ways) {
        grab();
        way();
        EXPECT_EQ(board->Drag()->Current(), CBoardDrag::State::Idle);
        EXPECT_FALSE(Root().DragDropMgr().DragInProgress());
        EXPECT_EQ(board->ItemFor(unit->Id())->pos(), QPointF(280, 180));
        mouse(QEvent::MouseButtonRelease, QPoint(400, 300));
        EXPECT_EQ(placeOf(*unit), QPoint(280, 180));
        EXPECT_EQ(Root().ActionMgr().UndoPos(), undoPos);
        EXPECT_EQ(gui->Popup.ShowCount, 0);
    }
    // The dragged stack deleted under the pointer: the drag lets go of it.
    grab();
    removeUnit(unit);
    EXPECT_EQ(board->Drag()->Current(), CBoardDrag::State::Idle);
    EXPECT_FALSE(Root().DragDropMgr().DragInProgress());
    mouse(QEvent::MouseButtonRelease, QPoint(400, 300));
    EXPECT_EQ(units(), 0);

    // Escape also ends scrolling the map with Ctrl and the mouse.
    mouse(QEvent::MouseButtonPress, QPoint(300, 200), Qt::LeftButton, Qt::ControlModifier);
    ASSERT_EQ(board->Drag()->Current(), CBoardDrag::State::ScrollingMap);
    QTest::keyClick(board, Qt::Key_Escape);
    EXPECT_EQ(board->Drag()->Current(), CBoardDrag::State::Idle);
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorNormal);
}

// What other features draw over the board stays through rebuilds and is part
// of the printed picture; a unit shown elsewhere goes back on a rebuild.
TEST_F(BoardTest, OverlayLayerOutlivesRebuildsAndIsPrinted)
{
    const auto unit = stack(QPoint(300, 200), 3);
    CBoardScene* scene = board->Scene();
    auto* mark = new QGraphicsRectItem(QRectF(500, 400, 30, 20), scene->OverlayLayer());
    mark->setBrush(QColor(1, 2, 3));
    mark->setPen(Qt::NoPen);
    scene->ShowUnitAt(unit->Id(), QPoint(600, 100));
    EXPECT_EQ(board->HitTest(620, 120), unit);
    board->NotifyOfMapSwitch(QString(), map()->Id());
    EXPECT_EQ(mark->scene(), scene);
    EXPECT_EQ(board->ItemFor(unit->Id())->pos(), QPointF(280, 180));
    EXPECT_EQ(board->HitTest(620, 120), nullptr);
    const QImage printed = board->PaintToPbox();
    EXPECT_EQ(printed.pixelColor(510, 410), QColor(1, 2, 3));
    EXPECT_NE(printed.pixelColor(540, 410), QColor(1, 2, 3));
    delete mark;
    EXPECT_NE(board->PaintToPbox().pixelColor(510, 410), QColor(1, 2, 3));
}

TEST_F(BoardTest, UpdateLockRebuildsOnceWhenTheOutermostLevelIsReleased)
{
    const auto unit = stack(QPoint(100, 100), 2);
    const int rebuilds = board->Rebuilds();
    board->SetUpdateLock(1);
    board->SetUpdateLock(2);
    unit->Token()->HandleMove(200, 200, unit);
    Root().ActionMgr().Undo();
    unit->Token()->HandleMove(300, 300, unit);
    board->SetUpdateLock(1);
    EXPECT_EQ(board->ItemFor(unit->Id())->pos(), QPointF(80, 80));
    board->SetUpdateLock(0);
    EXPECT_EQ(board->Rebuilds(), rebuilds + 1);
    EXPECT_EQ(board->ItemFor(unit->Id())->pos(), QPointF(300, 300));
}

TEST_F(BoardTest, ZoomKeepsModelPositionsExact)
{
    dropFromPalette(QStringLiteral("red_inf"), QPoint(123, 87));
    const QPoint atFull = placeOf(*last());
    board->ZoomIn();
    board->ZoomIn();
    board->ZoomIn();
    ASSERT_DOUBLE_EQ(board->Zoom(), 2.0);
    dropFromPalette(QStringLiteral("red_inf"), QPoint(123, 87));
    EXPECT_EQ(placeOf(*last()), atFull);
    EXPECT_EQ(board->HitTest(123, 87), map()->Units()->Item(1));

    // Ctrl + wheel zooms about the pointer: the board pixel under it stays.
    const QPoint pointer = view(QPoint(200, 150));
    QWheelEvent wheel(pointer, board->viewport()->mapToGlobal(pointer), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(board->viewport(), &wheel);
    EXPECT_DOUBLE_EQ(board->Zoom(), 2.5);
    EXPECT_EQ(board->mapToScene(pointer).toPoint(), QPoint(200, 150));

    CBoardZoom zoom;
    zoom.SwitchGame(QStringLiteral("A"));
    zoom.SetScale(9.0);
    EXPECT_DOUBLE_EQ(zoom.Scale(), CBoardZoom::Maximum);
    EXPECT_DOUBLE_EQ(zoom.SwitchGame(QStringLiteral("B")), 1.0);
    EXPECT_DOUBLE_EQ(zoom.SwitchGame(QStringLiteral("A")), CBoardZoom::Maximum);
}

TEST_F(BoardTest, KeysScrollByLinesAndPagesAndCtrlDragOnEmptyMapScrolls)
{
    for (int i = 0; i < 20; ++i)
        board->ZoomIn();
    ASSERT_DOUBLE_EQ(board->Zoom(), CBoardZoom::Maximum);
    QScrollBar* down = board->verticalScrollBar();
    down->setValue(100);
    // A key and how far it moves the vertical scroll bar.
    const std::pair<QKeyCombination, int> keys[] = {
        {Qt::Key_Down, down->singleStep()},
        {Qt::ControlModifier | Qt::Key_Down, down->pageStep()},
        {Qt::Key_PageUp, -down->pageStep()},
        {Qt::ShiftModifier | Qt::Key_Down, 0},
        {Qt::ControlModifier | Qt::Key_PageUp, 0}};
    for (const auto& [key, change] : keys) {
        const int before = down->value();
        QTest::keyClick(board, key.key(), key.keyboardModifiers());
        EXPECT_EQ(down->value() - before, change) << key.toCombined();
    }

    board->ZoomReset();
    const auto unit = stack(QPoint(100, 100), 2);
    mouse(QEvent::MouseButtonPress, QPoint(300, 200), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorMapScroll);
    mouse(QEvent::MouseButtonRelease, QPoint(300, 200), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorNormal);
    drag(QPoint(100, 100), QPoint(150, 150), Qt::ControlModifier);
    EXPECT_EQ(placeOf(*unit), QPoint(130, 130));
    EXPECT_EQ(board->BoardCursor(), tBoardCursor::CursorNormal);
}

TEST_F(BoardTest, ArrowHeadDraggedByItsHandleAndUndoneFollowsOnTheBoard)
{
    dropFromPalette(QStringLiteral("move"), QPoint(100, 100));
    ASSERT_EQ(board->Arrows()->Count(), 1);
    const auto arrow = map()->Arrows()->Item(1);
    const auto shownHead = [this, &arrow] {
        const CArrow* shown = board->Arrows()->Find(arrow->Id());
        return QPoint(shown->HeadX(), shown->HeadY());
    };

    // The head handle is grabbed by its token's region.
    const auto token = map()->Units()->Item(1)->Token();
    const QPoint grip(token->RegionLeft() + token->RegionWidth() / 2,
                      token->RegionTop() + token->RegionHeight() / 2);
    const QPoint oldHead(arrow->HeadX(), arrow->HeadY());
    drag(oldHead + grip, QPoint(300, 250));
    EXPECT_EQ(QPoint(arrow->HeadX(), arrow->HeadY()), QPoint(300, 250) - grip);
    // ...and drawn there, so the head sits under the pointer that let it go.
    EXPECT_EQ(CBoardRenderer(Root().Context()).ArrowOrigin(), grip);
    EXPECT_EQ(shownHead(), QPoint(300, 250) - grip);
    Root().ActionMgr().Undo();
    EXPECT_EQ(shownHead(), oldHead);
    Root().ActionMgr().Undo();
    EXPECT_EQ(board->Arrows()->Count(), 0);
}

// At full size the board on screen, its printed picture and the renderer's
// picture of the same map agree pixel for pixel: they paint through the same
// routines. Zoomed out or in, the view draws from reduced copies of the map
// and cached counter pictures; they stand where the renderer puts them.
TEST_F(BoardTest, BoardShowsTheRenderedMapExactlyAtFullSizeAndAtItsScaleZoomed)
{
    for (int i = 0; i < 12; ++i)
        stack(QPoint(93 + 61 * i, 101 + 37 * (i % 5)), i % 4 + 2);
    dropFromPalette(QStringLiteral("move"), QPoint(250, 200));
    board->horizontalScrollBar()->setValue(0);
    board->verticalScrollBar()->setValue(0);
    const QImage atFull = CBoardRenderer(Root().Context())
                              .RenderMap(*map(), 1.0)
                              .convertToFormat(QImage::Format_RGB32);
    const QImage onScreen =
        board->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(board->PaintToPbox().convertToFormat(QImage::Format_RGB32), atFull);
    const QRect shown = atFull.rect() & onScreen.rect();
    ASSERT_GT(shown.width(), 400);
    ASSERT_GT(shown.height(), 300);
    EXPECT_EQ(onScreen.copy(shown), atFull.copy(shown));

    for (const double scale : {0.25, 1.0 / 3, 0.5, 2.0}) {
        SCOPED_TRACE(scale);
        board->ZoomReset();
        while (board->Zoom() > scale + 1e-9)
            board->ZoomOut();
        while (board->Zoom() < scale - 1e-9)
            board->ZoomIn();
        board->horizontalScrollBar()->setValue(0);
        board->verticalScrollBar()->setValue(0);
        const QImage full = CBoardRenderer(Root().Context()).RenderMap(*map(), scale);
        const QRect common = QRect(0, 0, qRound(900 * scale), qRound(400 * scale)) & full.rect() &
                             board->viewport()->rect();
        // Filtering differs a little, mostly along thin lines of the map,
        // and averaging pairs of pixels evens that out; a picture or label
        // out of place by a pixel still differs a lot along its edges.
        const auto smoothed = [&common](const QImage& image) {
            return image.copy(common)
                .convertToFormat(QImage::Format_RGB32)
                .scaled(common.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        const QImage rendered = smoothed(full);
        const QImage grabbed = smoothed(board->viewport()->grab().toImage());
        int far = 0;
        for (int y = 0; y < rendered.height(); ++y) {
            for (int x = 0; x < rendered.width(); ++x) {
                const QColor a = rendered.pixelColor(x, y);
                const QColor b = grabbed.pixelColor(x, y);
                far += std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                 std::abs(a.blue() - b.blue())}) > 64;
            }
        }
        EXPECT_LT(far, rendered.width() * rendered.height() / 1000) << far;
    }
}

} // namespace
