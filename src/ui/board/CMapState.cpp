#include "CMapState.h"

#include "core/CKorvane.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"

std::shared_ptr<CGame> CMapState::OpenGame()
{
    CKorvane* root = RootOrNull();
    return root ? root->Game() : nullptr;
}

std::shared_ptr<CMapGroup> CMapState::ActiveGroup()
{
    const std::shared_ptr<CGame> game = OpenGame();
    return game ? game->ActiveMapGroup() : nullptr;
}

std::shared_ptr<CMap> CMapState::ActiveMap()
{
    const std::shared_ptr<CMapGroup> group = ActiveGroup();
    return group ? group->ActiveMap() : nullptr;
}

std::shared_ptr<CUnit> CMapState::ActiveUnit(const QString& unitId)
{
    const std::shared_ptr<CMap> map = ActiveMap();
    return map && map->Units() ? map->UnitById(unitId) : nullptr;
}

bool CMapState::ActiveFrozen()
{
    const std::shared_ptr<CMapGroup> group = ActiveGroup();
    const std::shared_ptr<CMap> map = group ? group->ActiveMap() : nullptr;
    return (group && group->Frozen()) || (map && map->Frozen());
}

void CMapState::SwitchToMap(const std::shared_ptr<CMap>& map)
{
    const std::shared_ptr<CMapGroup> group = ActiveGroup();
    if (!group || !map || group->ActiveMap() == map)
        return;
    const std::shared_ptr<CMap> previous = group->ActiveMap();
    group->SwitchTo(map);
    Root().EventMgr().NotifyOfMapSwitch(previous ? previous->Id() : QString(), map->Id(), nullptr);
}

void CMapState::SwitchToMapAt(std::int32_t position)
{
    const std::shared_ptr<CMapGroup> group = ActiveGroup();
    if (group && position >= 1 && position <= group->Maps().Count())
        SwitchToMap(group->Maps().Item(position));
}

void CMapState::SwitchToGroup(const std::shared_ptr<CMapGroup>& group)
{
    CKorvane* root = RootOrNull();
    if (!root || !root->Game() || !group)
        return;
    const std::shared_ptr<CMapGroup> previous = root->Game()->ActiveMapGroup();
    if (previous == group)
        return;
    root->Game()->SwitchTo(group);
    root->EventMgr().NotifyOfGroupSwitch(previous ? previous->Id() : QString(), group->Id(),
                                         nullptr);
}
