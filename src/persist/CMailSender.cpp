#include "CMailSender.h"

#include "core/CTraceScope.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>

QString CMailSender::Subject(const CGame& game)
{
    QString subject = QStringLiteral("Korvane: ") + game.Name();
    const auto group = game.ActiveMapGroup();
    if (const auto map = group ? group->ActiveMap() : nullptr)
        subject += QStringLiteral(", ") + map->Name();
    return subject;
}

namespace {

// A process that may be left running when it goes out of scope: QProcess
// kills what it still runs when destroyed, which would close the mail
// program's window along with it.
class HandOverProcess : public QProcess
{
public:
    void LetGo() { setProcessState(QProcess::NotRunning); }
};

} // namespace

CMailSender::Outcome CMailSender::Send(const QString& file, const QString& subject)
{
    CTraceScope scope("Send", "CMailSender");
    const QFileInfo info(file);
    scope.Denote(QStringLiteral("File = ") + info.absoluteFilePath());

    HandOverProcess mail;
    mail.setProcessChannelMode(QProcess::ForwardedChannels);
    mail.start(QStringLiteral("xdg-email"), {QStringLiteral("--attach"), info.absoluteFilePath(),
                                             QStringLiteral("--subject"), subject});
    if (mail.waitForStarted()) {
        // Still running after the wait means a mail program has the file
        // (some keep xdg-email waiting until their window closes).
        if (!mail.waitForFinished(HandOverMilliseconds) && mail.state() == QProcess::Running) {
            mail.LetGo();
            return Outcome::MailStarted;
        }
        if (mail.exitStatus() == QProcess::NormalExit && mail.exitCode() == 0)
            return Outcome::MailStarted;
        scope.Denote(QStringLiteral("xdg-email failed with %1").arg(mail.exitCode()));
    } else {
        scope.Denote(QStringLiteral("xdg-email cannot start: ") + mail.errorString());
    }

    const QUrl folder = QUrl::fromLocalFile(info.absolutePath());
    const bool shown = OpenFolder ? OpenFolder(folder) : QDesktopServices::openUrl(folder);
    return shown ? Outcome::FolderShown : Outcome::Failed;
}
