#include "actions/CActionAddArrow.h"
#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteArrow.h"
#include "actions/CActionMoveArrow.h"
#include "actions/CActionMoveUnit.h"
#include "actions/CArrowHandles.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "support/WindowFixture.h"
#include "ui/app/CReviewWindows.h"
#include "ui/board/CBoardReview.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CChangeReplay.h"
#include "ui/board/CUnitGhostItem.h"
#include "ui/board/CUnitItem.h"
#include "ui/board/arcArrows.h"
#include "ui/board/mdcBoard.h"
#include "ui/docks/frmChanges.h"

#include <QApplication>
#include <QDialog>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <tuple>

namespace {

// Border Skirmish's opening with two arrows as "Turn 1", and a "Turn 2" in
// which one counter moved, one was removed, one added and one stack lost a
// counter; one arrow's head moved, the other arrow went and a third came.
class ReviewTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        board = window->Board();
        review = window->Review()->Board();
        newGame();
        turn1 = CMapState::ActiveMap();
        infantry = unitOf(QStringLiteral("red_inf"));
        movedArrow = placeArrow(QStringLiteral("move"), QPoint(100, 300));
        goneArrow = placeArrow(QStringLiteral("attack"), QPoint(500, 60));
        movedArrowBefore = ends(map()->ArrowById(movedArrow).get());
        goneArrowBefore = ends(map()->ArrowById(goneArrow).get());
        newMap(QStringLiteral("Turn 2"));
        for (const auto& unit : *map()->Units())
            if (unit->Data() == movedArrow + QStringLiteral("|HEAD")) {
                auto drag = std::make_shared<CActionMoveArrow>();
                drag->SetMapId(map()->Id());
                drag->SetUnitId(unit->Id());
                drag->SetData(unit->Data());
                drag->SetPosition(180, 250);
                run(drag);
            }
        auto gone = std::make_shared<CActionDeleteArrow>();
        gone->SetMapId(map()->Id());
        gone->SetArrowId(goneArrow);
        run(gone);
        newArrow = placeArrow(QStringLiteral("move"), QPoint(40, 250));
        move(unitOf(QStringLiteral("red_inf")), QPoint(220, 132));
        removeUnit(unitOf(QStringLiteral("blue_art")));
        auto note = std::make_shared<CActionAddUnit>();
        note->SetMapId(map()->Id());
        note->SetTokenId(QStringLiteral("note"));
        note->SetPosition(300, 300);
        run(note);
        editUnit(unitOf(QStringLiteral("blue_inf")), QStringLiteral("2"), QStringLiteral("x2"));
        dirty = Root().Game()->Dirty();
        undoPos = Root().ActionMgr().UndoPos();
    }
    static QString placeArrow(const QString& tokenId, QPoint tail)
    {
        auto arrow = std::make_shared<CActionAddArrow>();
        arrow->SetMapId(map()->Id());
        arrow->SetTokenId(tokenId);
        arrow->SetPosition(tail.x(), tail.y());
        run(arrow);
        return arrow->ArrowId();
    }
    // An arrow as "head <- tail", or "none".
    static QString ends(const CArrow* arrow)
    {
        return arrow ? QStringLiteral("%1,%2 <- %3,%4")
                           .arg(arrow->HeadX())
                           .arg(arrow->HeadY())
                           .arg(arrow->TailX())
                           .arg(arrow->TailY())
                     : QStringLiteral("none");
    }
    static std::shared_ptr<CUnit> unitOf(const QString& tokenId)
    {
        for (const auto& unit : *map()->Units())
            if (unit->Token()->Id() == tokenId)
                return unit;
        return nullptr;
    }
    static void move(const std::shared_ptr<CUnit>& unit, QPoint to)
    {
        auto moving = std::make_shared<CActionMoveUnit>();
        moving->SetMapId(map()->Id());
        moving->SetUnitId(unit->Id());
        moving->SetPosition(to.x(), to.y());
        run(moving);
    }
    void key(int code) const { QTest::keyClick(board, static_cast<Qt::Key>(code)); }
    QString replayLabel() const
    {
        return board->viewport()->findChild<QLabel*>(QStringLiteral("lblReplay"))->text();
    }
    // The game is exactly as the setup left it: nothing marked, nothing to undo.
    void expectGameUntouched() const
    {
        EXPECT_EQ(Root().Game()->Dirty(), dirty);
        EXPECT_EQ(Root().ActionMgr().UndoPos(), undoPos);
        EXPECT_EQ(Root().ActionMgr().NextUndoAction()->Caption(), QStringLiteral("Edit Unit"));
    }
    // The overlay's line from a counter's older place, by where it ends.
    QLineF lineEndingAt(QPointF end) const
    {
        for (QGraphicsItem* item : board->scene()->items())
            if (auto* line = dynamic_cast<QGraphicsLineItem*>(item))
                if (QLineF(line->line().p2(), end).length() < 1)
                    return line->line();
        return QLineF();
    }

    mdcBoard* board = nullptr;
    CBoardReview* review = nullptr;
    std::shared_ptr<CMap> turn1;
    std::shared_ptr<CUnit> infantry;
    QString movedArrow;
    QString goneArrow;
    QString newArrow;
    QString movedArrowBefore;
    QString goneArrowBefore;
    std::int16_t dirty = 0;
    std::int32_t undoPos = 0;
};

