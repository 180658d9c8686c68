#include "CRenderCommand.h"

#include "CTool.h"
#include "CToolFailure.h"
#include "CToolSession.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "render/CMapExport.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <cmath>

namespace {

const QString groupName = QStringLiteral("group");
const QString mapName = QStringLiteral("map");
const QString scaleName = QStringLiteral("scale");

double scaleOf(const QCommandLineParser& parser)
{
    if (!parser.isSet(scaleName))
        return 1;
    const QString value = parser.value(scaleName);
    bool ok = false;
    const double scale = value.toDouble(&ok);
    if (!ok || !std::isfinite(scale) || scale <= 0 || scale > CRenderCommand::MaxScale)
        throw CToolFailure::Usage(QStringLiteral("--scale must be a number above 0 and at most ") +
                                  QString::number(CRenderCommand::MaxScale) +
                                  QStringLiteral(", not '") + value + QLatin1Char('\''));
    return scale;
}

} // namespace

QString CRenderCommand::Summary() const
{
    return QStringLiteral("Draws one map of a game file as a PNG picture, as the board shows it.");
}

QList<IToolCommand::Argument> CRenderCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The game file.")}};
}

QList<QCommandLineOption> CRenderCommand::Options() const
{
    return {
        QCommandLineOption(groupName,
                           QStringLiteral("The group to draw, from 1 (default: the active one)."),
                           QStringLiteral("N")),
        QCommandLineOption(mapName,
                           QStringLiteral("The map of the group to draw, from 1 (default: the "
                                          "group's active map)."),
                           QStringLiteral("N")),
        QCommandLineOption(scaleName, QStringLiteral("Scales the picture (default 1)."),
                           QStringLiteral("F")),
        QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                           QStringLiteral("The PNG file to write."), QStringLiteral("OUT.png")),
    };
}

void CRenderCommand::Run(CToolSession& session, const QCommandLineParser& parser,
                         const QStringList& arguments, QTextStream& out)
{
    const QString output = CTool::RequiredOption(parser, QStringLiteral("output"));
    const int groupNumber = CTool::PositiveOption(parser, groupName);
    const int mapNumber = CTool::PositiveOption(parser, mapName);
    const double scale = scaleOf(parser);

    const QString& path = arguments.constFirst();
    const CToolSession::LoadedGame loaded = session.LoadGame(path);
    const CGame& game = *loaded.Game;

    std::shared_ptr<CMapGroup> group = game.ActiveMapGroup();
    if (groupNumber > 0) {
        if (groupNumber > game.MapGroups().Count())
            throw CToolFailure::Input(path, QStringLiteral("it has no group %1 (it has %2)")
                                                .arg(groupNumber)
                                                .arg(game.MapGroups().Count()));
        group = game.MapGroups().Item(groupNumber);
    }
    if (!group)
        throw CToolFailure::Input(path, QStringLiteral("it holds no map to draw"));
    const int groupPosition = game.MapGroups().IndexOf(group.get());

    std::shared_ptr<CMap> map = group->ActiveMap();
    if (mapNumber > 0) {
        if (mapNumber > group->Maps().Count())
            throw CToolFailure::Input(path, QStringLiteral("group %1 has no map %2 (it has %3)")
                                                .arg(groupPosition)
                                                .arg(mapNumber)
                                                .arg(group->Maps().Count()));
        map = group->Maps().Item(mapNumber);
    }
    if (!map)
        throw CToolFailure::Input(
            path, QStringLiteral("group %1 holds no map to draw").arg(groupPosition));

    const CMapExport::Picture picture = CMapExport::Render(map, loaded.Context, scale);
    if (!picture.Error.isEmpty())
        throw CToolFailure::Input(path, picture.Error);
    CToolSession::WriteOutputFile(output, picture.Png);
    out << "Wrote " << output << ": map " << group->Maps().IndexOf(map.get()) << " ('"
        << map->Name() << "') of group " << groupPosition << ", " << picture.Size.width() << " x "
        << picture.Size.height() << " pixels\n";
}
