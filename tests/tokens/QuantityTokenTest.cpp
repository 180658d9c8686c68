#include "actions/CActionGroup.h"
#include "core/CDebug.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"
#include "tokens/CTokenBase.h"

#include <QFile>

namespace {

class QuantityToken : public GameFixture
{
protected:
    std::shared_ptr<CUnit> stack(std::int32_t count, std::int32_t x = 200, std::int32_t y = 200)
    {
        return addUnit(QStringLiteral("INF"), x, y, QString::number(count));
    }

    QStringList menuAt(std::int32_t count)
    {
        const auto unit = stack(count);
        unit->Token()->HandleRightClick(unit);
        return gui->Popup.Entries;
    }

    void choose(const std::shared_ptr<CUnit>& unit, const QString& key)
    {
        gui->Popup.Answer = key;
        unit->Token()->HandleRightClick(unit);
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
    const QStringList splitsBelowTen = QStringList(splits.mid(0, 4)) << splits.last();
    const QStringList splitOne{"-|", "Split Off &1|SPLIT_1", "&Custom Split|SPLIT_x"};

    EXPECT_EQ(menuAt(1), head + add + tail);
    EXPECT_EQ(menuAt(2), head + add + subtract + splitOne + tail);
    EXPECT_EQ(menuAt(10), head + add + subtract + splitsBelowTen + tail);
    EXPECT_EQ(menuAt(11), head + add + subtract + splits + tail);
    EXPECT_EQ(menuAt(200), head + subtract + splits + tail);
    // A count that is not a number counts as nothing.
    EXPECT_EQ(menuAt(0), menuAt(1));
    EXPECT_EQ(gui->Popup.ShowCount, 7);
    EXPECT_EQ(mgr().Actions().Count(), 0) << "dismissed menus record nothing";
}

TEST_F(QuantityToken, countsAreWholeDecimalNumbersOrNothing)
{
    EXPECT_EQ(CTokenBase::CountOf(QStringLiteral(" 12 ")), 12);
    EXPECT_EQ(CTokenBase::CountOf(QStringLiteral("-3")), -3);
    EXPECT_EQ(CTokenBase::CountOf(QStringLiteral("12abc")), 0);
    EXPECT_EQ(CTokenBase::CountOf(QStringLiteral("0x10")), 0);
    EXPECT_EQ(CTokenBase::CountOf(QStringLiteral("99999999999")), 0);
    EXPECT_EQ(CTokenBase::CountOf(QString()), 0);
}

TEST_F(QuantityToken, theMenuIsTracedBeforeItShows)
{
    Root().Trace().SetEnabled(true);
    const auto unit = stack(3);
    unit->Token()->HandleRightClick(unit);
    Root().Trace().SetEnabled(false);
    QFile file(home.File(QStringLiteral("debug.txt")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(file.readAll()).contains(QStringLiteral("\tShowing Menu\n")));
}

TEST_F(QuantityToken, menuEntriesChangeTheCountOneStepEach)
{
    const auto unit = stack(5);
    choose(unit, QStringLiteral("ADD_1"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("6/x6"));
    choose(unit, QStringLiteral("SUB_1"));
    choose(unit, QStringLiteral("SUB_1"));
    EXPECT_EQ(countOf(*unit), QStringLiteral("4/x4"));

    choose(unit, QStringLiteral("MOVED"));
    EXPECT_TRUE(unit->HasMoved());
    EXPECT_EQ(countOf(*unit), QStringLiteral("4/x4"));

    gui->NumDlg.Answer = 150;
    choose(unit, QStringLiteral("EDIT"));
    EXPECT_EQ(gui->NumDlg.Shown, QStringList{unit->Id() + QStringLiteral(" 1..200")});
    EXPECT_EQ(countOf(*unit), QStringLiteral("150/x150"));
    EXPECT_TRUE(unit->HasMoved()) << "editing the count keeps the moved mark";

    const std::int32_t recorded = mgr().Actions().Count();
    gui->NumDlg.Confirm = false;
    choose(unit, QStringLiteral("EDIT"));
    gui->NumDlg.Confirm = true;
    gui->NumDlg.Answer = 201;
    choose(unit, QStringLiteral("EDIT"));
    EXPECT_EQ(mgr().Actions().Count(), recorded)
        << "cancelled or out-of-range edits record nothing";
    EXPECT_EQ(countOf(*unit), QStringLiteral("150/x150"));

    choose(unit, QStringLiteral("DELETE"));
    EXPECT_EQ(board()->UnitById(unit->Id()), nullptr);
}

TEST_F(QuantityToken, mergingAddsTheCountsAsOneUndoStep)
{
    const auto target = stack(3);
    const auto dragged = stack(4, 500, 500);
    const QStringList before = contents(*board());
    dragged->Token()->HandleMoveOnto(dragged, target);

    EXPECT_EQ(countOf(*target), QStringLiteral("7/x7"));
    EXPECT_EQ(unitIds(*board()), QStringList{target->Id()});
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Merge Units"));
    EXPECT_EQ(mgr().Actions().Count(), 1);

    mgr().Undo();
    EXPECT_EQ(contents(*board()), before);
    EXPECT_EQ(dirty(), 0);
}

TEST_F(QuantityToken, aMergePastTheLimitLeavesTheRestOnTheDraggedStack)
{
    const auto target = stack(150);
    const auto dragged = stack(100, 500, 500);
    dragged->Token()->HandleMoveOnto(dragged, target);
    EXPECT_EQ(countOf(*target), QStringLiteral("200/x200"));
    EXPECT_EQ(countOf(*dragged), QStringLiteral("50/x50"));
    EXPECT_EQ(board()->Units()->Count(), 2);
    mgr().Undo();
    EXPECT_EQ(countOf(*target), QStringLiteral("150/x150"));
    EXPECT_EQ(countOf(*dragged), QStringLiteral("100/x100"));

    // A full stack takes nothing more, and nothing is recorded.
    const auto full = stack(200);
    dragged->Token()->HandleMoveOnto(dragged, full);
    EXPECT_EQ(mgr().Actions().Count(), 1);
    EXPECT_EQ(countOf(*dragged), QStringLiteral("100/x100"));
}

TEST_F(QuantityToken, splittingMakesANewStackBesideTheOldAsOneUndoStep)
{
    const auto unit = stack(12, 200, 200);
    unit->SetHasMoved(true);
    choose(unit, QStringLiteral("SPLIT_5"));

    EXPECT_EQ(countOf(*unit), QStringLiteral("7/x7"));
    ASSERT_EQ(board()->Units()->Count(), 2);
    const auto split = board()->Units()->Item(2);
    EXPECT_EQ(countOf(*split), QStringLiteral("5/x5"));
    EXPECT_EQ(split->Token()->Id(), QStringLiteral("INF"));
    // One region (40 x 30) to the right and one above.
    EXPECT_EQ(QStringLiteral("%1,%2").arg(split->x()).arg(split->y()), QStringLiteral("240,170"));
    EXPECT_TRUE(split->HasMoved());
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Split Off 5"));

    mgr().Undo();
    EXPECT_EQ(unitIds(*board()), QStringList{unit->Id()});
    EXPECT_EQ(countOf(*unit), QStringLiteral("12/x12"));
    EXPECT_EQ(dirty(), 0);
}

TEST_F(QuantityToken, aSplitNearTheEdgeStaysOnTheBoard)
{
    // Board 800 wide: the new region (40 wide) ends at the right edge, and
    // its top does not go above the board.
    const auto right = stack(3, 790, 20);
    choose(right, QStringLiteral("SPLIT_1"));
    const auto placed = board()->Units()->Item(2);
    EXPECT_EQ(QStringLiteral("%1,%2").arg(placed->x()).arg(placed->y()), QStringLiteral("780,15"));

    const auto left = stack(3, 20, 400);
    choose(left, QStringLiteral("SPLIT_2"));
    const auto next = board()->Units()->Item(4);
    EXPECT_EQ(QStringLiteral("%1,%2").arg(next->x()).arg(next->y()), QStringLiteral("60,370"));
    EXPECT_EQ(countOf(*next), QStringLiteral("2/x2"));
}

TEST_F(QuantityToken, theCustomSplitAsksHowManyAndACancelRecordsNothing)
{
    const auto unit = stack(9);
    gui->SplitDlg.Confirm = false;
    choose(unit, QStringLiteral("SPLIT_x"));
    gui->SplitDlg.Confirm = true;
    gui->SplitDlg.Answer = 9;
    choose(unit, QStringLiteral("SPLIT_x"));
    EXPECT_EQ(mgr().Actions().Count(), 0) << "nothing may be left behind";

    gui->SplitDlg.Answer = 8;
    choose(unit, QStringLiteral("SPLIT_x"));
    EXPECT_EQ(gui->SplitDlg.Shown.size(), 3);
    EXPECT_EQ(countOf(*unit), QStringLiteral("1/x1"));
    EXPECT_EQ(countOf(*board()->Units()->Item(2)), QStringLiteral("8/x8"));
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Split Off 8"));
}

TEST_F(QuantityToken, theContextsPrefixWritesTheCaption)
{
    context = std::make_shared<TestContext>(QStringLiteral("# "));
    context->AddToken(QStringLiteral("CQuantityToken"), QStringLiteral("INF"));
    Root().SetContext(context);
    const auto unit = stack(2);
    choose(unit, QStringLiteral("ADD_1"));
    EXPECT_EQ(unit->Caption(), QStringLiteral("# 3"));
}

} // namespace
