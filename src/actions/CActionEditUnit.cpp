#include "CActionEditUnit.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

void CActionEditUnit::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionEditUnit");
    const char* source = "CActionEditUnit.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto unit = CActionHelper::RequireUnit(*map, m_unitId, source);

    m_oldCaption = unit->Caption();
    m_oldData = unit->Data();
    m_oldHasMoved = unit->HasMoved();
    unit->SetData(m_data);
    unit->SetCaption(m_caption);
    unit->SetHasMoved(m_hasMoved);
    CActionHelper::AddDirty(1);
    Root().EventMgr().NotifyOfUnitEdit(m_unitId, this);
}

void CActionEditUnit::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionEditUnit");
    const char* source = "CActionEditUnit.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto unit = CActionHelper::RequireUnit(*map, m_unitId, source);

    unit->SetData(m_oldData);
    unit->SetCaption(m_oldCaption);
    unit->SetHasMoved(m_oldHasMoved);
    // Nothing is ever merged into an edit, so there is no chain to take off.
    CActionHelper::AddDirty(-1);
    Root().EventMgr().NotifyOfUnitEdit(m_unitId, this);
}

bool CActionEditUnit::CanChain(const IAction& next) const
{
    const auto* edit = dynamic_cast<const CActionEditUnit*>(&next);
    return edit && edit->m_unitId == m_unitId;
}

void CActionEditUnit::Chain(const IAction&)
{
    // Deliberately merges nothing; see the class comment.
}