TEST_F(ReviewTest, ChangesShowOnTheBoardFollowMovesAndMapsAndLeaveTheGameAlone)
{
    QAction* show = item("mnuView", "mnuViewShowChanges");
    ASSERT_TRUE(show->isEnabled());
    show->trigger();
    ASSERT_TRUE(review->Shown());
    const CMapComparison::Counts& counts = review->Comparison().Count;
    EXPECT_EQ(std::tie(counts.Moved, counts.Added, counts.Removed, counts.Changed),
              std::make_tuple(1, 1, 1, 1));
    // Ghosts of the moved and the removed counter and arrow; a line and two
    // rings for the counters, a glow and a ring for the added arrow.
    EXPECT_EQ(review->Overlay().Ghosts(), 4);
    EXPECT_EQ(review->Overlay().Marks(), 5);
    const QPointF newHead =
        QPointF(map()->ArrowById(newArrow)->HeadX(), map()->ArrowById(newArrow)->HeadY()) +
        board->Scene()->Renderer()->ArrowOrigin();
    const auto ringAt = [&](QPointF centre) {
        for (QGraphicsItem* item : board->scene()->items())
            if (auto* ring = dynamic_cast<QGraphicsEllipseItem*>(item))
                if (QLineF(ring->rect().center(), centre).length() < 1)
                    return true;
        return false;
    };
    EXPECT_TRUE(ringAt(newHead));
    EXPECT_EQ(window->Review()->SummaryLabel()->text(),
              turn1->Name() + QStringLiteral(" → Turn 2: ") + review->Comparison().Summary());
    expectGameUntouched();

    // The list names every change; a click brings the board to it.
    QListWidget* list = window->Review()->Dock()->List();
    ASSERT_TRUE(window->Review()->Dock()->isVisible());
    ASSERT_EQ(list->count(), 8);
    EXPECT_TRUE(list->item(7)->text().contains(QStringLiteral("Turn 2")))
        << list->item(7)->text().toStdString();
    EXPECT_TRUE(list->item(0)->text().contains(QStringLiteral("moved")))
        << list->item(0)->text().toStdString();
    for (int i = 0; i < 4; ++i)
        board->ZoomIn();
    board->centerOn(0, 0);
    const int row = [&] {
        for (int i = 0; i < list->count(); ++i)
            if (list->item(i)->text().contains(QStringLiteral("removed")))
                return i;
        return -1;
    }();
    ASSERT_GE(row, 0);
    const auto inView = [&] {
        const QPoint at = board->mapFromScene(review->PlaceOf(row));
        return board->viewport()->rect().contains(at);
    };
    ASSERT_FALSE(inView());
    const QRect cell = list->visualItemRect(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_TRUE(inView());
    board->ZoomReset();

    // A counter moved while the changes show: its line ends at its new place.
    const std::shared_ptr<CUnit> moved = unitOf(QStringLiteral("red_inf"));
    const QPointF oldCentre(infantry->x() + 20, infantry->y() + 20);
    EXPECT_EQ(lineEndingAt(QPointF(240, 152)).p1(), oldCentre);
    move(moved, QPoint(268, 216));
    QCoreApplication::processEvents();
    EXPECT_EQ(lineEndingAt(QPointF(288, 236)).p1(), oldCentre);
    EXPECT_EQ(lineEndingAt(QPointF(240, 152)), QLineF());
    EXPECT_EQ(review->Overlay().Ghosts(), 4);
    Root().ActionMgr().Undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(lineEndingAt(QPointF(240, 152)).p1(), oldCentre);

    // The exported picture is the board's, overlay and all (the renderer's
    // alone lacks the overlay, so this fails if the export ignores it).
    const QString exported = home.File(QStringLiteral("changes.png"));
    gui->Save.Choose(home.File(QString()), QStringLiteral("changes"), QStringLiteral("png"));
    item("mnuFile", "mnuFileExport")->trigger();
    const QImage picture(exported);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.convertToFormat(QImage::Format_ARGB32),
              board->PaintToPbox().convertToFormat(QImage::Format_ARGB32));

    // The game's first map has nothing before it: nothing shows, the item
    // is off; the next map shows its changes again.
    CMapState::SwitchToMapAt(1);
    EXPECT_EQ(review->Overlay().Ghosts(), 0);
    EXPECT_EQ(window->Review()->SummaryLabel()->text(), QString());
    EXPECT_TRUE(item("mnuView", "mnuViewShowChanges")->isChecked());
    EXPECT_FALSE(item("mnuView", "mnuViewReplay")->isEnabled());
    CMapState::SwitchToMapAt(2);
    EXPECT_EQ(review->Overlay().Ghosts(), 4);
    EXPECT_TRUE(ringAt(newHead));
    EXPECT_EQ(list->count(), 8);

    item("mnuView", "mnuViewShowChanges")->trigger();
    EXPECT_FALSE(review->Shown());
    EXPECT_EQ(review->Overlay().Marks(), 0);
    expectGameUntouched();
}

