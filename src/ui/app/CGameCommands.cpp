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
#include "core/KorvaneError.h"
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
    return replaceUnder(position, tr("Creating a new game..."), [] {
        const std::shared_ptr<IGameContext> context = Root().Context();
        try {
            return context->CreateDefaultGame();
        } catch (const KorvaneError& failure) {
            FMessageBox::Tell(tr("The module '%1' cannot start a new game.\n\n%2")
                                  .arg(context->Caption(), failure.Description()),
                              FMessageBox::Icon::Exclamation);
            return std::shared_ptr<CGame>();
        }
    });
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

    if (!replaceUnder(position, tr("Opening '%1'...").arg(fileName),
                      [&root, &path]() -> std::shared_ptr<CGame> {
                          root.SetGame(nullptr);
                          return root.PersistMgr().LoadGameFromFile(path) ? root.Game() : nullptr;
                      }))
        return false;
    CRecentFiles::Add(QFileInfo(path).absoluteFilePath());
    return true;
}

bool CGameCommands::replaceUnder(std::int32_t position, const QString& status,
                                 const std::function<std::shared_ptr<CGame>()>& make)
{
    CKorvane& root = Root();
    const std::shared_ptr<CGame> previousGame = root.Game();
    const std::shared_ptr<IGameContext> previousContext = root.Context();
    std::shared_ptr<CGame> game;
    {
        const CBusyScope busy(true);
        if (MMain::SwitchContext(root.ContextMgr().Context(position))) {
            if (busy.Window())
                busy.Window()->UpdateStatus(status, 0);
            game = make();
        }
    }
    // The game of before is the current one until the new one is shown.
    root.SetGame(previousGame);
    if (game) {
        ReplaceGame(std::move(game));
        return true;
    }
    // Windows that followed the other module show the kept game again.
    if (previousGame && root.Context() != previousContext) {
        MMain::SwitchContext(previousContext);
        root.EventMgr().NotifyOfNewGame(nullptr);
    }
    DropIdleModule();
    return false;
}

void CGameCommands::DropIdleModule()
{
    if (!Root().Game())
        MMain::DropContext();
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
