#include "CDiffCommand.h"

#include "CDiffReport.h"
#include "CToolFailure.h"
#include "CToolSession.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "review/CGameComparer.h"
#include "review/CMapComparer.h"
#include "review/CMapHistory.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTextStream>

namespace {

const QString fromName = QStringLiteral("from");
const QString toName = QStringLiteral("to");
const QString jsonName = QStringLiteral("json");

// A map in words: its name, or its numbers when it has none.
QString shownName(const CGame& game, const CMap& map)
{
    if (!map.Name().isEmpty())
        return map.Name();
    const CMapHistory::Position position = CMapHistory::PositionOf(game, map);
    return QStringLiteral("%1:%2").arg(position.Group).arg(position.Map);
}

} // namespace

QString CDiffCommand::Summary() const
{
    return QStringLiteral("Lists what changed between two maps of a game, or checks that a newer "
                          "file of a game kept its earlier maps (exit status 3 when not).");
}

QList<IToolCommand::Argument> CDiffCommand::Arguments() const
{
    return {
        {QStringLiteral("GAME.krf"),
         QStringLiteral("The game file; with a second file, the older one (OLD.krf).")},
        {QStringLiteral("[NEW.krf]"),
         QStringLiteral("A newer file of the same game: lists, map by map, which maps are the "
                        "same, which changed and which are only in one file.")},
    };
}

QList<QCommandLineOption> CDiffCommand::Options() const
{
    return {
        QCommandLineOption(fromName,
                           QStringLiteral("The older map: a map's name, or G:M (group and map, "
                                          "from 1). Default: the map before the newer one."),
                           QStringLiteral("MAP")),
        QCommandLineOption(toName,
                           QStringLiteral("The newer map, named the same way. Default: the "
                                          "game's last map."),
                           QStringLiteral("MAP")),
        QCommandLineOption(jsonName, QStringLiteral("Writes JSON instead of words.")),
    };
}

void CDiffCommand::Run(CToolSession& session, const QCommandLineParser& parser,
                       const QStringList& arguments, QTextStream& out)
{
    m_outcome = 0;
    if (arguments.size() == 1) {
        compareMaps(session, parser, arguments.constFirst(), out);
        return;
    }
    if (parser.isSet(fromName) || parser.isSet(toName))
        throw CToolFailure::Usage(QStringLiteral(
            "--from and --to choose maps of one file; two files are compared map by map"));
    compareFiles(session, parser, arguments.at(0), arguments.at(1), out);
}

std::shared_ptr<CMap> CDiffCommand::FindMap(const CGame& game, const QString& which,
                                            const QString& path)
{
    static const QRegularExpression numbers(QStringLiteral("^\\s*(\\d+)\\s*:\\s*(\\d+)\\s*$"));
    const QRegularExpressionMatch match = numbers.match(which);
    if (match.hasMatch()) {
        const CMapHistory::Position position{match.captured(1).toInt(), match.captured(2).toInt()};
        if (std::shared_ptr<CMap> map = CMapHistory::MapAt(game, position))
            return map;
        throw CToolFailure::Input(path, QStringLiteral("it has no map %1").arg(which.trimmed()));
    }
    for (const auto& group : game.MapGroups()) {
        if (const std::int32_t at = CUtility::SearchByName(group->Maps(), which))
            return group->Maps().Item(at);
    }
    throw CToolFailure::Input(path, QStringLiteral("it has no map named '%1'").arg(which));
}

void CDiffCommand::compareMaps(CToolSession& session, const QCommandLineParser& parser,
                               const QString& path, QTextStream& out)
{
    const CToolSession::LoadedGame loaded = session.LoadGame(path);
    const CGame& game = *loaded.Game;
    const std::shared_ptr<CMap> newer = parser.isSet(toName)
                                            ? FindMap(game, parser.value(toName), path)
                                            : CMapHistory::LastMap(game);
    if (!newer)
        throw CToolFailure::Input(path, QStringLiteral("it holds no map"));
    const std::shared_ptr<CMap> older = parser.isSet(fromName)
                                            ? FindMap(game, parser.value(fromName), path)
                                            : CMapHistory::MapBefore(game, *newer);
    if (!older)
        throw CToolFailure::Input(path, QStringLiteral("map '%1' is the game's first: there is "
                                                       "no map before it to compare it with")
                                            .arg(shownName(game, *newer)));

    const CMapComparison result = CMapComparer::Compare(older, newer);
    if (parser.isSet(jsonName))
        out << QJsonDocument(CDiffReport::MapJson(older->Name(), newer->Name(), result))
                   .toJson(QJsonDocument::Indented);
    else
        out << CDiffReport::MapText(shownName(game, *older), shownName(game, *newer), result);
}

void CDiffCommand::compareFiles(CToolSession& session, const QCommandLineParser& parser,
                                const QString& olderPath, const QString& newerPath,
                                QTextStream& out)
{
    const CToolSession::LoadedGame older = session.LoadGame(olderPath);
    const CToolSession::LoadedGame newer = session.LoadGame(newerPath);
    if (older.Game->Id() != newer.Game->Id())
        throw CToolFailure::Input(newerPath,
                                  QStringLiteral("it holds another game than %1 (game id %2, not "
                                                 "%3): only files of one game can be compared")
                                      .arg(olderPath, newer.Game->Id(), older.Game->Id()));

    const CGameComparison result = CGameComparer::Compare(*older.Game, *newer.Game);
    if (parser.isSet(jsonName))
        out << QJsonDocument(CDiffReport::GameJson(result)).toJson(QJsonDocument::Indented);
    else
        out << CDiffReport::GameText(QFileInfo(olderPath).fileName(),
                                     QFileInfo(newerPath).fileName(), result);
    m_outcome = result.Kept() ? 0 : DifferStatus;
}
