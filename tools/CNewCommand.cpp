#include "CNewCommand.h"

#include "CTool.h"
#include "CToolFailure.h"
#include "CToolSession.h"

#include "contexts/IGameContext.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "persist/CGameFile.h"

#include <QTextStream>

QString CNewCommand::Summary() const
{
    return QStringLiteral("Saves a module's default new game.");
}

QList<IToolCommand::Argument> CNewCommand::Arguments() const
{
    return {{QStringLiteral("MODULE_ID"),
             QStringLiteral("The module's id, as 'korvane-tool modules' lists it.")}};
}

QList<QCommandLineOption> CNewCommand::Options() const
{
    return {QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                               QStringLiteral("The game file to write."), QStringLiteral("FILE"))};
}

void CNewCommand::Run(CToolSession& session, const QCommandLineParser& parser,
                      const QStringList& arguments, QTextStream& out)
{
    const QString output = CTool::RequiredOption(parser, QStringLiteral("output"));
    const QString& id = arguments.constFirst();
    const std::shared_ptr<IGameContext> context = session.FindContext(id, id);
    session.Activate(context, id);
    std::shared_ptr<CGame> game;
    try {
        game = context->CreateDefaultGame();
    } catch (const KorvaneError& error) {
        throw CToolFailure::Input(id, error.Description());
    }
    CToolSession::WriteOutputFile(output, CGameFile::ToBytes(*game, *context));
    out << "Wrote " << output << ": a new game of " << context->Caption() << '\n';
}
