#include "CActionEditMapText.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"

void CActionEditMapText::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionEditMapText");
    const auto map = CActionHelper::EnterMap(m_mapId, this, "CActionEditMapText.Execute");
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    m_oldText = map->Text();
    map->SetText(m_text);
    Root().EventMgr().NotifyOfMapEdit(m_mapId, this);
    CActionHelper::AddDirty(1);
}

void CActionEditMapText::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionEditMapText");
    const auto map = CActionHelper::EnterMap(m_mapId, this, "CActionEditMapText.Reverse");
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    map->SetText(m_oldText);
    CActionHelper::AddDirty(-1 - m_chainCount);
    m_chainCount = 0;
    Root().EventMgr().NotifyOfMapEdit(m_mapId, this);
}

bool CActionEditMapText::CanChain(const IAction& next) const
{
    const auto* edit = dynamic_cast<const CActionEditMapText*>(&next);
    return edit && edit->m_mapId == m_mapId;
}

void CActionEditMapText::Chain(const IAction& next)
{
    if (!CanChain(next))
        return;
    m_text = static_cast<const CActionEditMapText&>(next).m_text;
    ++m_chainCount;
}
