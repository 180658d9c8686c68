#pragma once

// Used by the window tests only: they link the UI and know where the build
// put the modules it ships.

#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionMgr.h"
#include "actions/CActionNewMap.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/FNewGameDlg.h"
#include "model/CMap.h"
#include "support/ContextTestSupport.h"
#include "support/RootFixture.h"
#include "support/ScriptedFileDlg.h"
#include "support/ScriptedGui.h"
#include "tokens/IToken.h"
#include "ui/app/CGameCommands.h"
#include "ui/app/CWidgetGui.h"
#include "ui/app/mdiMain.h"
#include "ui/board/CMapState.h"
#include "ui/docks/UTokenPalette.h"

#include <QAction>
#include <QMenu>
#include <QToolBox>

#include <QDir>
#include <QFile>

// A new-game dialog that picks the scripted game type; none cancels.
class ScriptedNewGameDlg : public FNewGameDlg
{
public:
    QString GameId;
    bool Display() override { return !GameId.isEmpty(); }
    QString SelectedGameId() const override { return GameId; }
};

// The program's own windows with message boxes, file dialogs and the
// right-click menu scripted.
class WindowGui : public CWidgetGui
{
public:
    ScriptedMessages Boxes;
    ScriptedFileDlg Save;
    ScriptedFileDlg Open;
    ScriptedNewGameDlg NewGame;
    ScriptedPopupMenu Popup;

    FMessageBox* Messages() override { return &Boxes; }
    FSaveFileDlg* SaveFileDlg() override { return &Save; }
    FOpenFileDlg* OpenFileDlg() override { return &Open; }
    FNewGameDlg* NewGameDlg() override { return &NewGame; }
    FPopupMenu* PopupMenu() override { return &Popup; }
};

// The main window on screen, over a home holding every module the build ships.
class WindowFixture : public RootFixture
{
protected:
    void SetUp() override
    {
        const QDir built(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR));
        QDir().mkpath(home.File(QStringLiteral("modules")));
        for (const QString& pack : built.entryList({QStringLiteral("*.krm")}, QDir::Files))
            ASSERT_TRUE(QFile::copy(built.filePath(pack), home.File("modules/" + pack)));
        RootFixture::SetUp();
        window = gui->MainWindow();
        window->resize(1000, 760);
        window->show();
    }
    // Border Skirmish's new game, chosen in the new-game dialog.
    void newGame()
    {
        gui->NewGame.GameId = QStringLiteral("krm_border_skirmish_by_korvane_v1");
        ASSERT_TRUE(CGameCommands::NewGame());
    }
    static std::shared_ptr<CMap> map() { return CMapState::ActiveMap(); }
    static void run(std::shared_ptr<IAction> action) { Root().ActionMgr().Execute(action); }
    // A new map of that name after the group's last, as Game > Add Map makes it.
    static void newMap(const QString& name)
    {
        auto action = std::make_shared<CActionNewMap>();
        action->SetName(name);
        run(action);
    }
    // The shown map's unit deleted, or given new data and caption, by an action.
    static void removeUnit(const std::shared_ptr<CUnit>& unit)
    {
        auto removal = std::make_shared<CActionDeleteUnit>();
        removal->SetMapId(map()->Id());
        removal->SetUnit(unit);
        run(removal);
    }
    static void editUnit(const std::shared_ptr<CUnit>& unit, const QString& data,
                         const QString& caption)
    {
        auto edit = std::make_shared<CActionEditUnit>();
        edit->SetMapId(map()->Id());
        edit->SetUnitId(unit->Id());
        edit->SetData(data);
        edit->SetUnitCaption(caption);
        run(edit);
    }
    // Opens the menu (as a click on its title would) and returns its item.
    QAction* item(const char* menu, const char* name) const
    {
        Q_EMIT window->findChild<QMenu*>(QLatin1String(menu))->aboutToShow();
        return window->findChild<QAction*>(QLatin1String(name));
    }
    // Drops a counter of the module's first token on the shown map.
    static void dropCounter(std::int32_t x = 150, std::int32_t y = 150)
    {
        Root().Context()->Tokens().Item(1)->HandleDrop(x, y);
    }
    int palettePages() const { return window->Palette()->findChild<QToolBox*>()->count(); }
    QString lastMessage() const
    {
        return gui->Boxes.Boxes.empty() ? QString() : gui->Boxes.Boxes.back().Text;
    }
    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<WindowGui>();
        gui = made.get();
        return made;
    }

    WindowGui* gui = nullptr;
    mdiMain* window = nullptr;
};