TEST_F(ReviewTest, ReplayStepsOnAndBackAndEndsByEscapeOrByAChange)
{
    const std::shared_ptr<CUnit> moved = unitOf(QStringLiteral("red_inf"));
    item("mnuView", "mnuViewReplay")->trigger();
    CChangeReplay* replay = review->Replay();
    ASSERT_NE(replay, nullptr);
    ASSERT_EQ(replay->Steps(), 7);
    EXPECT_EQ(replayLabel(), QStringLiteral("0 of 7"));
    // The board shows Turn 2 as it was in Turn 1: the moved counter at its
    // older place, the added one not yet there; the arrows likewise, drawn
    // by the replay over the board's hidden ones.
    EXPECT_FALSE(board->ItemFor(moved->Id())->isVisible());
    const arcArrows* arrows = replay->Arrows();
    ASSERT_NE(arrows, nullptr);
    // The stand-ins of the changed arrows' handles stand at these arrows' ends.
    const auto handlesAt = [&](const QStringList& arrowEnds) {
        QStringList drawn;
        for (QGraphicsItem* item : board->scene()->items())
            if (auto* ghost = dynamic_cast<CUnitGhostItem*>(item))
                if (ghost->isVisible() && CArrowHandles::IsArrowToken(*ghost->Unit()->Token()))
                    drawn << QStringLiteral("%1,%2").arg(ghost->x()).arg(ghost->y());
        QStringList expected = arrowEnds.join(QStringLiteral(" <- ")).split(QStringLiteral(" <- "));
        drawn.sort();
        expected.sort();
        EXPECT_EQ(drawn, expected);
    };
    const auto arrowsAsBefore = [&] {
        EXPECT_EQ(ends(arrows->Find(movedArrow)), movedArrowBefore);
        EXPECT_EQ(ends(arrows->Find(goneArrow)), goneArrowBefore);
        EXPECT_EQ(arrows->Find(newArrow), nullptr);
        handlesAt({movedArrowBefore, goneArrowBefore});
    };
    arrowsAsBefore();
    EXPECT_FALSE(board->Arrows()->isVisible());
    const auto newHandle = [&] {
        for (const auto& unit : *map()->Units())
            if (unit->Data().startsWith(newArrow))
                return board->ItemFor(unit->Id());
        return static_cast<CUnitItem*>(nullptr);
    };
    EXPECT_FALSE(newHandle()->isVisible());
    CUnitGhostItem* standIn = replay->StandIn(0);
    ASSERT_EQ(standIn->Unit()->Id(), infantry->Id());
    EXPECT_EQ(standIn->pos(), QPointF(infantry->x(), infantry->y()));

    key(Qt::Key_Right);
    EXPECT_EQ(replayLabel(), QStringLiteral("1 of 7"));
    replay->FinishGlide();
    EXPECT_EQ(standIn->pos(), QPointF(220, 132));
    key(Qt::Key_Left);
    EXPECT_EQ(replayLabel(), QStringLiteral("0 of 7"));
    EXPECT_EQ(standIn->pos(), QPointF(infantry->x(), infantry->y()));
    // The fifth change is the arrow's: its ends set off from their older places.
    for (int step = 0; step < 5; ++step)
        key(Qt::Key_Space);
    EXPECT_EQ(ends(arrows->Find(movedArrow)), movedArrowBefore);
    for (int step = 0; step < 3; ++step)
        key(Qt::Key_Space);
    replay->FinishGlide();
    EXPECT_EQ(replayLabel(), QStringLiteral("7 of 7"));
    int counters = 0;
    for (int i = 0; i < replay->Steps(); ++i) {
        const CUnitGhostItem* drawn = replay->StandIn(i);
        if (!drawn)
            continue;
        // Every stand-in ends where the newer map has its counter, or gone.
        ++counters;
        const std::shared_ptr<CUnit> own = map()->UnitById(drawn->Unit()->Id());
        EXPECT_EQ(drawn->isVisible(), own != nullptr);
        if (own) {
            EXPECT_EQ(drawn->pos(), QPointF(own->x(), own->y()));
        }
    }
    EXPECT_EQ(counters, 4);
    // Every arrow ends as the newer map has it.
    EXPECT_EQ(arrows->Count(), map()->Arrows()->Count());
    for (const auto& arrow : *map()->Arrows())
        EXPECT_EQ(ends(arrows->Find(arrow->Id())), ends(arrow.get()));
    EXPECT_EQ(arrows->Find(goneArrow), nullptr);
    handlesAt({ends(map()->ArrowById(movedArrow).get()), ends(map()->ArrowById(newArrow).get())});
    // Stepping back to the start sets the arrows back too.
    for (int step = 0; step < 7; ++step)
        key(Qt::Key_Left);
    EXPECT_EQ(replayLabel(), QStringLiteral("0 of 7"));
    arrowsAsBefore();
    expectGameUntouched();

    key(Qt::Key_Escape);
    EXPECT_EQ(review->Replay(), nullptr);
    EXPECT_TRUE(board->ItemFor(moved->Id())->isVisible());
    EXPECT_TRUE(board->Arrows()->isVisible());
    EXPECT_TRUE(newHandle()->isVisible());
    EXPECT_FALSE(board->viewport()->findChild<QLabel*>(QStringLiteral("lblReplay"))->isVisible());
    expectGameUntouched();

    // A change to the game ends a replay and shows the board as it is.
    item("mnuView", "mnuViewReplay")->trigger();
    key(Qt::Key_Right);
    move(moved, QPoint(100, 100));
    EXPECT_EQ(review->Replay(), nullptr);
    EXPECT_TRUE(board->ItemFor(moved->Id())->isVisible());
    EXPECT_EQ(board->ItemFor(moved->Id())->pos(), QPointF(100, 100));
    EXPECT_EQ(Root().ActionMgr().UndoPos(), undoPos + 1);
}

