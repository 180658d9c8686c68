#include "actions/CActToolClearArrows.h"
#include "actions/CActionAddArrow.h"
#include "actions/CActionClearArrows.h"
#include "actions/CActionDeleteArrow.h"
#include "actions/CActionMoveArrow.h"
#include "actions/CArrowHandles.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"

namespace {

class ArrowActions : public GameFixture
{
protected:
    std::shared_ptr<CActionAddArrow> place(std::int32_t x, std::int32_t y)
    {
        auto action = std::make_shared<CActionAddArrow>();
        action->SetMapId(board()->Id());
        action->SetTokenId(QStringLiteral("ARROW"));
        action->SetPosition(x, y);
        mgr().Execute(action);
        return action;
    }

    std::shared_ptr<CActionMoveArrow> moveHandle(const QString& unitId, std::int32_t x,
                                                 std::int32_t y)
    {
        auto action = std::make_shared<CActionMoveArrow>();
        action->SetMapId(board()->Id());
        action->SetUnitId(unitId);
        action->SetData(board()->UnitById(unitId)->Data());
        action->SetPosition(x, y);
        mgr().Execute(action);
        return action;
    }

    QString arrowText(const QString& id) const
    {
        const auto a = board()->ArrowById(id);
        return QStringLiteral("%1,%2 <- %3,%4")
            .arg(a->HeadX())
            .arg(a->HeadY())
            .arg(a->TailX())
            .arg(a->TailY());
    }
};

TEST_F(ArrowActions, aNewArrowPointsTowardTheMiddleAndHasAHandleAtEachEnd)
{
    token(QStringLiteral("ARROW"))->SetCustom(QStringLiteral(" #102030 "));
    const auto nearCorner = place(100, 100);
    const auto farCorner = place(700, 500);
    const auto halfWay = place(400, 300);
    EXPECT_EQ(arrowText(nearCorner->ArrowId()), QStringLiteral("135,135 <- 100,100"));
    EXPECT_EQ(arrowText(farCorner->ArrowId()), QStringLiteral("665,465 <- 700,500"));
    EXPECT_EQ(arrowText(halfWay->ArrowId()), QStringLiteral("435,335 <- 400,300"));
    EXPECT_EQ(board()->ArrowById(halfWay->ArrowId())->Color(), 0x302010);

    const QString id = nearCorner->ArrowId();
    const auto head = board()->UnitById(nearCorner->HeadUnitId());
    const auto tail = board()->UnitById(nearCorner->TailUnitId());
    ASSERT_TRUE(head && tail);
    EXPECT_EQ(QStringLiteral("%1,%2 %3").arg(head->x()).arg(head->y()).arg(head->Data()),
              QStringLiteral("135,135 ") + id + QStringLiteral("|HEAD"));
    EXPECT_EQ(QStringLiteral("%1,%2 %3").arg(tail->x()).arg(tail->y()).arg(tail->Data()),
              QStringLiteral("100,100 ") + id + QStringLiteral("|TAIL"));
    EXPECT_EQ(head->Token()->Id(), QStringLiteral("ARROW"));
    EXPECT_EQ(dirty(), 3);
    EXPECT_EQ(events->Lines.mid(0, 3),
              (QStringList{"ArrowAdd(" + id + ")", "UnitAdd(" + head->Id() + ")",
                           "UnitAdd(" + tail->Id() + ")"}));
}

TEST_F(ArrowActions, colourTextsThatAreNotColoursGiveRed)
{
    EXPECT_EQ(CArrowHandles::ColorFromHtml(QStringLiteral("#0000FF")), 0xFF0000);
    EXPECT_EQ(CArrowHandles::ColorFromHtml(QStringLiteral("#ffff00")), 65535);
    EXPECT_EQ(CArrowHandles::ColorFromHtml(QString()), 255);
    EXPECT_EQ(CArrowHandles::ColorFromHtml(QStringLiteral("#12345")), 255);
    EXPECT_EQ(CArrowHandles::ColorFromHtml(QStringLiteral("not a colour")), 255);
}

TEST_F(ArrowActions, placingIsUndoneAndRedoneWithTheSameIds)
{
    const auto placed = place(10, 20);
    const QStringList after = contents(*board());
    ASSERT_EQ(after.size(), 3);
    mgr().Undo();
    EXPECT_TRUE(contents(*board()).isEmpty());
    EXPECT_EQ(dirty(), 0);
    EXPECT_EQ(events->Lines.mid(3), (QStringList{"ArrowDelete(" + placed->ArrowId() + ")",
                                                 "UnitDelete(" + placed->HeadUnitId() + ")",
                                                 "UnitDelete(" + placed->TailUnitId() + ")"}));
    mgr().Redo();
    EXPECT_EQ(contents(*board()), after);
}

TEST_F(ArrowActions, draggingAHandleMovesItsEndAndRepeatedDragsAreOneStep)
{
    const auto placed = place(100, 100);
    const QStringList start = contents(*board());
    moveHandle(placed->HeadUnitId(), 300, 310);
    moveHandle(placed->HeadUnitId(), 320, 330);
    EXPECT_EQ(arrowText(placed->ArrowId()), QStringLiteral("320,330 <- 100,100"));
    EXPECT_EQ(board()->UnitById(placed->HeadUnitId())->x(), 320);
    EXPECT_EQ(mgr().Actions().Count(), 2);
    EXPECT_EQ(dirty(), 3);

    // The other end is a different handle: no merging.
    moveHandle(placed->TailUnitId(), 50, 60);
    EXPECT_EQ(arrowText(placed->ArrowId()), QStringLiteral("320,330 <- 50,60"));
    EXPECT_EQ(mgr().Actions().Count(), 3);

    mgr().Undo();
    mgr().Undo();
    EXPECT_EQ(contents(*board()), start);
    EXPECT_EQ(dirty(), 1);
    mgr().Redo();
    EXPECT_EQ(arrowText(placed->ArrowId()), QStringLiteral("320,330 <- 100,100"));
}

TEST_F(ArrowActions, deletingAndClearingPutEverythingBackInItsPlace)
{
    const auto a = place(10, 10);
    addUnit(QStringLiteral("TANK"), 5, 5);
    const auto b = place(20, 20);
    addUnit(QStringLiteral("INF"), 6, 6, QStringLiteral("2"));
    const auto c = place(30, 30);
    const QStringList full = contents(*board());
    const std::int16_t start = dirty();

    auto remove = std::make_shared<CActionDeleteArrow>();
    remove->SetMapId(board()->Id());
    remove->SetArrowId(b->ArrowId());
    mgr().Execute(remove);
    EXPECT_EQ(board()->Arrows()->Count(), 2);
    EXPECT_EQ(board()->UnitById(b->HeadUnitId()), nullptr);
    EXPECT_EQ(board()->Units()->Count(), 6);

    CActToolClearArrows tool;
    EXPECT_EQ(tool.Caption(), QStringLiteral("Clear All Arro&ws"));
    tool.Invoke();
    EXPECT_EQ(board()->Arrows()->Count(), 0);
    EXPECT_EQ(board()->Units()->Count(), 2) << "only the plain units stay";
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Clear All Arrows"));

    // Nothing left to clear: the tool records nothing.
    tool.Invoke();
    EXPECT_EQ(mgr().Actions().Count(), 5);

    mgr().Undo();
    mgr().Undo();
    EXPECT_EQ(contents(*board()), full);
    EXPECT_EQ(dirty(), start);
    mgr().Redo();
    mgr().Redo();
    EXPECT_EQ(board()->Arrows()->Count(), 0);
    mgr().Undo();
    mgr().Undo();
    EXPECT_EQ(contents(*board()), full);
    EXPECT_EQ(arrowText(a->ArrowId()), QStringLiteral("45,45 <- 10,10"));
    EXPECT_EQ(arrowText(c->ArrowId()), QStringLiteral("65,65 <- 30,30"));
}

TEST_F(ArrowActions, aHandleWhoseArrowIsGoneStillMovesAlone)
{
    const auto placed = place(100, 100);
    board()->Arrows()->Clear();
    moveHandle(placed->TailUnitId(), 7, 8);
    EXPECT_EQ(board()->UnitById(placed->TailUnitId())->x(), 7);
    EXPECT_TRUE(events->Of(QStringLiteral("ArrowEdit")).isEmpty());
    mgr().Undo();
    EXPECT_EQ(board()->UnitById(placed->TailUnitId())->x(), 100);
}

} // namespace
