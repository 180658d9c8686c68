#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionHelper.h"
#include "actions/CActionMoveUnit.h"
#include "core/KorvaneError.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"

namespace {

class UnitActions : public GameFixture
{
protected:
    std::shared_ptr<CActionMoveUnit> move(const CUnit& unit, float x, float y,
                                          const std::shared_ptr<CMap>& map = nullptr)
    {
        auto action = std::make_shared<CActionMoveUnit>();
        action->SetMapId((map ? map : board())->Id());
        action->SetUnitId(unit.Id());
        action->SetPosition(x, y);
        return action;
    }

    std::shared_ptr<CActionEditUnit> edit(const CUnit& unit, const QString& data)
    {
        auto action = std::make_shared<CActionEditUnit>();
        action->SetMapId(board()->Id());
        action->SetUnitId(unit.Id());
        action->SetData(data);
        action->SetUnitCaption(QStringLiteral("x") + data);
        action->SetHasMoved(unit.HasMoved());
        return action;
    }

    static QString where(const CUnit& unit)
    {
        return QStringLiteral("%1,%2,%3").arg(unit.x()).arg(unit.y()).arg(unit.HasMoved());
    }
};

TEST_F(UnitActions, threeMovesOfOneUnitAreOneUndoStepBackToTheStart)
{
    const auto unit = addUnit(QStringLiteral("TANK"), 10, 20);
    const auto other = addUnit(QStringLiteral("TANK"), 0, 0);
    mgr().Execute(move(*other, 5, 5));
    game->SetDirty(4);

    mgr().Execute(move(*unit, 30.5f, 41.5f));
    mgr().Execute(move(*unit, 50, 60));
    mgr().Execute(move(*unit, 70.4f, 80.6f));
    EXPECT_EQ(where(*unit), QStringLiteral("70,81,1"));
    EXPECT_EQ(mgr().Actions().Count(), 2);
    EXPECT_EQ(dirty(), 7);

    mgr().Undo();
    EXPECT_EQ(where(*unit), QStringLiteral("10,20,0"));
    EXPECT_EQ(dirty(), 4);
    EXPECT_EQ(where(*other), QStringLiteral("5,5,1")) << "the earlier move stays";

    // A redo runs the merged move once, and the next undo takes off just that.
    mgr().Redo();
    EXPECT_EQ(where(*unit), QStringLiteral("70,81,1"));
    EXPECT_EQ(dirty(), 5);
    mgr().Undo();
    EXPECT_EQ(dirty(), 4);
    EXPECT_EQ(where(*unit), QStringLiteral("10,20,0"));
}

TEST_F(UnitActions, positionsRoundHalvesToEvenAndStayInRange)
{
    EXPECT_EQ(CActionHelper::RoundToEven(2.5f), 2);
    EXPECT_EQ(CActionHelper::RoundToEven(3.5f), 4);
    EXPECT_EQ(CActionHelper::RoundToEven(-2.5f), -2);
    EXPECT_EQ(CActionHelper::RoundToEven(-2.6f), -3);
    EXPECT_EQ(CActionHelper::RoundToEven(1e20f), 2147483647);
    EXPECT_EQ(CActionHelper::RoundToEven(-1e20f), -2147483647 - 1);
    EXPECT_EQ(CActionHelper::RoundToEven(std::nanf("")), 0);
}

TEST_F(UnitActions, aMoveThatChangesNothingCountsButIsNotAnnounced)
{
    const auto unit = addUnit(QStringLiteral("TANK"), 10, 20, QString(), true);
    mgr().Execute(move(*unit, 10.2f, 19.8f));
    EXPECT_EQ(dirty(), 1);
    EXPECT_TRUE(events->Of(QStringLiteral("UnitEdit")).isEmpty());

    // Only the moved mark differs: that is a change.
    auto unmark = move(*unit, 10, 20);
    unmark->SetHasMoved(false);
    mgr().Execute(unmark);
    EXPECT_EQ(events->Of(QStringLiteral("UnitEdit")), QStringList{"UnitEdit(" + unit->Id() + ")"});
}

TEST_F(UnitActions, aMoveOnAnotherMapBringsThatMapOntoTheBoardFirst)
{
    const auto unit = addUnit(QStringLiteral("TANK"), 1, 1);
    group->SwitchTo(first);
    ASSERT_EQ(second->Units(), nullptr) << "the unit's map is swapped out";

    mgr().Execute(move(*unit, 40, 50, second));
    EXPECT_EQ(board(), second);
    EXPECT_EQ(events->Lines, (QStringList{"MapSwitch(" + first->Id() + "," + second->Id() + ")",
                                          "UnitEdit(" + unit->Id() + ")"}));
    EXPECT_EQ(second->UnitById(unit->Id())->x(), 40);

    // Undo from the other map comes back too.
    group->SwitchTo(first);
    mgr().Undo();
    EXPECT_EQ(board(), second);
    EXPECT_EQ(second->UnitById(unit->Id())->x(), 1);
}

TEST_F(UnitActions, anUndoneThenRedonePlacementKeepsItsUnitId)
{
    addUnit(QStringLiteral("TANK"), 0, 0);
    auto place = std::make_shared<CActionAddUnit>();
    place->SetMapId(board()->Id());
    place->SetTokenId(QStringLiteral("INF"));
    place->SetPosition(-5, 7000);
    mgr().Execute(place);
    const QString id = place->UnitId();
    ASSERT_EQ(id.size(), 32);
    const QStringList placed = contents(*board());
    EXPECT_EQ(placed.last(), id + QStringLiteral("|INF|-5|7000|x1|1|0"));

    mgr().Undo();
    EXPECT_EQ(board()->Units()->Count(), 1);
    EXPECT_EQ(dirty(), 0);
    mgr().Redo();
    EXPECT_EQ(contents(*board()), placed);
    EXPECT_EQ(events->Lines, (QStringList{"UnitAdd(" + id + ")", "UnitDelete(" + id + ")",
                                          "UnitAdd(" + id + ")"}));
}

TEST_F(UnitActions, undoingADeletionPutsTheUnitLastEvenAfterTheMapWasSwapped)
{
    const auto a = addUnit(QStringLiteral("TANK"), 1, 1);
    const auto b = addUnit(QStringLiteral("INF"), 2, 2, QStringLiteral("3"));
    const auto c = addUnit(QStringLiteral("TANK"), 3, 3);
    auto remove = std::make_shared<CActionDeleteUnit>();
    remove->SetMapId(board()->Id());
    remove->SetUnit(a);
    mgr().Execute(remove);
    EXPECT_EQ(unitIds(*board()), (QStringList{b->Id(), c->Id()}));

    mgr().Undo();
    EXPECT_EQ(unitIds(*board()), (QStringList{b->Id(), c->Id(), a->Id()}));
    EXPECT_EQ(dirty(), 0);

    // The map's units come back from its swap file as new objects: a redo
    // must still find the unit by its id.
    group->SwitchTo(first);
    group->SwitchTo(second);
    ASSERT_NE(board()->UnitById(a->Id()), a);
    mgr().Redo();
    EXPECT_EQ(unitIds(*board()), (QStringList{b->Id(), c->Id()}));
    mgr().Undo();
    EXPECT_EQ(contents(*board()).last(), a->Id() + QStringLiteral("|TANK|1|1|||0"));
}

TEST_F(UnitActions, anEditChainedToAnEditMergesNothing)
{
    const auto unit = addUnit(QStringLiteral("INF"), 0, 0, QStringLiteral("4"));
    mgr().Execute(edit(*unit, QStringLiteral("5")));
    mgr().Execute(edit(*unit, QStringLiteral("6")));
    EXPECT_EQ(mgr().Actions().Count(), 1);
    EXPECT_EQ(unit->Data(), QStringLiteral("6"));
    EXPECT_EQ(dirty(), 2);

    // One undo goes back to before the first edit; the second edit's count stays.
    mgr().Undo();
    EXPECT_EQ(unit->Data(), QStringLiteral("4"));
    EXPECT_EQ(unit->Caption(), QStringLiteral("x4"));
    EXPECT_EQ(dirty(), 1);
    mgr().Redo();
    EXPECT_EQ(unit->Data(), QStringLiteral("5"));

    // A move is never merged into an edit, nor an edit into a move.
    mgr().Execute(move(*unit, 9, 9));
    mgr().Execute(edit(*unit, QStringLiteral("7")));
    EXPECT_EQ(mgr().Actions().Count(), 3);
}

TEST_F(UnitActions, actionsOnMissingThingsFailClearlyAndChangeNothing)
{
    const auto unit = addUnit(QStringLiteral("TANK"), 1, 1);
    const QStringList before = snapshot();

    auto lost = std::make_shared<CActionMoveUnit>();
    lost->SetMapId(board()->Id());
    lost->SetUnitId(QStringLiteral("NOSUCHUNIT"));
    EXPECT_THROW(lost->Execute(), KorvaneError);

    auto nowhere = move(*unit, 5, 5);
    nowhere->SetMapId(QStringLiteral("NOSUCHMAP"));
    EXPECT_THROW(nowhere->Execute(), KorvaneError);

    auto unknownToken = std::make_shared<CActionAddUnit>();
    unknownToken->SetMapId(board()->Id());
    unknownToken->SetTokenId(QStringLiteral("NOSUCHTOKEN"));
    EXPECT_THROW(unknownToken->Execute(), KorvaneError);

    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(dirty(), 0);
    EXPECT_TRUE(events->Lines.isEmpty());
}

TEST_F(UnitActions, theChangeCounterSticksAtItsLimitsInsteadOfWrapping)
{
    const auto unit = addUnit(QStringLiteral("TANK"), 1, 1);
    game->SetDirty(32767);
    mgr().Execute(move(*unit, 2, 2));
    EXPECT_EQ(dirty(), 32767);
    game->SetDirty(-32768);
    mgr().Undo();
    EXPECT_EQ(dirty(), -32768);
}

} // namespace
