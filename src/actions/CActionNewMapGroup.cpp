#include "CActionNewMapGroup.h"

#include "actions/CActionHelper.h"
#include "actions/CActionNewMap.h"
#include "actions/CMapLock.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

void CActionNewMapGroup::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionNewMapGroup");
    const char* source = "CActionNewMapGroup.Execute";
    CGame& game = CActionHelper::Game(source);
    const std::shared_ptr<CMapGroup> previous = game.ActiveMapGroup();
    const QString mapId = CUtility::GenerateId();
    const QString groupId = CUtility::GenerateId();

    auto map = std::make_shared<CMap>(mapId, groupId);
    map->SetName(m_name);
    map->SetRemarks(m_remarks);
    CMapLock mapLock(map);
    if (previous && previous->Maps().Count() > 0) {
        const std::shared_ptr<CMap>& last = previous->Maps().Item(previous->Maps().Count());
        CMapLock sourceLock(last);
        QStringList unitIds;
        CActionNewMap::CopyContents(*last, *map, unitIds, source);
        sourceLock.Release();
    }
    auto group = std::make_shared<CMapGroup>(groupId);

    CActionHelper::AddDirty(1);
    group->Maps().AddItem(map);
    game.MapGroups().AddItem(group);
    game.SwitchTo(group);
    mapLock.Release();
    m_groupId = groupId;
    m_mapId = mapId;
    scope.Denote(QStringLiteral("GroupId=") + groupId);

    CGameEventMgr& events = Root().EventMgr();
    events.NotifyOfGroupAdd(groupId, this);
    events.NotifyOfGroupSwitch(previous ? previous->Id() : QString(), groupId, this);
}
