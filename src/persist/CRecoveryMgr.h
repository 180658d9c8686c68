#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QTimer>

#include <memory>

class FMessageBox;
class QLockFile;

// Autosave for crash recovery. While the root's current game has unsaved
// changes, a copy of it is written every interval (settings section
// "CRecoveryMgr", key "AutosaveSeconds", 60 by default) into the cache's
// recovery folder, atomically and without touching the game's own file or
// its Dirty counter; once the game has no unsaved changes the copy goes.
// Each process names its copy after an id of its own and holds a lock file
// beside it for as long as the copy exists, so a Korvane never offers the
// copy of another one that is still running. A copy whose lock is free was
// left by a crash or a kill; OfferRecovery finds it at the next start.
//
// The program calls OfferRecovery and Start once at start, GameSaved after
// a save or when changes are discarded, and Exit when it ends normally.
class CRecoveryMgr
{
    Q_DECLARE_TR_FUNCTIONS(CRecoveryMgr)

public:
    static constexpr const char* SettingsSection = "CRecoveryMgr";
    static constexpr const char* IntervalKey = "AutosaveSeconds";
    static constexpr int DefaultIntervalSeconds = 60;

    CRecoveryMgr();
    // Leaves the copy where it is, as a crash would, and frees the lock.
    ~CRecoveryMgr();
    CRecoveryMgr(const CRecoveryMgr&) = delete;
    CRecoveryMgr& operator=(const CRecoveryMgr&) = delete;

    // Watches the root's current game from now on, whichever it is, with
    // the interval read from the settings.
    void Start();
    // The game's file holds every change, or the changes were discarded:
    // the copy goes.
    void GameSaved();
    // The program ends normally: stops watching, and nothing of this
    // process stays behind.
    void Exit();

    // Writes the copy now when the game has unsaved changes and removes it
    // when it has none. False when a copy was due and could not be written.
    bool WriteCopy();
    // This process's copy, whether written or not.
    QString CopyPath() const;

    // Offers the copies left by Korvanes that no longer run, newest first:
    // "Restore unsaved changes to '<game>' from <time>?". Yes activates the
    // game's module and makes the copy the current game, marked as changed
    // and with its original file name (so Save writes the original); this
    // process then keeps it. No deletes the copy. True once a game was
    // restored; later copies wait for the next start.
    bool OfferRecovery(FMessageBox& messages);

private:
    // What a copy's info file says; the copy itself is a plain game file.
    struct Info
    {
        QString GameName;
        QString OriginalPath;
        QDateTime Saved;
    };

    bool lock();
    void removeCopy();
    bool restore(const QString& copy, const Info& info, FMessageBox& messages);
    static Info readInfo(const QString& base);

    QString m_base;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_timer;
};