TEST_F(ReviewTest, ComparingWithAFileFindsAnAlteredEarlierMapAndPassesAKeptHistory)
{
    const auto saveAs = [&](const QString& name) {
        gui->Save.Choose(home.File(QStringLiteral("games/")), name, QStringLiteral("krf"));
        item("mnuFile", "mnuFileSaveGameAs")->trigger();
        return home.File(QStringLiteral("games/") + name + QStringLiteral(".krf"));
    };
    const auto mapsListed = [&](const std::function<void()>& open) {
        QStringList rows;
        QTimer::singleShot(0, window, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            auto* tree =
                dialog ? dialog->findChild<QTreeWidget*>(QStringLiteral("tvwMaps")) : nullptr;
            for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) {
                const QTreeWidgetItem* row = tree->topLevelItem(i);
                rows << row->text(1) + (row->childCount()
                                            ? QStringLiteral(" / ") + row->child(0)->text(0)
                                            : QString());
            }
            if (dialog)
                dialog->reject();
        });
        open();
        return rows;
    };
    QDir().mkpath(home.File(QStringLiteral("games")));
    const QString reply = saveAs(QStringLiteral("reply"));
    newMap(QStringLiteral("Turn 3"));
    const QString next = saveAs(QStringLiteral("next"));
    ASSERT_TRUE(QFile::copy(next, home.File(QStringLiteral("games/kept.krf"))));

    // Opening a file compares it with the newest other file of its game.
    QLabel* status = window->Review()->FileLabel();
    ASSERT_TRUE(CGameCommands::OpenFile(next));
    QCoreApplication::processEvents();
    ASSERT_TRUE(status->isVisible());
    EXPECT_TRUE(status->text().startsWith(QStringLiteral("Earlier maps unchanged since reply.krf")))
        << status->text().toStdString();

    // Turn 1 altered by hand in another file of the game.
    CMapState::SwitchToMapAt(1);
    move(unitOf(QStringLiteral("blue_arm")), QPoint(340, 257));
    saveAs(QStringLiteral("altered"));
    ASSERT_TRUE(CGameCommands::OpenFile(next));
    const std::int16_t openedDirty = Root().Game()->Dirty();
    const std::int32_t openedUndo = Root().ActionMgr().UndoPos();
    QCoreApplication::processEvents();
    EXPECT_TRUE(status->text().startsWith(QStringLiteral("1 earlier map differs from altered.krf")))
        << status->text().toStdString();
    const QStringList altered =
        mapsListed([&] { Q_EMIT status->linkActivated(QStringLiteral("#maps")); });
    ASSERT_EQ(altered.size(), 3);
    EXPECT_TRUE(altered[0].startsWith(QStringLiteral("changed: 1 moved / ")))
        << altered[0].toStdString();
    EXPECT_TRUE(altered[0].contains(QStringLiteral("(340, 257)"))) << altered[0].toStdString();
    EXPECT_EQ(altered.mid(1), QStringList({QStringLiteral("same"), QStringLiteral("same")}));

    // File > Compare With File on a copy that kept the history.
    gui->Open.Choose(home.File(QStringLiteral("games/")), QStringLiteral("kept"),
                     QStringLiteral("krf"));
    EXPECT_EQ(
        mapsListed([&] { item("mnuFile", "mnuFileCompareWithFile")->trigger(); }),
        QStringList({QStringLiteral("same"), QStringLiteral("same"), QStringLiteral("same")}));

    // Another game's file is refused with a word.
    newGame();
    saveAs(QStringLiteral("other"));
    ASSERT_TRUE(CGameCommands::OpenFile(next));
    gui->Open.Choose(home.File(QStringLiteral("games/")), QStringLiteral("other"),
                     QStringLiteral("krf"));
    const std::size_t boxes = gui->Boxes.Boxes.size();
    EXPECT_EQ(mapsListed([&] { item("mnuFile", "mnuFileCompareWithFile")->trigger(); }),
              QStringList());
    ASSERT_EQ(gui->Boxes.Boxes.size(), boxes + 1);
    EXPECT_TRUE(gui->Boxes.Boxes.back().Text.contains(QStringLiteral("another game")));
    // Comparing never marks the open game or adds to its history.
    EXPECT_EQ(Root().Game()->Dirty(), openedDirty);
    EXPECT_EQ(Root().ActionMgr().UndoPos(), openedUndo);
}

} // namespace
