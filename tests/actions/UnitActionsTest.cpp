#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionMoveUnit.h"
#include "support/GameFixture.h"

namespace {

class UnitActions : public GameFixture
{
protected:
    std::shared_ptr<CActionMoveUnit> move(const CUnit& unit, float x, float y)
    {
        auto action = std::make_shared<CActionMoveUnit>();
        action->SetMapId(board()->Id());
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
        return action;
    }

    static QString where(const CUnit& unit)
    {
        return QStringLiteral("%1,%2,%3").arg(unit.x()).arg(unit.y()).arg(unit.HasMoved());
    }
};

TEST_F(UnitActions, threeMovesOfOneUnitAreOneUndoStepBackToTheStart)
{
    const auto unit = put(QStringLiteral("TANK"), 10, 20);
    const auto other = put(QStringLiteral("TANK"), 0, 0);
    mgr().Execute(move(*other, 5, 5));
    game->SetDirty(4);
    mgr().Execute(move(*unit, 30.5f, 41.5f));
    EXPECT_EQ(where(*unit), QStringLiteral("30,42,1")) << "halves round to even";
    mgr().Execute(move(*unit, 50, 60));
    mgr().Execute(move(*unit, 70.4f, 80.6f));
    EXPECT_EQ(where(*unit), QStringLiteral("70,81,1"));
    EXPECT_EQ(mgr().Actions().Count(), 2);
    EXPECT_EQ(dirty(), 7);

    mgr().Undo();
    EXPECT_EQ(where(*unit), QStringLiteral("10,20,0"));
    EXPECT_EQ(where(*other), QStringLiteral("5,5,1"));
    EXPECT_EQ(dirty(), 4);
    // A redo runs the merged move once, and the next undo takes off just that.
    mgr().Redo();
    EXPECT_EQ(where(*unit), QStringLiteral("70,81,1"));
    EXPECT_EQ(dirty(), 5);
    mgr().Undo();
    EXPECT_EQ(dirty(), 4);
}

TEST_F(UnitActions, aMoveThatChangesNothingIsNotAnnouncedAndOneOnAnotherMapShowsThatMap)
{
    const auto unit = put(QStringLiteral("TANK"), 10, 20, QString(), true);
    mgr().Execute(move(*unit, 10.2f, 19.8f));
    EXPECT_EQ(dirty(), 1);
    EXPECT_TRUE(events->Lines.isEmpty());

    // A move on another map brings that map onto the board first.
    const auto action = move(*unit, 40, 50);
    group->SwitchTo(first);
    mgr().Execute(action);
    EXPECT_EQ(board(), second);
    EXPECT_EQ(events->Lines, (QStringList{"MapSwitch(" + first->Id() + "," + second->Id() + ")",
                                          "UnitEdit(" + unit->Id() + ")"}));
    EXPECT_EQ(second->UnitById(unit->Id())->x(), 40);
}

TEST_F(UnitActions, aRedonePlacementKeepsItsUnitIdAndAnUndoneDeletionPutsTheUnitLast)
{
    auto place = std::make_shared<CActionAddUnit>();
    place->SetMapId(board()->Id());
    place->SetTokenId(QStringLiteral("INF"));
    place->SetPosition(-5, 7000);
    mgr().Execute(place);
    const QString id = place->UnitId();
    EXPECT_EQ(contents(*board()), QStringList{id + QStringLiteral("|INF|-5|7000|x1|1|0")});

    // The redone placement as a whole is checked with every other action's redo.
    mgr().Undo();
    mgr().Redo();
    EXPECT_EQ(events->Lines, (QStringList{"UnitAdd(" + id + ")", "UnitDelete(" + id + ")",
                                          "UnitAdd(" + id + ")"}));

    // Undoing a deletion puts the unit last.
    const auto a = put(QStringLiteral("TANK"), 1, 1);
    const auto b = put(QStringLiteral("INF"), 2, 2, QStringLiteral("3"));
    auto remove = std::make_shared<CActionDeleteUnit>();
    remove->SetMapId(board()->Id());
    remove->SetUnit(a);
    mgr().Execute(remove);
    mgr().Undo();
    EXPECT_EQ(unitIds(*board()), (QStringList{id, b->Id(), a->Id()}));

    // Read back from the swap file the units are new objects: the redo
    // still finds its unit by id.
    group->SwitchTo(first);
    group->SwitchTo(second);
    mgr().Redo();
    EXPECT_EQ(unitIds(*board()), (QStringList{id, b->Id()}));
}

TEST_F(UnitActions, anEditChainedToAnEditMergesNothingAndMissingThingsChangeNothing)
{
    const auto unit = put(QStringLiteral("INF"), 0, 0, QStringLiteral("4"));
    mgr().Execute(edit(*unit, QStringLiteral("5")));
    mgr().Execute(edit(*unit, QStringLiteral("6")));
    EXPECT_EQ(mgr().Actions().Count(), 1);
    EXPECT_EQ(unit->Data(), QStringLiteral("6"));

    // One undo goes back to before the first edit; the second edit's count stays.
    mgr().Undo();
    EXPECT_EQ(unit->Data() + unit->Caption(), QStringLiteral("4x4"));
    EXPECT_EQ(dirty(), 1);
    mgr().Redo();
    EXPECT_EQ(unit->Data(), QStringLiteral("5"));

    // Actions on missing things fail clearly and change nothing.
    events->Lines.clear();
    const QStringList before = snapshot();
    auto lost = move(*unit, 5, 5);
    lost->SetUnitId(QStringLiteral("NOSUCHUNIT"));
    EXPECT_THROW(lost->Execute(), KorvaneError);
    auto nowhere = move(*unit, 5, 5);
    nowhere->SetMapId(QStringLiteral("NOSUCHMAP"));
    EXPECT_THROW(nowhere->Execute(), KorvaneError);
    EXPECT_EQ(snapshot(), before);
    EXPECT_TRUE(events->Lines.isEmpty());
}

} // namespace
