#pragma once

// Used by the window tests only: they link the UI and know where the build
// put the modules it ships.

#include "core/CKorvane.h"
#include "core/FNewGameDlg.h"
#include "support/ContextTestSupport.h"
#include "support/RootFixture.h"
#include "support/ScriptedFileDlg.h"
#include "support/ScriptedGui.h"
#include "ui/app/CGameCommands.h"
#include "ui/app/CWidgetGui.h"
#include "ui/app/mdiMain.h"

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
    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<WindowGui>();
        gui = made.get();
        return made;
    }

    WindowGui* gui = nullptr;
    mdiMain* window = nullptr;
};
