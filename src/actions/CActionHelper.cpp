#include "CActionHelper.h"

#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"

#include <QCoreApplication>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr int objectMissing = 91;

[[noreturn]] void fail(const char* source, const QString& description)
{
    throw KorvaneError(objectMissing, QLatin1String(source), description);
}

} // namespace

CGame& CActionHelper::Game(const char* source)
{
    CKorvane* root = RootOrNull();
    if (!root || !root->Game())
        fail(source, QCoreApplication::translate("IAction", "There is no open game to change"));
    return *root->Game();
}

std::shared_ptr<CMap> CActionHelper::CurrentMap()
{
    CKorvane* root = RootOrNull();
    if (!root || !root->Game() || !root->Game()->ActiveMapGroup())
        return nullptr;
    return root->Game()->ActiveMapGroup()->ActiveMap();
}

std::shared_ptr<CMap> CActionHelper::EnterMap(const QString& mapId, const void* notifySource,
                                              const char* source)
{
    CGame& game = Game(source);
    std::shared_ptr<CMapGroup> group = game.ActiveMapGroup();
    const std::shared_ptr<CMap> active = group ? group->ActiveMap() : nullptr;
    if (active && active->Id() == mapId)
        return active;

    // Looked up without the lookups' miss traces: a miss here is the usual case.
    std::shared_ptr<CMapGroup> owner;
    if (group && CUtility::SearchById(group->Maps(), mapId) > 0)
        owner = group;
    else
        owner = game.GroupByMapId(mapId);
    if (!owner)
        fail(source,
             QCoreApplication::translate("IAction", "The map %1 is not part of the open game")
                 .arg(mapId));
    const std::shared_ptr<CMap> map =
        owner->Maps().Item(CUtility::SearchById(owner->Maps(), mapId));

    CGameEventMgr& events = Root().EventMgr();
    if (owner != group) {
        const QString previousGroup = group ? group->Id() : QString();
        game.SwitchTo(owner);
        owner->SwitchTo(map);
        events.NotifyOfGroupSwitch(previousGroup, owner->Id(), notifySource);
    } else {
        owner->SwitchTo(map);
    }
    events.NotifyOfMapSwitch(active ? active->Id() : QString(), map->Id(), notifySource);
    return map;
}

CVector<CUnit>& CActionHelper::Units(const CMap& map, const char* source)
{
    CVector<CUnit>* units = map.Units();
    if (!units)
        fail(source, QCoreApplication::translate("IAction", "The units of map %1 are not loaded")
                         .arg(map.Id()));
    return *units;
}

CVector<CArrow>& CActionHelper::Arrows(const CMap& map, const char* source)
{
    CVector<CArrow>* arrows = map.Arrows();
    if (!arrows)
        fail(source, QCoreApplication::translate("IAction", "The arrows of map %1 are not loaded")
                         .arg(map.Id()));
    return *arrows;
}

std::int32_t CActionHelper::UnitPosition(const CVector<CUnit>& units, const QString& unitId)
{
    // A plain memory compare: ids are ASCII hex of one length, so most
    // comparisons end at the first bytes, where QString's general compare
    // costs a library call per unit.
    const qsizetype size = unitId.size();
    const QChar* wanted = unitId.constData();
    std::int32_t position = 1;
    for (const auto& unit : units) {
        const QString& id = unit->Id();
        if (id.size() == size && (size == 0 || id.constData()[0] == wanted[0]) &&
            std::memcmp(id.constData(), wanted, size * sizeof(QChar)) == 0)
            return position;
        ++position;
    }
    return 0;
}

std::shared_ptr<CUnit> CActionHelper::RequireUnit(const CMap& map, const QString& unitId,
                                                  const char* source)
{
    const CVector<CUnit>& units = Units(map, source);
    const std::int32_t position = UnitPosition(units, unitId);
    if (position == 0)
        fail(source, QCoreApplication::translate("IAction", "The unit %1 is not on map %2")
                         .arg(unitId, map.Id()));
    return units.Item(position);
}

void CActionHelper::AddDirty(std::int32_t delta)
{
    CKorvane* root = RootOrNull();
    if (!root || !root->Game())
        return;
    CGame& game = *root->Game();
    const std::int64_t value = static_cast<std::int64_t>(game.Dirty()) + delta;
    constexpr std::int64_t low = std::numeric_limits<std::int16_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int16_t>::max();
    game.SetDirty(static_cast<std::int16_t>(value < low ? low : (value > high ? high : value)));
}

std::int32_t CActionHelper::RoundToEven(float value)
{
    if (std::isnan(value))
        return 0;
    // nearbyint rounds halves to even in the default rounding mode.
    const double rounded = std::nearbyint(static_cast<double>(value));
    if (rounded <= static_cast<double>(std::numeric_limits<std::int32_t>::min()))
        return std::numeric_limits<std::int32_t>::min();
    if (rounded >= static_cast<double>(std::numeric_limits<std::int32_t>::max()))
        return std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(rounded);
}

std::int32_t CActionHelper::Clamp32(std::int64_t value)
{
    constexpr std::int64_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < low ? low : (value > high ? high : value));
}
