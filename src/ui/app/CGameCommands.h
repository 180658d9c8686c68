#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

class CGame;

// The commands that replace the open game: a new game of a chosen module, or
// a game file. Each offers a modified game for saving first, shows the
// progress window while it works, and keeps the current game (with its undo
// history, under its own module) whenever the new one cannot be had. A
// module stays active only with a game of it: when there was no game, a
// failure leaves no module active and the board empty.
class CGameCommands
{
    Q_DECLARE_TR_FUNCTIONS(CGameCommands)

public:
    // "You currently don't have any Korvane Modules loaded on your system!"
    // when no module is installed; otherwise asks for the module.
    static bool NewGame();
    // Asks for a file with the open-file dialog and opens it.
    static bool OpenGame();
    // Opens the named file (recent files, dropped files). A file that is not a
    // game of an installed module is refused with a message.
    static bool OpenFile(const QString& path);
    // Shows the replacement of the open game: the old one is torn down in
    // slices, the undo history cleared and every window told.
    static void ReplaceGame(std::shared_ptr<CGame> game);
    // Without a game no module stays active, so the board shows its hint
    // and the palette is empty rather than a module's bare board.
    static void DropIdleModule();

private:
    static bool hasModules();
    static bool openFile(const QString& path, bool offerToSave);
    // Activates the context at position and shows the game that make builds
    // under it (null when it cannot, having told the user why), with status
    // in the progress window. False, and the game and context of before
    // shown again, when either step fails.
    static bool replaceUnder(std::int32_t position, const QString& status,
                             const std::function<std::shared_ptr<CGame>()>& make);
};
