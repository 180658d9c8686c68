#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class CGame;
class QObject;

// Send to Opponent: hands a saved game file to the desktop's mail program
// through xdg-email, and shows the file's folder when no mail program can be
// started, so the player can attach the file by hand. The caller saves first.
class CMailSender
{
public:
    enum class Outcome
    {
        MailStarted,
        FolderShown,
        Failed
    };

    // "Korvane: <game name>, <active map name>"; a game without an active
    // map gives just its name after the colon.
    static QString Subject(const CGame& game);

    // Starts "xdg-email --attach FILE --subject SUBJECT" (found on PATH) and
    // returns at once: the process is watched through its signals, so the
    // window never waits for it. done is called once, from the event loop:
    // MailStarted when xdg-email exits successfully; when it cannot start or
    // reports a failure, the file's folder is opened and done gets
    // FolderShown or Failed. A mail program that keeps xdg-email running
    // until its window closes is neither waited for nor stopped, not even
    // when owner, which holds the process, goes away.
    void Send(const QString& file, const QString& subject, QObject* owner,
              std::function<void(Outcome)> done) const;

    // Opens a folder; QDesktopServices::openUrl unless replaced.
    std::function<bool(const QUrl&)> OpenFolder;
};
