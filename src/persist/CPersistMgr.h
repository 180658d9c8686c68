#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class CGame;

// Turns the user's save, save-as, open and close commands into file
// operations on the root's current game. File names come from the GUI's
// file dialogs, failures are told through its message boxes (titled with the
// program's name); without a dialog the command counts as cancelled, and a
// question without a message box takes its default answer. The last
// directory used is kept in the settings store (section "CPersistMgr", key
// "LastDir").
class CPersistMgr
{
    Q_DECLARE_TR_FUNCTIONS(CPersistMgr)

public:
    static constexpr const char* SettingsSection = "CPersistMgr";
    static constexpr const char* LastDirKey = "LastDir";

    // Saves under the game's file name, asking for one first when it has
    // none. True when the file was written: the game is then clean and the
    // undo history empty. A failed write shows "Disk write error!" and keeps
    // the game dirty with its history. Texts the file cannot hold whole are
    // named in a question first; No cancels the save (without a message box
    // the game is saved).
    bool SaveCurrentGame();
    // Like SaveCurrentGame, always asking for the name.
    bool SaveCurrentGameAs();
    // Called after every save that wrote the file, whichever command asked
    // for it (the save question before a game is replaced or the program
    // ends included), so that what follows a save is done in one place.
    // One observer at a time; an empty function removes it.
    void SetSavedObserver(std::function<void()> observer) { m_saved = std::move(observer); }
    // Asked before the current game is closed or replaced: offers to save a
    // modified game. True when the caller may go on.
    bool AbandonCurrentGame();

    // The context id named by a game file (its short code translated), read
    // from the file's first bytes only; "" when it is not a game file.
    QString ContextIdFromFile(const QString& fileName) const;
    // Reads a game written for the active context. Null when the file cannot
    // be used; the user has then been told which file and why. Nothing of the
    // current game changes either way.
    std::shared_ptr<CGame> FileToGame(const QString& fileName);
    // Reads the file and makes it the current game, with its file name,
    // directory and extension. False (and nothing changed) when it fails.
    bool LoadGameFromFile(const QString& fileName);
    // Asks for a game file to open; the full path, or "" when cancelled.
    QString SelectFileToOpen();

    // Where file dialogs start: the last directory used when it still
    // exists, else the current directory.
    static QString StartDirectory();
    // Keeps directory as the last one used.
    static void RememberDirectory(const QString& directory);

    // The first shown texts quoted, joined by separator, and "and N more".
    static QString LossyTextsSummary(const QStringList& texts, qsizetype shown,
                                     const QString& separator);

private:
    bool save(bool askForName);
    // Every save passes here first: there must be a game and an active
    // context, and no other save may be running (a modal dialog lets
    // window events through while it is open).
    bool MaySave() const;
    bool SelectFileToSave();
    // The file image of the current game and the texts it cannot hold
    // whole. False when the game cannot be written (too many units).
    bool GameToStream(QByteArray& image, QStringList& lossyTexts) const;
    bool MayChangeTexts(const QStringList& texts) const;
    bool WriteGameFile(const QByteArray& image);
    void refuseFile(const QString& fileName, const QString& reason) const;

    bool m_saving = false;
    std::function<void()> m_saved;
};
