#include "actions/CActionNewMapGroup.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "render/CMapExport.h"
#include "support/TestContext.h"
#include "support/WindowFixture.h"
#include "ui/board/mdcBoard.h"
#include "ui/docks/UMapTabs.h"
#include "ui/docks/frmMapText.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>

namespace {

class MainWindow : public WindowFixture
{
protected:
    QString shown(const char* menu, const char* name) const
    {
        QAction* found = item(menu, name);
        if (!found->isVisible())
            return QStringLiteral("(hidden)");
        return found->text() + (found->isEnabled() ? QString() : QStringLiteral(" (off)"));
    }
};

TEST_F(MainWindow, MenusFollowTheGameTheHistoryAndTheModule)
{
    EXPECT_EQ(shown("mnuAction", "mnuActionUndo"), QStringLiteral("Can't Undo (off)"));
    EXPECT_EQ(shown("mnuGame", "mnuGameAddMap"), QStringLiteral("Can't Add Map (off)"));
    EXPECT_FALSE(item("mnuFile", "mnuFileSaveGame")->isEnabled());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Korvane"));

    newGame();
    const auto palette = window->Palette()->findChild<QToolBox*>();
    EXPECT_EQ(palette->count(), 4);
    EXPECT_EQ(palette->itemText(0), QStringLiteral("Red"));
    EXPECT_EQ(shown("mnuTools", "mnuToolsCustom1"), QStringLiteral("Reset &Moved"));
    EXPECT_EQ(shown("mnuTools", "mnuToolsCustom3"), QStringLiteral("(hidden)"));
    EXPECT_EQ(shown("mnuAction", "mnuActionCustom1"), QStringLiteral("(hidden)"));
    EXPECT_FALSE(window->windowTitle().contains(QLatin1Char('*')));

    dropCounter(100, 100);
    EXPECT_TRUE(window->windowTitle().endsWith(QStringLiteral("* - Korvane")));
    // The items follow the model before any menu opens: their shortcuts
    // act on that state.
    QCoreApplication::processEvents();
    const QAction* undo = window->findChild<QAction*>(QStringLiteral("mnuActionUndo"));
    EXPECT_TRUE(undo->isEnabled() && undo->text() == QStringLiteral("&Undo Place New Unit"));
    EXPECT_EQ(shown("mnuAction", "mnuActionRedo"), QStringLiteral("Can't Redo (off)"));
    item("mnuAction", "mnuActionUndo")->trigger();
    EXPECT_EQ(shown("mnuAction", "mnuActionUndo"), QStringLiteral("Can't Undo (off)"));
    EXPECT_EQ(shown("mnuAction", "mnuActionRedo"), QStringLiteral("&Redo Place New Unit"));

    // A second map: the tabs follow, and a tab click shows the other map.
    UMapTabs* tabs = window->MapTabs();
    const std::shared_ptr<CMapGroup> group = Root().Game()->ActiveMapGroup();
    const std::int32_t maps = group->Maps().Count();
    newMap(QStringLiteral("Turn & Two"));
    ASSERT_EQ(tabs->count(), maps + 1);
    EXPECT_EQ(tabs->currentIndex(), maps);
    EXPECT_EQ(tabs->tabText(maps), QStringLiteral("Turn && Two"));
    tabs->setCurrentIndex(0);
    EXPECT_EQ(group->ActiveMap(), group->Maps().Item(1));
    item("mnuView", "mnuViewLastMap")->trigger();
    EXPECT_EQ(tabs->currentIndex(), maps);
    item("mnuView", "mnuViewPreviousMap")->trigger();
    EXPECT_EQ(group->ActiveMap(), group->Maps().Item(maps));
    item("mnuView", "mnuViewFirstMap")->trigger();
    EXPECT_EQ(tabs->currentIndex(), 0);

    // Removing asks first; a yes removes the shown map (what removal does to
    // the history is the action's own rule, tested with it).
    const QString removed = group->ActiveMap()->Name();
    EXPECT_EQ(shown("mnuGame", "mnuGameRemoveMap"),
              QStringLiteral("&Remove '") + removed + QLatin1Char('\''));
    gui->Boxes.Answers = {FMessageBox::Answer::No};
    item("mnuGame", "mnuGameRemoveMap")->trigger();
    EXPECT_EQ(group->Maps().Count(), maps + 1);
    EXPECT_EQ(lastMessage(),
              QStringLiteral("Removal of '") + removed +
                  QStringLiteral("' cannot be undone.\n\nDo you want to continue ?"));
    gui->Boxes.Answers = {FMessageBox::Answer::Yes};
    item("mnuGame", "mnuGameRemoveMap")->trigger();
    EXPECT_EQ(group->Maps().Count(), maps);
    EXPECT_EQ(tabs->count(), maps);
    EXPECT_EQ(tabs->tabData(tabs->currentIndex()).toString(), group->ActiveMap()->Id());

    // A closed archive refuses new and removed maps and shows a lock.
    group->SetFrozen(true);
    EXPECT_EQ(shown("mnuGame", "mnuGameAddMap"), QStringLiteral("Can't Add Map (off)"));
    EXPECT_EQ(shown("mnuGame", "mnuGameRemoveMap"), QStringLiteral("Can't Remove Map (off)"));
    tabs->Rebuild();
    EXPECT_FALSE(tabs->tabIcon(0).isNull());
    group->SetFrozen(false);

    // Ten archives: the menu lists the first nine.
    for (int i = 0; i < 9; ++i) {
        auto newGroup = std::make_shared<CActionNewMapGroup>();
        newGroup->SetName(QStringLiteral("Turn %1").arg(10 + i));
        Root().ActionMgr().Execute(newGroup);
    }
    ASSERT_EQ(Root().Game()->MapGroups().Count(), 10);
    EXPECT_EQ(shown("mnuView", "mnuViewArch2"), QStringLiteral("&2.  'Turn 10'"));
    EXPECT_EQ(shown("mnuView", "mnuViewArch9"), QStringLiteral("&9.  'Turn 17'"));
    EXPECT_EQ(window->findChild<QAction*>(QStringLiteral("mnuViewArch10")), nullptr);
    item("mnuView", "mnuViewArch1")->trigger();
    EXPECT_EQ(Root().Game()->ActiveMapGroup(), group);
    item("mnuView", "mnuViewArchCurrent")->trigger();
    EXPECT_EQ(Root().Game()->ActiveMapGroup(), Root().Game()->MapGroups().Item(10));
    EXPECT_EQ(tabs->count(), 1);

    // A module's own actions: as many items as it offers.
    auto context = std::make_shared<TestContext>();
    context->ActionList().AddItem(std::make_shared<CActionNewMap>());
    context->ActionList().AddItem(std::make_shared<CActionNewMap>());
    Root().SetContext(context);
    Root().EventMgr().NotifyOfNewContext(nullptr);
    EXPECT_EQ(shown("mnuAction", "mnuActionCustom1"), QStringLiteral("New Map"));
    EXPECT_EQ(shown("mnuAction", "mnuActionCustom2"), QStringLiteral("New Map"));
    EXPECT_EQ(shown("mnuAction", "mnuActionCustom3"), QStringLiteral("(hidden)"));
    Root().SetContext(nullptr);
}

TEST_F(MainWindow, FilesAreSavedOpenedAndRefusedWithoutLosingTheGame)
{
    newGame();
    dropCounter(120, 80);
    const QString path = home.File(QStringLiteral("games/turn1.krf"));
    QDir().mkpath(QFileInfo(path).absolutePath());
    gui->Save.Choose(home.File(QStringLiteral("games/")), QStringLiteral("turn1"),
                     QStringLiteral("krf"));
    item("mnuFile", "mnuFileSaveGameAs")->trigger();
    ASSERT_TRUE(QFileInfo::exists(path));
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("turn1.krf - Korvane")));
    EXPECT_FALSE(window->windowTitle().contains(QLatin1Char('*')));
    EXPECT_EQ(item("mnuFile", "mnuFileRecent1")->text(), QStringLiteral("&1 ") + path);

    // The exported picture is the renderer's, byte for byte.
    gui->Save.Choose(home.File(QStringLiteral("games/")), QStringLiteral("board"),
                     QStringLiteral("png"));
    item("mnuFile", "mnuFileExport")->trigger();
    EXPECT_EQ(
        home.ReadFile(QStringLiteral("games/board.png")),
        CMapExport::Render(Root().Game()->ActiveMapGroup()->ActiveMap(), Root().Context(), 1.0)
            .Png);

    // A damaged file and a file of no module are refused; the game, its
    // module and its history stay.
    dropCounter(200, 80);
    const std::shared_ptr<CGame> game = Root().Game();
    const QByteArray saved = home.ReadFile(QStringLiteral("games/turn1.krf"));
    gui->Boxes.Answers = {FMessageBox::Answer::No};
    EXPECT_FALSE(
        CGameCommands::OpenFile(home.WriteFile("games/half.krf", saved.left(saved.size() / 2))));
    EXPECT_TRUE(lastMessage().startsWith(QStringLiteral("File '"))) << lastMessage().toStdString();
    EXPECT_EQ(Root().Game(), game);
    EXPECT_NE(Root().ActionMgr().NextUndoAction(), nullptr);
    EXPECT_EQ(palettePages(), 4);

    const QString foreign = home.WriteFile(QStringLiteral("games/notes.krf"), "just some notes");
    EXPECT_FALSE(CGameCommands::OpenFile(foreign));
    EXPECT_EQ(lastMessage(), QStringLiteral("File 'notes.krf' is either invalid or you do not have "
                                            "the corresponding Module installed."));
    EXPECT_EQ(Root().Game(), game);

    // Closing with changes: Cancel keeps the window, Yes saves and closes.
    gui->Boxes.Answers = {FMessageBox::Answer::Cancel};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    gui->Boxes.Answers = {FMessageBox::Answer::Yes};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(Root().Game()->Dirty(), 0);

    // The saved game opens again with both counters, dropped from a file
    // manager onto the board; other files are not taken.
    window->show();
    QMimeData files;
    QWidget* viewport = window->findChild<mdcBoard*>()->viewport();
    const auto offer = [&](const QString& file) {
        files.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(40, 40), Qt::CopyAction, &files, Qt::LeftButton, {});
        QDragMoveEvent move(QPoint(50, 50), Qt::CopyAction, &files, Qt::LeftButton, {});
        return QApplication::sendEvent(viewport, &enter) && enter.isAccepted() &&
               QApplication::sendEvent(viewport, &move) && move.isAccepted();
    };
    EXPECT_FALSE(offer(home.File(QStringLiteral("games/board.png"))));
    ASSERT_TRUE(offer(path));
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(Root().Game(), game) << "opened only once the drop is over";
    QCoreApplication::processEvents();
    EXPECT_NE(Root().Game(), game);
    EXPECT_EQ(Root().Game()->ActiveMapGroup()->ActiveMap()->Units()->Count(),
              game->ActiveMapGroup()->ActiveMap()->Units()->Count());
    EXPECT_EQ(Root().ActionMgr().NextUndoAction(), nullptr);
}

