#include "actions/CActToolClearArrows.h"
#include "actions/CActToolResetMoved.h"
#include "actions/CActionEditGame.h"
#include "actions/CActionEditMap.h"
#include "actions/CActionEditMapText.h"
#include "actions/CActionNewMap.h"
#include "support/GameFixture.h"

namespace {

using UndoEverything = GameFixture;

// Every kind of action, most of them made by the tokens' handlers, undone
// back to the start and redone to the end.
TEST_F(UndoEverything, everyKindOfActionUndoesToTheStartAndRedoesToTheEnd)
{
    const auto old = put(QStringLiteral("INF"), 400, 300, QStringLiteral("4"));
    game->SetDirty(3);
    const QStringList start = snapshot();

    const auto inf = token(QStringLiteral("INF"));
    inf->HandleDrop(100, 100);
    const auto placed = lastUnit();
    inf->HandleMove(120, 130, placed);
    choose(placed, QStringLiteral("ADD_1"));
    choose(placed, QStringLiteral("SPLIT_1"));
    inf->HandleMoveOnto(old, placed);
    choose(lastUnit(), QStringLiteral("DELETE"));
    ASSERT_EQ(placed->Data(), QStringLiteral("5"));

    const auto arrow = token(QStringLiteral("ARROW"));
    arrow->HandleDrop(10, 10);
    arrow->HandleMove(90, 95, board()->Units()->Item(2));
    arrow->HandleDrop(50, 50);
    choose(lastUnit(), QStringLiteral("DELETE"));
    ASSERT_EQ(board()->Arrows()->Count(), 1);
    CActToolClearArrows().Invoke();

    auto editMap = std::make_shared<CActionEditMap>();
    editMap->SetMapId(board()->Id());
    editMap->SetName(QStringLiteral("Renamed"));
    editMap->SetFrozen(true);
    mgr().Execute(editMap);
    auto editGame = std::make_shared<CActionEditGame>();
    editGame->SetRemarks(QStringLiteral("remarks"));
    mgr().Execute(editGame);
    CActToolResetMoved().Invoke();
    mgr().Execute(std::make_shared<CActionNewMap>());
    auto text = std::make_shared<CActionEditMapText>();
    text->SetMapId(first->Id());
    text->SetText(QStringLiteral("first map"));
    mgr().Execute(text);

    const QStringList end = snapshot();
    const std::int16_t endDirty = dirty();
    const std::int32_t steps = mgr().UndoPos();
    ASSERT_EQ(steps, 16);
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
