#include "CMailSender.h"

#include "core/CTraceScope.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>

#include <memory>

QString CMailSender::Subject(const CGame& game)
{
    QString subject = QStringLiteral("Korvane: ") + game.Name();
    const auto group = game.ActiveMapGroup();
    if (const auto map = group ? group->ActiveMap() : nullptr)
        subject += QStringLiteral(", ") + map->Name();
    return subject;
}

namespace {

// QProcess kills what it still runs when destroyed, which would close the
// mail program's window along with it: this one lets it go instead.
class HandOverProcess : public QProcess
{
public:
    using QProcess::QProcess;
    ~HandOverProcess() override
    {
        if (state() != QProcess::NotRunning)
            setProcessState(QProcess::NotRunning);
    }
};

} // namespace

void CMailSender::Send(const QString& file, const QString& subject, QObject* owner,
                       std::function<void(Outcome)> done) const
{
    CTraceScope scope("Send", "CMailSender");
    const QFileInfo info(file);
    scope.Denote(QStringLiteral("File = ") + info.absoluteFilePath());

    auto* mail = new HandOverProcess(owner);
    mail->setProcessChannelMode(QProcess::ForwardedChannels);
    const QUrl folder = QUrl::fromLocalFile(info.absolutePath());
    // Both signals may come (a crash reports an error, then the exit); the
    // first ending counts.
    auto finish = [mail, folder, openFolder = OpenFolder, done = std::move(done),
                   ended = std::make_shared<bool>(false)](bool succeeded) {
        if (*ended)
            return;
        *ended = true;
        mail->deleteLater();
        Outcome outcome = Outcome::MailStarted;
        if (!succeeded) {
            const bool shown = openFolder ? openFolder(folder) : QDesktopServices::openUrl(folder);
            outcome = shown ? Outcome::FolderShown : Outcome::Failed;
        }
        if (done)
            done(outcome);
    };
    // Queued: a program that is not there may be reported inside start(),
    // and the caller hears of the outcome only once Send has returned.
    auto failedToStart = [mail, finish](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            CTraceScope trace("Send", "CMailSender");
            trace.Denote(QStringLiteral("xdg-email cannot start: ") + mail->errorString());
            finish(false);
        }
    };
    QObject::connect(mail, &QProcess::errorOccurred, mail, failedToStart, Qt::QueuedConnection);
    QObject::connect(mail, &QProcess::finished, mail,
                     [finish](int exitCode, QProcess::ExitStatus status) {
                         const bool succeeded = status == QProcess::NormalExit && exitCode == 0;
                         if (!succeeded) {
                             CTraceScope trace("Send", "CMailSender");
                             trace.Denote(QStringLiteral("xdg-email failed with %1").arg(exitCode));
                         }
                         finish(succeeded);
                     });
    mail->start(QStringLiteral("xdg-email"), {QStringLiteral("--attach"), info.absoluteFilePath(),
                                              QStringLiteral("--subject"), subject});
}
