#include "actions/CActToolClearArrows.h"
#include "actions/CActionAddArrow.h"
#include "actions/CActionDeleteArrow.h"
#include "actions/CActionMoveArrow.h"
#include "support/GameFixture.h"

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

    void moveHandle(const QString& unitId, std::int32_t x, std::int32_t y)
    {
        auto action = std::make_shared<CActionMoveArrow>();
        action->SetMapId(board()->Id());
        action->SetUnitId(unitId);
        action->SetData(board()->UnitById(unitId)->Data());
        action->SetPosition(x, y);
        mgr().Execute(action);
    }

    QString arrowAt(const QString& id) const
    {
        const auto a = board()->ArrowById(id);
        return QStringLiteral("%1,%2 <- %3,%4 #%5")
            .arg(a->HeadX())
            .arg(a->HeadY())
            .arg(a->TailX())
            .arg(a->TailY())
            .arg(a->Color(), 0, 16);
    }
};

TEST_F(ArrowActions, aNewArrowPointsTowardTheMiddleWithAHandleAtEachEndThatDragsMove)
{
    EXPECT_EQ(arrowAt(place(700, 500)->ArrowId()), QStringLiteral("665,465 <- 700,500 #ff"));
    token(QStringLiteral("ARROW"))->SetCustom(QStringLiteral(" #102030 "));
    const auto halfWay = place(400, 300);
    EXPECT_EQ(arrowAt(halfWay->ArrowId()), QStringLiteral("435,335 <- 400,300 #302010"));

    const QString id = halfWay->ArrowId();
    EXPECT_EQ(contents(*board()).mid(2, 2),
              (QStringList{halfWay->HeadUnitId() + "|ARROW|435|335||" + id + "|HEAD|0",
                           halfWay->TailUnitId() + "|ARROW|400|300||" + id + "|TAIL|0"}));
    EXPECT_EQ(events->Lines.mid(3),
              (QStringList{"ArrowAdd(" + id + ")", "UnitAdd(" + halfWay->HeadUnitId() + ")",
                           "UnitAdd(" + halfWay->TailUnitId() + ")"}));

    // Dragging a handle moves its end, and repeated drags of one handle are one step.
    const auto placed = place(100, 100);
    const QStringList start = contents(*board());
    moveHandle(placed->HeadUnitId(), 300, 310);
    moveHandle(placed->HeadUnitId(), 320, 330);
    moveHandle(placed->TailUnitId(), 50, 60);
    EXPECT_EQ(arrowAt(placed->ArrowId()), QStringLiteral("320,330 <- 50,60 #302010"));
    EXPECT_EQ(board()->UnitById(placed->HeadUnitId())->x(), 320);
    EXPECT_EQ(mgr().Actions().Count(), 5);
    mgr().Undo();
    mgr().Undo();
    EXPECT_EQ(contents(*board()), start);
    EXPECT_EQ(dirty(), 3);
}

TEST_F(ArrowActions, deletingAndClearingPutEverythingBackInItsPlace)
{
    place(10, 10);
    put(QStringLiteral("TANK"), 5, 5);
    const auto b = place(20, 20);
    put(QStringLiteral("INF"), 6, 6, QStringLiteral("2"));
    place(30, 30);
    const QStringList full = contents(*board());

    auto remove = std::make_shared<CActionDeleteArrow>();
    remove->SetMapId(board()->Id());
    remove->SetArrowId(b->ArrowId());
    mgr().Execute(remove);
    EXPECT_EQ(board()->UnitById(b->HeadUnitId()), nullptr);
    EXPECT_EQ(board()->Units()->Count(), 6);
    CActToolClearArrows tool;
    tool.Invoke();
    EXPECT_EQ(board()->Arrows()->Count(), 0);
    EXPECT_EQ(board()->Units()->Count(), 2) << "only the plain units stay";
    tool.Invoke(); // nothing left to clear: nothing recorded
    EXPECT_EQ(mgr().Actions().Count(), 5);

    mgr().Undo();
    mgr().Undo();
    EXPECT_EQ(contents(*board()), full);
}

} // namespace
