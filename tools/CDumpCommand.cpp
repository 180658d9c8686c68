#include "CDumpCommand.h"

#include "CGameJson.h"
#include "CToolSession.h"

#include <QJsonDocument>
#include <QTextStream>

QString CDumpCommand::Summary() const
{
    return QStringLiteral("Writes a whole game file as JSON.");
}

QList<IToolCommand::Argument> CDumpCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The game file.")}};
}

void CDumpCommand::Run(CToolSession& session, const QCommandLineParser&,
                       const QStringList& arguments, QTextStream& out)
{
    const CToolSession::LoadedGame loaded = session.LoadGame(arguments.constFirst());
    out << QJsonDocument(CGameJson::FromGame(*loaded.Game, loaded.ContextId))
               .toJson(QJsonDocument::Indented);
}