// Typed map text becomes one edit before another map is shown; a protected
// map's text is read-only; Alt hands the focus to the window; a floating
// text window comes back where it was.
TEST_F(MainWindow, MapTextIsCommittedOnceBeforeAnotherMapShowsAndComesBackWhereItWas)
{
    newGame();
    newMap(QStringLiteral("Turn 2"));
    Root().ActionMgr().Clear();
    const std::shared_ptr<CMapGroup> group = Root().Game()->ActiveMapGroup();
    const std::shared_ptr<CMap> first = group->Maps().Item(1);
    const std::shared_ptr<CMap> second = group->ActiveMap();
    const int last = group->Maps().Count() - 1;
    second->SetText(QStringLiteral("Rain."));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window; }));
    const auto clickTab = [tabs = window->MapTabs()](int index) {
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    };
    clickTab(0);
    clickTab(last);
    frmMapText* dock = window->MapText();
    dock->Show();
    auto* box = dock->findChild<QPlainTextEdit*>(QStringLiteral("txtMapText"));
    const auto type = [box](const QString& text) {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(box, text);
    };
    EXPECT_EQ(box->toPlainText(), "Rain.");
    // Leaving the box without a change records nothing.
    box->setFocus();
    clickTab(last);
    EXPECT_EQ(Root().ActionMgr().NextUndoAction(), nullptr);

    type(QStringLiteral(" Mud"));
    type(QStringLiteral(" everywhere."));
    box->setFocus();
    clickTab(0);
    EXPECT_EQ(group->ActiveMap(), first);
    EXPECT_EQ(second->Text(), "Rain. Mud everywhere.");
    EXPECT_EQ(Root().ActionMgr().NextUndoAction()->Caption(), "Edit Map Text");
    // One undo step brings the edited map back with its old text.
    Root().ActionMgr().Undo();
    EXPECT_EQ(group->ActiveMap(), second);
    EXPECT_EQ(box->toPlainText(), "Rain.");
    EXPECT_EQ(Root().ActionMgr().NextUndoAction(), nullptr);

    // A switch no gesture announced keeps typed text for when the map returns.
    box->setFocus();
    box->setPlainText(QStringLiteral("Fog."));
    CMapState::SwitchToMap(first);
    CMapState::SwitchToMap(second);
    EXPECT_EQ(box->toPlainText(), "Fog.");
    type(QStringLiteral(" Hold the ford."));
    QTest::keyClick(box, Qt::Key_Alt, Qt::AltModifier);
    EXPECT_EQ(second->Text(), "Fog. Hold the ford.");
    EXPECT_EQ(QApplication::focusWidget(), window);

    first->SetText(QStringLiteral("Sealed orders."));
    first->SetFrozen(true);
    clickTab(0);
    type(QStringLiteral("x"));
    clickTab(0);
    EXPECT_EQ(box->toPlainText(), "Sealed orders.");
    EXPECT_EQ(first->Text(), "Sealed orders.");

    dock->setFloating(true);
    const QRect placed(140, 120, 330, 260);
    dock->setGeometry(placed);
    QTest::qWait(0);
    dock->hide();
    frmMapText restarted(window);
    restarted.Show();
    EXPECT_TRUE(restarted.isFloating());
    EXPECT_EQ(restarted.geometry(), placed);
}

} // namespace
