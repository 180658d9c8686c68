#include "CResaveCommand.h"

#include "CTool.h"
#include "CToolSession.h"

#include <QTextStream>

QString CResaveCommand::Summary() const
{
    return QStringLiteral("Reads a game file and saves it again in the current format.");
}

QList<IToolCommand::Argument> CResaveCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The game file to read.")}};
}

QList<QCommandLineOption> CResaveCommand::Options() const
{
    return {QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                               QStringLiteral("The game file to write (may be FILE itself)."),
                               QStringLiteral("OUT"))};
}

void CResaveCommand::Run(CToolSession& session, const QCommandLineParser& parser,
                         const QStringList& arguments, QTextStream& out)
{
    const QString output = CTool::RequiredOption(parser, QStringLiteral("output"));
    const CToolSession::LoadedGame loaded = session.LoadGame(arguments.constFirst());
    CToolSession::WriteOutputFile(output,
                                  CToolSession::GameFileBytes(*loaded.Game, *loaded.Context));
    out << "Wrote " << output << '\n';
}
