#include "support/GameFixture.h"

namespace {

class QuantityToken : public GameFixture
{
protected:
    std::shared_ptr<CUnit> stack(std::int32_t count, std::int32_t x = 200, std::int32_t y = 200)
    {
        return put(QStringLiteral("INF"), x, y, QString::number(count));
    }

    QStringList menuAt(const QString& count)
    {
        return menuOf(put(QStringLiteral("INF"), 1, 1, count));
    }

    static QString countOf(const CUnit& unit)
    {
        return unit.Data() + QLatin1Char('/') + unit.Caption();
    }
};

TEST_F(QuantityToken, theMenuOffersWhatTheCountAllows)
{
    const QStringList head{"&Edit|EDIT", "-|"};
    const QStringList tail{"-|", "&Delete|DELETE", "-|", "Toggle &Moved|MOVED"};
    const QStringList add{"&Add 1|ADD_1"};
    const QStringList subtract{"&Subtract 1|SUB_1"};
    const QStringList splits{"-|",
                             "Split Off &1|SPLIT_1",
                             "Split Off &2 |SPLIT_2",
                             "Split Off &5|SPLIT_5",
                             "Split Off 1&0|SPLIT_10",
                             "&Custom Split|SPLIT_x"};
    const QStringList splitOne{"-|", "Split Off &1|SPLIT_1", "&Custom Split|SPLIT_x"};
    const QStringList splitsBelowTen = QStringList(splits.mid(0, 4)) << splits.last();

    EXPECT_EQ(menuAt(QStringLiteral("1")), head + add + tail);
    EXPECT_EQ(menuAt(QStringLiteral("2")), head + add + subtract + splitOne + tail);
    EXPECT_EQ(menuAt(QStringLiteral("10")), head + add + subtract + splitsBelowTen + tail);
    EXPECT_EQ(menuAt(QStringLiteral("11")), head + add + subtract + splits + tail);
    EXPECT_EQ(menuAt(QStringLiteral("200")), head + subtract + splits + tail);
    // Counts that are not whole decimal numbers in range count as 0.
    EXPECT_EQ(menuAt(QStringLiteral("2x")), head + add + tail);
}

TEST_F(QuantityToken, menuEntriesEditTheCountAndTheMark)
{
    const auto unit = stack(5);
    choose(unit, QStringLiteral("ADD_1"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("6/x6"));
    choose(unit, QStringLiteral("SUB_1"));
    choose(unit, QStringLiteral("SUB_1"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("4/x4"));
    choose(unit, QStringLiteral("MOVED"));
    EXPECT_TRUE(unit->HasMoved());
    const auto recorded = mgr().Actions().Count();
    gui->Dialogs.Confirm = false;
    gui->Dialogs.Number = 7;
    choose(unit, QStringLiteral("EDIT"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("4/x4")) << "cancelled";
    EXPECT_EQ(mgr().Actions().Count(), recorded);
}

TEST_F(QuantityToken, mergingAddsTheCountsUpToTheLimit)
{
    const auto target = stack(3);
    const auto dragged = stack(4, 500, 500);
    dragged->Token()->HandleMoveOnto(dragged, target);
    EXPECT_EQ(countOf(*target), QStringLiteral("7/x7"));
    EXPECT_EQ(unitIds(*board()), QStringList{target->Id()});
    // Its undo is checked with every other action's.
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Merge Units"));

    // Past the limit the rest stays on the dragged stack.
    const auto large = stack(150);
    const auto extra = stack(100, 500, 500);
    extra->Token()->HandleMoveOnto(extra, large);
    EXPECT_EQ(countOf(*large) + countOf(*extra), QStringLiteral("200/x20050/x50"));
    mgr().Undo();
    EXPECT_EQ(countOf(*large) + countOf(*extra), QStringLiteral("150/x150100/x100"));

    const auto full = stack(200);
    extra->Token()->HandleMoveOnto(extra, full);
    EXPECT_EQ(mgr().UndoPos(), 1) << "a full stack takes nothing";
}

TEST_F(QuantityToken, splittingMakesANewStackBesideTheOldOnTheBoard)
{
    const auto unit = stack(12, 200, 200);
    choose(unit, QStringLiteral("SPLIT_5"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("7/x7"));
    ASSERT_EQ(board()->Units()->Count(), 2);
    const auto split = board()->Units()->Item(2);
    EXPECT_EQ(countOf(*split), QStringLiteral("5/x5"));
    // One region (40 x 30) to the right and one above: 200 + 40, 200 - 30.
    EXPECT_EQ(QPoint(split->x(), split->y()), QPoint(240, 170));
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Split Off 5"));

    // The board is 800 wide: the new picture (a position is its top-left
    // corner) ends at the right edge, and its top does not go above the board.
    choose(stack(3, 790, 20), QStringLiteral("SPLIT_1"));
    EXPECT_EQ(QPoint(lastUnit()->x(), lastUnit()->y()), QPoint(760, 0));

    // The custom split never takes the whole stack, and a cancelled one splits nothing.
    const std::int32_t recorded = mgr().Actions().Count();
    gui->Dialogs.Number = 9;
    choose(stack(9), QStringLiteral("SPLIT_x"));
    gui->Dialogs.Confirm = false;
    gui->Dialogs.Number = 8;
    choose(lastUnit(), QStringLiteral("SPLIT_x"));
    EXPECT_EQ(mgr().Actions().Count(), recorded);
}

} // namespace
