#include "CGameJson.h"

#include "actions/CMapLock.h"

#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QJsonArray>

namespace {

QJsonObject unitJson(const CUnit& unit)
{
    return QJsonObject{
        {QStringLiteral("id"), unit.Id()},
        {QStringLiteral("token"), unit.Token()->Id()},
        {QStringLiteral("tokenIndex"), unit.Token()->Index()},
        {QStringLiteral("x"), unit.x()},
        {QStringLiteral("y"), unit.y()},
        {QStringLiteral("caption"), unit.Caption()},
        {QStringLiteral("data"), unit.Data()},
        {QStringLiteral("hasMoved"), unit.HasMoved()},
    };
}

QJsonObject arrowJson(const CArrow& arrow)
{
    return QJsonObject{
        {QStringLiteral("id"), arrow.Id()},       {QStringLiteral("headX"), arrow.HeadX()},
        {QStringLiteral("headY"), arrow.HeadY()}, {QStringLiteral("tailX"), arrow.TailX()},
        {QStringLiteral("tailY"), arrow.TailY()}, {QStringLiteral("color"), arrow.Color()},
    };
}

QJsonObject mapJson(const std::shared_ptr<CMap>& map)
{
    const CMapLock lock(map);
    QJsonArray units;
    for (const auto& unit : *map->Units())
        units.append(unitJson(*unit));
    QJsonArray arrows;
    for (const auto& arrow : *map->Arrows())
        arrows.append(arrowJson(*arrow));
    return QJsonObject{
        {QStringLiteral("id"), map->Id()},           {QStringLiteral("name"), map->Name()},
        {QStringLiteral("remarks"), map->Remarks()}, {QStringLiteral("text"), map->Text()},
        {QStringLiteral("frozen"), map->Frozen()},   {QStringLiteral("units"), units},
        {QStringLiteral("arrows"), arrows},
    };
}

QJsonObject groupJson(const CMapGroup& group)
{
    QJsonArray maps;
    for (const auto& map : group.Maps())
        maps.append(mapJson(map));
    return QJsonObject{
        {QStringLiteral("id"), group.Id()},
        {QStringLiteral("frozen"), group.Frozen()},
        {QStringLiteral("activeMap"), group.Maps().IndexOf(group.ActiveMap().get())},
        {QStringLiteral("maps"), maps},
    };
}

} // namespace

QJsonObject CGameJson::FromGame(const CGame& game, const QString& contextId)
{
    QJsonArray groups;
    for (const auto& group : game.MapGroups())
        groups.append(groupJson(*group));
    const QJsonObject gameObject{
        {QStringLiteral("id"), game.Id()},
        {QStringLiteral("name"), game.Name()},
        {QStringLiteral("remarks"), game.Remarks()},
        {QStringLiteral("activeGroup"), game.MapGroups().IndexOf(game.ActiveMapGroup().get())},
        {QStringLiteral("groups"), groups},
    };
    return QJsonObject{{QStringLiteral("context"), contextId},
                       {QStringLiteral("game"), gameObject}};
}
