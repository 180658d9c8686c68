#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class CGame;

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

    // How long xdg-email may run before it counts as started; the window
    // waits that long at most.
    static constexpr int HandOverMilliseconds = 3000;

    // "Korvane: <game name>, <active map name>"; a game without an active
    // map gives just its name after the colon.
    static QString Subject(const CGame& game);

    // Runs "xdg-email --attach FILE --subject SUBJECT" (found on PATH);
    // when it cannot start or reports a failure, opens the file's folder.
    Outcome Send(const QString& file, const QString& subject);

    // Opens a folder; QDesktopServices::openUrl unless replaced.
    std::function<bool(const QUrl&)> OpenFolder;
};
