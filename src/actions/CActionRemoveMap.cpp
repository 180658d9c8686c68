#include "CActionRemoveMap.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QCoreApplication>

namespace {

constexpr int notAllowed = 5;

} // namespace

void CActionRemoveMap::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionRemoveMap");
    const char* source = "CActionRemoveMap.Execute";
    const std::shared_ptr<CMap> map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    const std::shared_ptr<CMapGroup> group = CActionHelper::Game(source).ActiveMapGroup();
    if (group->Frozen() || group->Maps().Count() < 2)
        throw KorvaneError(notAllowed, QLatin1String(source),
                           QCoreApplication::translate("IAction", "The map '%1' cannot be removed")
                               .arg(map->Name()));

    // Another map is shown first, so the removed one gives up its lock.
    const std::int32_t position = group->Maps().IndexOf(map);
    const std::shared_ptr<CMap> next =
        group->Maps().Item(position < group->Maps().Count() ? position + 1 : position - 1);
    group->SwitchTo(next);
    group->Maps().RemoveItem(map);
    m_shownMapId = next->Id();
    CActionHelper::AddDirty(1);

    CGameEventMgr& events = Root().EventMgr();
    events.NotifyOfMapDelete(m_mapId, this);
    events.NotifyOfMapSwitch(m_mapId, m_shownMapId, this);
}
