#include "CCheckModuleCommand.h"

#include "CModuleCheck.h"
#include "CToolFailure.h"
#include "CToolSession.h"

#include <QTextStream>

QString CCheckModuleCommand::Summary() const
{
    return QStringLiteral("Checks a module pack, its module.def, pictures and initial game.");
}

QList<IToolCommand::Argument> CCheckModuleCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The pack (.krm or .udm).")}};
}

void CCheckModuleCommand::Run(CToolSession& session, const QCommandLineParser&,
                              const QStringList& arguments, QTextStream& out)
{
    const QString& path = arguments.constFirst();
    // The check unpacks into the home's cache and reads the initial game
    // through the root, as the program would.
    session.Root();
    CModuleCheck check(path);
    if (check.Run()) {
        out << path << ": no problems found\n";
        out << "Id: " << check.Id() << '\n';
        out << "Title: " << check.Title() << '\n';
        out << "Categories: " << check.CategoryCount() << '\n';
        out << "Tokens: " << check.TokenCount() << '\n';
        out << "Entries: " << check.EntryCount() << '\n';
        return;
    }
    const auto& problems = check.Problems();
    for (const CModuleCheck::Problem& problem : problems)
        out << problem.Entry << ": " << problem.Text << '\n';
    const CModuleCheck::Problem& first = problems.front();
    QString summary = first.Entry + QStringLiteral(": ") + first.Text;
    if (problems.size() > 1)
        summary += QStringLiteral(" (and %1 more problems)").arg(problems.size() - 1);
    throw CToolFailure::Input(path, summary);
}
