#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>

class CGame;

// The commands that replace the open game: a new game of a chosen module, or
// a game file. Each offers a modified game for saving first, shows the
// progress window while it works, and keeps the current game (with its undo
// history) whenever the new one cannot be had.
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

private:
    static bool hasModules();
    static bool openFile(const QString& path, bool offerToSave);
};
