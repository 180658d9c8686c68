#include "CResaveCommand.h"

#include "CTool.h"
#include "CToolSession.h"
#include "contexts/IGameContext.h"
#include "persist/CGameFile.h"
#include "persist/CPersistMgr.h"

#include <QTextStream>

#include <cstdio>

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
    QStringList lossyTexts;
    const QByteArray bytes = CGameFile::ToBytes(*loaded.Game, *loaded.Context, &lossyTexts);
    if (!lossyTexts.isEmpty()) {
        // The file is still written: a warning, not a failure.
        QTextStream err(stderr);
        err << "Warning: " << lossyTexts.size()
            << (lossyTexts.size() == 1 ? " text holds" : " texts hold")
            << " characters a game file cannot keep, saved as \"?\": "
            << CPersistMgr::LossyTextsSummary(lossyTexts, 5, QStringLiteral(", ")) << '\n';
    }
    CToolSession::WriteOutputFile(output, bytes);
    out << "Wrote " << output << '\n';
}
