#include "CInfoCommand.h"

#include "CToolSession.h"

#include "contexts/IGameContext.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QTextStream>

QString CInfoCommand::Summary() const
{
    return QStringLiteral("Summarises a game file: module, name, groups, maps, units, arrows, "
                          "sizes.");
}

QList<IToolCommand::Argument> CInfoCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The game file.")}};
}

void CInfoCommand::Run(CToolSession& session, const QCommandLineParser&,
                       const QStringList& arguments, QTextStream& out)
{
    const QString& path = arguments.constFirst();
    const CToolSession::LoadedGame loaded = session.LoadGame(path);
    const CGame& game = *loaded.Game;

    std::int64_t maps = 0;
    std::int64_t units = 0;
    std::int64_t arrows = 0;
    for (const auto& group : game.MapGroups()) {
        for (const auto& map : group->Maps()) {
            ++maps;
            units += map->UnitCount();
            arrows += map->ArrowCount();
        }
    }

    out << "File: " << path << '\n';
    out << "Context: " << loaded.ContextId;
    if (loaded.Header.StoredContextId != loaded.ContextId)
        out << " (stored as " << loaded.Header.StoredContextId << ')';
    out << '\n';
    out << "Module: " << loaded.Context->Caption() << '\n';
    out << "Name: " << game.Name() << '\n';
    out << "Groups: " << game.MapGroups().Count() << '\n';
    out << "Maps: " << maps << '\n';
    out << "Units: " << units << '\n';
    out << "Arrows: " << arrows << '\n';
    out << "Body size: " << loaded.Header.BodyLength << " bytes\n";
    out << "Compressed size: " << loaded.CompressedLength << " bytes\n";
}
