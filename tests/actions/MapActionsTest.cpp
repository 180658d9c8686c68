#include "actions/CActToolResetMoved.h"
#include "actions/CActionAddArrow.h"
#include "actions/CActionEditMapText.h"
#include "actions/CActionNewMap.h"
#include "actions/CActionNewMapGroup.h"
#include "actions/CActionRemoveMap.h"
#include "core/KorvaneError.h"
#include "support/GameFixture.h"

namespace {

class MapActions : public GameFixture
{
protected:
    // Four units (two of them an arrow's handles) and two arrows on the board.
    void fillBoard()
    {
        put(QStringLiteral("INF"), 10, 20, QStringLiteral("3"), true);
        put(QStringLiteral("TANK"), 30, 40);
        CActionAddArrow arrow;
        arrow.SetMapId(board()->Id());
        arrow.SetTokenId(QStringLiteral("ARROW"));
        arrow.Execute();
        AddArrow(*board(), -5, 7, 5, 6, 0xABCDEF);
        game->SetDirty(0);
        events->Lines.clear();
    }

    // A map's contents with the unit ids left out.
    static QStringList withoutUnitIds(const CMap& map)
    {
        QStringList lines = contents(map);
        for (qsizetype i = 0; i < map.Units()->Count(); ++i)
            lines[i] = lines[i].section(QLatin1Char('|'), 1);
        return lines;
    }

    std::shared_ptr<CActionEditMapText> textEdit(const QString& text)
    {
        auto action = std::make_shared<CActionEditMapText>();
        action->SetMapId(board()->Id());
        action->SetText(text);
        return action;
    }
};

TEST_F(MapActions, aNewMapCopiesTheGroupsLastMapAndItsUndoShowsTheLastRemainingMap)
{
    fillBoard();
    const QStringList last = withoutUnitIds(*second);
    const QStringList lastIds = unitIds(*second);
    ASSERT_EQ(last.size(), 6);
    group->SwitchTo(first); // an earlier map is shown: the copy is still of the last
    auto action = std::make_shared<CActionNewMap>();
    action->SetName(QStringLiteral("Turn 3"));
    mgr().Execute(action);

    const auto copy = board();
    EXPECT_EQ(copy->Name() + copy->GroupId(), QStringLiteral("Turn 3") + group->Id());
    EXPECT_EQ(group->Maps().Count(), 3);
    EXPECT_EQ(withoutUnitIds(*copy), last);
    for (const QString& id : unitIds(*copy))
        EXPECT_FALSE(lastIds.contains(id)) << "copied units get ids of their own";
    EXPECT_EQ(second->LockCount(), 0);
    EXPECT_EQ(events->Lines, (QStringList{"MapAdd(" + copy->Id() + ")",
                                          "MapSwitch(" + first->Id() + "," + copy->Id() + ")"}));

    mgr().Undo();
    EXPECT_EQ(group->Maps().Count(), 2);
    EXPECT_EQ(board(), second) << "the group's last remaining map is shown";
}

TEST_F(MapActions, aNewMapGroupStartsFromACopyAndEmptiesTheHistory)
{
    fillBoard();
    const QStringList last = withoutUnitIds(*second);
    mgr().Execute(textEdit(QStringLiteral("before")));
    auto action = std::make_shared<CActionNewMapGroup>();
    mgr().Execute(action);
    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(withoutUnitIds(*board()), last);
    EXPECT_EQ(group->ActiveMap(), second) << "the old group keeps its map";
    EXPECT_EQ(events->Lines.mid(1),
              (QStringList{"GroupAdd(" + action->GroupId() + ")",
                           "GroupSwitch(" + group->Id() + "," + action->GroupId() + ")"}));
}

TEST_F(MapActions, aRemovedMapGivesWayToItsNeighbourEmptiesTheHistoryAndTheLastMapStays)
{
    fillBoard();
    group->SwitchTo(first);
    mgr().Execute(textEdit(QStringLiteral("before")));
    events->Lines.clear();
    auto remove = std::make_shared<CActionRemoveMap>();
    remove->SetMapId(first->Id());
    mgr().Execute(remove);
    EXPECT_EQ(group->Maps().Count(), 1);
    EXPECT_EQ(board(), second);
    EXPECT_EQ(first->LockCount(), 0) << "the removed map gave up its lock";
    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(game->Dirty(), 2);
    EXPECT_EQ(events->Lines, (QStringList{"MapDelete(" + first->Id() + ")",
                                          "MapSwitch(" + first->Id() + "," + second->Id() + ")"}));

    auto last = std::make_shared<CActionRemoveMap>();
    last->SetMapId(second->Id());
    EXPECT_THROW(mgr().Execute(last), KorvaneError);
    EXPECT_EQ(group->Maps().Count(), 1);
    EXPECT_EQ(game->Dirty(), 2);
}

TEST_F(MapActions, twoTextEditsOfOneMapAreUndoneInOneStepAndAResetOfNoMarksIsNotRecorded)
{
    board()->SetText(QStringLiteral("start"));
    mgr().Execute(textEdit(QStringLiteral("a")));
    mgr().Execute(textEdit(QStringLiteral("ab")));
    EXPECT_EQ(mgr().Actions().Count(), 1);
    mgr().Undo();
    EXPECT_EQ(board()->Text(), QStringLiteral("start"));
    EXPECT_EQ(dirty(), 0);

    // Resetting the marks records nothing when no unit is marked.
    put(QStringLiteral("TANK"), 1, 1);
    CActToolResetMoved().Invoke();
    EXPECT_EQ(mgr().UndoPos(), 0);
    EXPECT_EQ(dirty(), 0);
}

} // namespace
