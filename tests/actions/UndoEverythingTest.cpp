#include "actions/CActToolClearArrows.h"
#include "actions/CActToolResetMoved.h"
#include "actions/CActionAddArrow.h"
#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteArrow.h"
#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditGame.h"
#include "actions/CActionEditMap.h"
#include "actions/CActionEditMapText.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionMoveArrow.h"
#include "actions/CActionMoveUnit.h"
#include "actions/CActionNewMap.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"

namespace {

class UndoEverything : public GameFixture
{
protected:
    template <typename Action> std::shared_ptr<Action> onBoard()
    {
        auto action = std::make_shared<Action>();
        action->SetMapId(board()->Id());
        return action;
    }
};

// Every kind of action, from the model's actions to the tokens' merge and
// split groups, undone back to the start and redone to the end.
TEST_F(UndoEverything, everyKindOfActionUndoesToTheStartAndRedoesToTheEnd)
{
    addUnit(QStringLiteral("INF"), 400, 300, QStringLiteral("4"));
    first->AquireLock();
    addUnit(QStringLiteral("TANK"), 1, 2, QString(), false, first);
    first->ReleaseLock();
    game->SetDirty(3);
    const QStringList start = snapshot();

    auto place = onBoard<CActionAddUnit>();
    place->SetTokenId(QStringLiteral("INF"));
    place->SetPosition(100, 100);
    mgr().Execute(place);
    const auto placed = board()->UnitById(place->UnitId());

    auto moveUnit = onBoard<CActionMoveUnit>();
    moveUnit->SetUnitId(placed->Id());
    moveUnit->SetPosition(120, 130);
    mgr().Execute(moveUnit);

    auto edit = onBoard<CActionEditUnit>();
    edit->SetUnitId(placed->Id());
    edit->SetData(QStringLiteral("6"));
    edit->SetUnitCaption(QStringLiteral("x6"));
    edit->SetHasMoved(true);
    mgr().Execute(edit);

    // Split one off the new stack, then merge the old one onto it.
    gui->Popup.Answer = QStringLiteral("SPLIT_1");
    placed->Token()->HandleRightClick(placed);
    const auto old = board()->Units()->Item(1);
    old->Token()->HandleMoveOnto(old, placed);
    ASSERT_EQ(placed->Data(), QStringLiteral("9"));

    auto tank = onBoard<CActionAddUnit>();
    tank->SetTokenId(QStringLiteral("TANK"));
    mgr().Execute(tank);
    auto removeTank = onBoard<CActionDeleteUnit>();
    removeTank->SetUnit(board()->UnitById(tank->UnitId()));
    mgr().Execute(removeTank);

    auto arrow = onBoard<CActionAddArrow>();
    arrow->SetTokenId(QStringLiteral("ARROW"));
    arrow->SetPosition(10, 10);
    mgr().Execute(arrow);
    auto moveArrow = onBoard<CActionMoveArrow>();
    moveArrow->SetUnitId(arrow->HeadUnitId());
    moveArrow->SetData(arrow->ArrowId() + QStringLiteral("|HEAD"));
    moveArrow->SetPosition(90, 95);
    mgr().Execute(moveArrow);
    auto arrow2 = onBoard<CActionAddArrow>();
    arrow2->SetTokenId(QStringLiteral("ARROW"));
    mgr().Execute(arrow2);
    auto removeArrow = onBoard<CActionDeleteArrow>();
    removeArrow->SetArrowId(arrow2->ArrowId());
    mgr().Execute(removeArrow);
    CActToolClearArrows().Invoke();
    ASSERT_EQ(board()->Arrows()->Count(), 0);

    auto editMap = onBoard<CActionEditMap>();
    editMap->SetName(QStringLiteral("Renamed"));
    editMap->SetRemarks(QStringLiteral("notes"));
    editMap->SetFrozen(true);
    mgr().Execute(editMap);
    auto editGame = std::make_shared<CActionEditGame>();
    editGame->SetName(QStringLiteral("Game"));
    editGame->SetRemarks(QStringLiteral("remarks"));
    mgr().Execute(editGame);
    auto text = onBoard<CActionEditMapText>();
    text->SetText(QStringLiteral("text"));
    mgr().Execute(text);
    CActToolResetMoved().Invoke();

    auto newMap = std::make_shared<CActionNewMap>();
    newMap->SetName(QStringLiteral("Turn 3"));
    mgr().Execute(newMap);
    auto otherText = std::make_shared<CActionEditMapText>();
    otherText->SetMapId(first->Id());
    otherText->SetText(QStringLiteral("first map"));
    mgr().Execute(otherText);

    const QStringList end = snapshot();
    const std::int16_t endDirty = dirty();
    const std::int32_t steps = mgr().UndoPos();
    ASSERT_LT(steps, 25);
    ASSERT_NE(end, start);

    for (std::int32_t i = 0; i < steps; ++i)
        mgr().Undo();
    EXPECT_EQ(snapshot(), start);
    EXPECT_EQ(dirty(), 3);

    for (std::int32_t i = 0; i < steps; ++i)
        mgr().Redo();
    EXPECT_EQ(snapshot(), end);
    EXPECT_EQ(dirty(), endDirty);
}

} // namespace
