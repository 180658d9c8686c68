#include "actions/CActToolResetMoved.h"
#include "actions/CActionAddArrow.h"
#include "actions/CActionEditMapText.h"
#include "actions/CActionNewMap.h"
#include "actions/CActionNewMapGroup.h"
#include "actions/CActionResetAllMoved.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"

namespace {

class MapActions : public GameFixture
{
protected:
    // Five units (two of them an arrow's handles) and two arrows on the board.
    void fillBoard()
    {
        addUnit(QStringLiteral("INF"), 10, 20, QStringLiteral("3"), true);
        addUnit(QStringLiteral("TANK"), 30, 40);
        addUnit(QStringLiteral("MARK"), 50, 60, QStringLiteral("7"));
        auto arrow = std::make_shared<CActionAddArrow>();
        arrow->SetMapId(board()->Id());
        arrow->SetTokenId(QStringLiteral("ARROW"));
        arrow->SetPosition(100, 100);
        arrow->Execute();
        auto plain = std::make_shared<CArrow>(CUtility::GenerateId());
        plain->SetHeadX(1);
        plain->SetTailY(2);
        plain->SetColor(0xABCDEF);
        board()->Arrows()->AddItem(plain);
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

TEST_F(MapActions, aNewMapCopiesTheLastMapAndRedoRebuildsItWithTheSameIds)
{
    fillBoard();
    const auto source = board();
    const QStringList sourceLines = withoutUnitIds(*source);
    const QStringList sourceIds = unitIds(*source);
    ASSERT_EQ(sourceLines.size(), 7);
    auto action = std::make_shared<CActionNewMap>();
    action->SetName(QStringLiteral("Turn 3"));
    action->SetRemarks(QStringLiteral("rain"));
    mgr().Execute(action);

    const auto copy = board();
    ASSERT_NE(copy, source);
    EXPECT_EQ(copy->Id(), action->MapId());
    EXPECT_EQ(copy->Name(), QStringLiteral("Turn 3"));
    EXPECT_EQ(copy->Remarks(), QStringLiteral("rain"));
    EXPECT_EQ(copy->GroupId(), group->Id());
    EXPECT_EQ(group->Maps().Count(), 3);
    EXPECT_EQ(copy->LockCount(), 1);
    EXPECT_EQ(withoutUnitIds(*copy), sourceLines);
    for (const QString& id : unitIds(*copy))
        EXPECT_FALSE(sourceIds.contains(id)) << "copied units get ids of their own";
    EXPECT_EQ(dirty(), 1);
    EXPECT_EQ(events->Lines, (QStringList{"MapAdd(" + copy->Id() + ")",
                                          "MapSwitch(" + source->Id() + "," + copy->Id() + ")"}));
    const QStringList copied = contents(*copy);

    mgr().Undo();
    EXPECT_EQ(group->Maps().Count(), 2);
    EXPECT_EQ(board(), source) << "the group's last remaining map is shown";
    EXPECT_EQ(dirty(), 0);
    EXPECT_EQ(events->Lines.mid(2),
              (QStringList{"MapSwitch(" + copy->Id() + "," + source->Id() + ")",
                           "MapDelete(" + copy->Id() + ")"}));

    mgr().Redo();
    EXPECT_EQ(board()->Id(), copy->Id());
    EXPECT_EQ(contents(*board()), copied);
}

TEST_F(MapActions, aNewMapCopiesTheGroupsLastMapEvenWhileAnEarlierOneIsShown)
{
    fillBoard();
    const QStringList last = withoutUnitIds(*second);
    group->SwitchTo(first);
    auto action = std::make_shared<CActionNewMap>();
    mgr().Execute(action);
    EXPECT_EQ(withoutUnitIds(*board()), last);
    EXPECT_EQ(events->Lines.last(), "MapSwitch(" + first->Id() + "," + action->MapId() + ")");
    EXPECT_EQ(second->LockCount(), 0) << "the source's lock was given back";
}

TEST_F(MapActions, aNewMapGroupStartsFromACopyAndEmptiesTheHistory)
{
    fillBoard();
    const QStringList last = withoutUnitIds(*second);
    mgr().Execute(textEdit(QStringLiteral("before")));
    auto action = std::make_shared<CActionNewMapGroup>();
    action->SetName(QStringLiteral("Campaign 2"));
    mgr().Execute(action);

    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(mgr().NextUndoAction(), nullptr);
    EXPECT_EQ(game->MapGroups().Count(), 2);
    EXPECT_EQ(game->ActiveMapGroup()->Id(), action->GroupId());
    EXPECT_EQ(board()->Id(), action->MapId());
    EXPECT_EQ(board()->Name(), QStringLiteral("Campaign 2"));
    EXPECT_EQ(board()->GroupId(), action->GroupId());
    EXPECT_EQ(withoutUnitIds(*board()), last);
    EXPECT_EQ(group->ActiveMap(), second) << "the old group keeps its map";
    EXPECT_EQ(dirty(), 2);
    EXPECT_EQ(events->Lines.mid(1),
              (QStringList{"GroupAdd(" + action->GroupId() + ")",
                           "GroupSwitch(" + group->Id() + "," + action->GroupId() + ")"}));
}

TEST_F(MapActions, twoTextEditsOfOneMapAreUndoneInOneStep)
{
    board()->SetText(QStringLiteral("start"));
    mgr().Execute(textEdit(QStringLiteral("a")));
    mgr().Execute(textEdit(QStringLiteral("ab")));
    EXPECT_EQ(mgr().Actions().Count(), 1);
    EXPECT_EQ(board()->Text(), QStringLiteral("ab"));
    mgr().Undo();
    EXPECT_EQ(board()->Text(), QStringLiteral("start"));
    EXPECT_EQ(dirty(), 0);

    // Another map's text is a step of its own.
    mgr().Redo();
    auto other = textEdit(QStringLiteral("other"));
    other->SetMapId(first->Id());
    mgr().Execute(other);
    EXPECT_EQ(mgr().Actions().Count(), 2);
    EXPECT_EQ(board(), first);
}

TEST_F(MapActions, resetMovedClearsOnlyMarkedUnitsAndDoesNothingWithoutThem)
{
    addUnit(QStringLiteral("TANK"), 1, 1);
    CActToolResetMoved tool;
    EXPECT_EQ(tool.Caption(), QStringLiteral("Reset &Moved"));
    tool.Invoke();
    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(dirty(), 0);

    const auto a = addUnit(QStringLiteral("TANK"), 2, 2, QString(), true);
    const auto b = addUnit(QStringLiteral("INF"), 3, 3, QStringLiteral("2"), true);
    tool.Invoke();
    EXPECT_FALSE(a->HasMoved());
    EXPECT_FALSE(b->HasMoved());
    EXPECT_EQ(events->Lines,
              (QStringList{"UnitEdit(" + a->Id() + ")", "UnitEdit(" + b->Id() + ")"}));
    EXPECT_EQ(dirty(), 1);
    mgr().Undo();
    EXPECT_TRUE(a->HasMoved());
    EXPECT_TRUE(b->HasMoved());
    EXPECT_FALSE(board()->Units()->Item(1)->HasMoved());
    EXPECT_EQ(dirty(), 0);

    // An empty list does nothing either way.
    CActionResetAllMoved empty;
    empty.SetMapId(board()->Id());
    empty.Execute();
    empty.Reverse();
    EXPECT_EQ(dirty(), 0);
}

} // namespace
