#include "MMain.h"

#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"

namespace MMain {

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
    // Opening the file needs the context manager and the persistence manager.
}

void ShutdownApplication()
{
    ReleaseRoot();
}

} // namespace MMain
