#include "CActionEditMap.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"

void CActionEditMap::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionEditMap");
    const auto map = CActionHelper::EnterMap(m_mapId, this, "CActionEditMap.Execute");
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    m_oldName = map->Name();
    m_oldRemarks = map->Remarks();
    m_oldFrozen = map->Frozen();
    map->SetName(m_name);
    map->SetRemarks(m_remarks);
    map->SetFrozen(m_frozen);
    Root().EventMgr().NotifyOfMapEdit(m_mapId, this);
    CActionHelper::AddDirty(1);
}

void CActionEditMap::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionEditMap");
    const auto map = CActionHelper::EnterMap(m_mapId, this, "CActionEditMap.Reverse");
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    map->SetName(m_oldName);
    map->SetRemarks(m_oldRemarks);
    map->SetFrozen(m_oldFrozen);
    CActionHelper::AddDirty(-1);
    Root().EventMgr().NotifyOfMapEdit(m_mapId, this);
}
