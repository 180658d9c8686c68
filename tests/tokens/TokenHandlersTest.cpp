#include "actions/CActionMoveUnit.h"
#include "support/GameFixture.h"
#include "support/QtPrinters.h"

namespace {

class TokenHandlers : public GameFixture
{
protected:
    void choose(const std::shared_ptr<CUnit>& unit, const QString& key)
    {
        gui->Popup.Answer = key;
        unit->Token()->HandleRightClick(unit);
    }

    QStringList menuOf(const std::shared_ptr<CUnit>& unit)
    {
        choose(unit, QString());
        return gui->Popup.Entries;
    }
};

TEST_F(TokenHandlers, numericMenusOfferAddingBelow200AndSubtractingAbove0)
{
    const QStringList edit{"&Edit|EDIT", "-|"};
    const QStringList end{"-|", "&Delete|DELETE"};
    const QStringList add{"&Add 1|ADD_1"};
    const QStringList subtract{"&Subtract 1|SUB_1"};
    const auto mark = addUnit(QStringLiteral("MARK"), 5, 5, QStringLiteral("0"));
    EXPECT_EQ(menuOf(mark), edit + add + end);
    mark->SetData(QStringLiteral("199"));
    EXPECT_EQ(menuOf(mark), edit + add + subtract + end);
    mark->SetData(QStringLiteral("200"));
    EXPECT_EQ(menuOf(mark), edit + subtract + end);

    choose(mark, QStringLiteral("SUB_1"));
    EXPECT_EQ(mark->Data() + mark->Caption(), QStringLiteral("199x199"));
    mark->SetData(QStringLiteral("1"));
    choose(mark, QStringLiteral("SUB_1"));
    EXPECT_EQ(mark->Data() + mark->Caption(), QStringLiteral("0x0"));

    gui->NumDlg.Answer = 0;
    mark->SetData(QStringLiteral("17"));
    choose(mark, QStringLiteral("EDIT"));
    EXPECT_EQ(gui->NumDlg.Shown, QStringList{mark->Id() + QStringLiteral(" 0..200")});
    EXPECT_EQ(mark->Data(), QStringLiteral("0"));
    // The three edits of one unit are one history entry: its undo goes back
    // to the value before the first of them.
    EXPECT_EQ(mgr().Actions().Count(), 1);
    mgr().Undo();
    EXPECT_EQ(mark->Data(), QStringLiteral("200"));
}

TEST_F(TokenHandlers, textUnitsTakeTheirCaptionAndDataFromTheTextDialog)
{
    token(QStringLiteral("NOTE"))->HandleDrop(50, 60);
    const auto note = board()->Units()->Item(1);
    EXPECT_EQ(note->Caption(), QStringLiteral("NOTE")) << "no custom text: the token's caption";
    EXPECT_EQ(menuOf(note), (QStringList{"&Edit|EDIT", "-|", "&Delete|DELETE"}));

    gui->TextDlg.AnswerText = QStringLiteral("Supply");
    gui->TextDlg.AnswerExtended = QStringLiteral("Depot at the river");
    gui->TextDlg.Confirm = false;
    choose(note, QStringLiteral("EDIT"));
    EXPECT_EQ(mgr().Actions().Count(), 1) << "a cancelled dialog records nothing";
    gui->TextDlg.Confirm = true;
    choose(note, QStringLiteral("EDIT"));
    EXPECT_EQ(note->Caption(), QStringLiteral("Supply"));
    EXPECT_EQ(note->Data(), QStringLiteral("Depot at the river"));
    EXPECT_EQ(gui->TextDlg.Shown, (QStringList{note->Id(), note->Id()}));

    choose(note, QStringLiteral("DELETE"));
    EXPECT_EQ(board()->Units()->Count(), 0);
}

TEST_F(TokenHandlers, plainCountersDropMoveAndDeleteOneStepEach)
{
    const auto tank = token(QStringLiteral("TANK"));
    tank->HandleDrop(33, 44);
    ASSERT_EQ(board()->Units()->Count(), 1);
    const auto unit = board()->Units()->Item(1);
    EXPECT_EQ(mgr().Actions().Count(), 1);

    tank->HandleMove(70, 80, unit);
    EXPECT_EQ(QStringLiteral("%1,%2,%3").arg(unit->x()).arg(unit->y()).arg(unit->HasMoved()),
              QStringLiteral("70,80,1"));
    EXPECT_EQ(mgr().Actions().Count(), 2);

    EXPECT_EQ(menuOf(unit), QStringList{"&Delete|DELETE"});
    EXPECT_EQ(mgr().Actions().Count(), 2);
    choose(unit, QStringLiteral("DELETE"));
    EXPECT_EQ(board()->Units()->Count(), 0);
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Delete Unit"));
    tank->HandleMoveOnto(unit, unit);
    EXPECT_EQ(mgr().Actions().Count(), 3);
}

TEST_F(TokenHandlers, arrowHandlesPlaceMoveAndDeleteTheirArrow)
{
    const auto arrowToken = token(QStringLiteral("ARROW"));
    arrowToken->HandleDrop(100, 500);
    ASSERT_EQ(board()->Arrows()->Count(), 1);
    const auto arrow = board()->Arrows()->Item(1);
    const auto head = board()->Units()->Item(1);
    EXPECT_EQ(QStringLiteral("%1,%2").arg(arrow->HeadX()).arg(arrow->HeadY()),
              QStringLiteral("135,465"));

    arrowToken->HandleMove(200, 210, head);
    EXPECT_EQ(QStringLiteral("%1,%2").arg(arrow->HeadX()).arg(arrow->HeadY()),
              QStringLiteral("200,210"));
    EXPECT_FALSE(head->HasMoved()) << "arrows carry no moved mark";

    EXPECT_EQ(menuOf(head), QStringList{"&Delete|DELETE"});
    EXPECT_EQ(mgr().Actions().Count(), 2);
    choose(head, QStringLiteral("DELETE"));
    EXPECT_EQ(board()->Arrows()->Count(), 0);
    EXPECT_EQ(board()->Units()->Count(), 0);
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Delete Arrow"));
    mgr().Undo();
    EXPECT_EQ(board()->ArrowById(arrow->Id())->HeadX(), 200);
}

TEST_F(TokenHandlers, handlersDoNothingWithoutAGame)
{
    const auto unit = addUnit(QStringLiteral("INF"), 1, 1, QStringLiteral("3"));
    Root().SetGame(nullptr);
    for (const char* id : {"INF", "TANK", "ARROW", "MARK", "NOTE"}) {
        const auto t = token(QLatin1String(id));
        t->HandleDrop(1, 1);
        t->HandleMove(2, 2, unit);
        t->HandleRightClick(unit);
    }
    EXPECT_EQ(gui->Popup.ShowCount, 0);
    EXPECT_EQ(mgr().Actions().Count(), 0);
}

TEST_F(TokenHandlers, aDismissedMenuChangesNothingWhateverKeyItStillReports)
{
    gui->Popup.DismissKeepingContext = true;
    for (const char* id : {"INF", "TANK", "ARROW", "MARK", "NOTE"}) {
        token(QLatin1String(id))->HandleDrop(10, 10);
        const auto unit = board()->Units()->Item(board()->Units()->Count());
        choose(unit, QStringLiteral("DELETE"));
    }
    EXPECT_EQ(gui->Popup.ShowCount, 5);
    EXPECT_EQ(gui->Popup.SelectedItemContext(), QStringLiteral("DELETE"));
    EXPECT_EQ(mgr().Actions().Count(), 5) << "the five drops and nothing else";
    EXPECT_EQ(board()->Units()->Count(), 6);
}

class TokensWithoutGui : public GameFixture
{
protected:
    bool WantsGui() const override { return false; }
};

TEST_F(TokensWithoutGui, rightClicksShowNothingAndRecordNothing)
{
    ASSERT_EQ(Root().Gui(), nullptr);
    for (const char* id : {"INF", "TANK", "ARROW", "MARK", "NOTE"}) {
        const auto unit = addUnit(QLatin1String(id), 1, 1, QStringLiteral("3"));
        unit->Token()->HandleRightClick(unit);
    }
    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(board()->Units()->Count(), 5);
}

} // namespace
