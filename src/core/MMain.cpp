#include "MMain.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CBusyScope.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "core/FProgressWin.h"
#include "core/KorvaneError.h"
#include "model/CGameEventMgr.h"
#include "persist/CPersistMgr.h"

#include <QCoreApplication>

namespace MMain {

bool SwitchContext(const std::shared_ptr<IGameContext>& context)
{
    CKorvane& root = Root();
    if (root.Context() && root.Context()->Id() != context->Id())
        DropContext();
    if (root.Context())
        return true;

    const CBusyScope busy(true);
    root.SetContext(context);
    try {
        context->Activate(busy.Window());
    } catch (const KorvaneError& failure) {
        root.SetContext(nullptr);
        FMessageBox::Tell(
            QCoreApplication::translate("MMain", "The module '%1' cannot be loaded.\n\n%2")
                .arg(context->Caption(), failure.Description()),
            FMessageBox::Icon::Exclamation);
        return false;
    }
    root.EventMgr().NotifyOfNewContext(nullptr);
    return true;
}

void DropContext()
{
    CKorvane& root = Root();
    const std::shared_ptr<IGameContext> old = root.Context();
    if (!old)
        return;
    root.SetContext(nullptr);
    root.EventMgr().NotifyOfNewContext(nullptr);
    old->Deactivate();
}

QString JoinArguments(const QStringList& arguments)
{
    QStringList parts;
    parts.reserve(arguments.size());
    for (const QString& argument : arguments) {
        if (argument.contains(QLatin1Char(' ')))
            parts << QLatin1Char('"') + argument + QLatin1Char('"');
        else
            parts << argument;
    }
    return parts.join(QLatin1Char(' '));
}

QString ExtractFileArgument(const QString& commandLine)
{
    QString s = commandLine;
    if (s.size() < 5)
        return QString();
    if (s.startsWith(QLatin1Char('"'))) {
        const qsizetype close = s.indexOf(QLatin1Char('"'), 1);
        if (close < 0)
            return QString();
        s = s.mid(1, close - 1);
    }
    if (CUtility::FileExists(s))
        return s;
    const qsizetype blank = s.indexOf(QLatin1Char(' '));
    if (blank < 0)
        return QString();
    s = s.left(blank);
    return CUtility::FileExists(s) ? s : QString();
}

void HandleCommandLine(const QString& commandLine)
{
    CTraceScope scope("HandleCommandLine", "MMain");
    const QString line = commandLine.trimmed();
    if (line.isEmpty())
        return;
    scope.Denote(line);
    const QString path = ExtractFileArgument(line);
    if (path.isEmpty())
        return;
    CKorvane& root = Root();
    const QString contextId = root.PersistMgr().ContextIdFromFile(path);
    if (contextId.isEmpty())
        return;
    const CBusyScope busy(false);
    // A file of a module that is not installed is ignored.
    const std::int32_t position = root.ContextMgr().PosOfContext(contextId);
    if (position == 0)
        return;
    if (!SwitchContext(root.ContextMgr().Context(position)))
        return;
    if (root.PersistMgr().LoadGameFromFile(path))
        root.EventMgr().NotifyOfNewGame(nullptr);
}

void ShutdownApplication()
{
    ReleaseRoot();
}

} // namespace MMain
