#include "CGameCommands.h"

#include "actions/CActionMgr.h"
#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CBusyScope.h"
#include "core/CGameTerminator.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "core/FNewGameDlg.h"
#include "core/FProgressWin.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "persist/CPersistMgr.h"
#include "ui/app/CRecentFiles.h"

#include <QFileInfo>

bool CGameCommands::hasModules()
{
    if (Root().ContextMgr().ContextCount() > 0)
        return true;
    FMessageBox::Tell(tr("You currently don't have any Korvane Modules loaded on your system!"),
                      FMessageBox::Icon::Exclamation);
    return false;
}

bool CGameCommands::NewGame()
{
    CKorvane& root = Root();
    if (!hasModules() || !root.PersistMgr().AbandonCurrentGame())
        return false;
    CGui* gui = root.Gui();
    FNewGameDlg* dialog = gui ? gui->NewGameDlg() : nullptr;
    if (!dialog || !dialog->Display())
        return false;
    const std::int32_t position = root.ContextMgr().PosOfContext(dialog->SelectedGameId());
    if (position == 0)
        return false;
    if (!MMain::SwitchContext(root.ContextMgr().Context(position)))
        return false;
    std::shared_ptr<CGame> game;
    {
        const CBusyScope busy(true);
        if (busy.Window())
            busy.Window()->UpdateStatus(tr("Creating a new game..."), 0);
        game = root.Context()->CreateDefaultGame();
    }
    ReplaceGame(std::move(game));
    return true;
}

bool CGameCommands::OpenGame()
{
    if (!hasModules() || !Root().PersistMgr().AbandonCurrentGame())
        return false;
    const QString path = Root().PersistMgr().SelectFileToOpen();
    return !path.isEmpty() && openFile(path, false);
}

bool CGameCommands::OpenFile(const QString& path)
{
    return openFile(path, true);
}

bool CGameCommands::openFile(const QString& path, bool offerToSave)
{
    CKorvane& root = Root();
    const QString fileName = QFileInfo(path).fileName();
    const QString contextId = root.PersistMgr().ContextIdFromFile(path);
    const std::int32_t position =
        contextId.isEmpty() ? 0 : root.ContextMgr().PosOfContext(contextId);
    if (position == 0) {
        FMessageBox::Tell(tr("File '%1' is either invalid or you do not have the corresponding "
                             "Module installed.")
                              .arg(fileName),
                          FMessageBox::Icon::Exclamation);
        return false;
    }
    if (offerToSave && !root.PersistMgr().AbandonCurrentGame())
        return false;

    // The open game keeps its context: when the file fails to load, that
    // context comes back and the game is shown as it was.
    const std::shared_ptr<CGame> previousGame = root.Game();
    const std::shared_ptr<IGameContext> previousContext = root.Context();
    bool loaded = false;
    {
        const CBusyScope busy(true);
        if (MMain::SwitchContext(root.ContextMgr().Context(position))) {
            if (busy.Window())
                busy.Window()->UpdateStatus(tr("Opening '%1'...").arg(fileName), 0);

            root.SetGame(nullptr);
            loaded = root.PersistMgr().LoadGameFromFile(path);
        }
    }
    if (!loaded) {
        root.SetGame(previousGame);
        // Windows that followed the other module show the kept game again.
        if (previousContext && root.Context() != previousContext) {
            MMain::SwitchContext(previousContext);
            root.EventMgr().NotifyOfNewGame(nullptr);
        }
        return false;
    }
    const std::shared_ptr<CGame> game = root.Game();
    root.SetGame(previousGame);
    ReplaceGame(game);
    CRecentFiles::Add(QFileInfo(path).absoluteFilePath());
    return true;
}

void CGameCommands::ReplaceGame(std::shared_ptr<CGame> game)
{
    CKorvane& root = Root();
    std::shared_ptr<CGame> old = root.Game();
    root.SetGame(std::move(game));
    root.ActionMgr().Clear();
    if (old)
        CGameTerminator::Start(std::move(old));
    root.EventMgr().NotifyOfNewGame(nullptr);
}
