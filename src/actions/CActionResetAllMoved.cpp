#include "CActionResetAllMoved.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

void CActionResetAllMoved::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionResetAllMoved");
    if (m_unitIds.isEmpty())
        return;
    apply(false, "CActionResetAllMoved.Execute");
    CActionHelper::AddDirty(1);
}

void CActionResetAllMoved::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionResetAllMoved");
    if (m_unitIds.isEmpty())
        return;
    apply(true, "CActionResetAllMoved.Reverse");
    CActionHelper::AddDirty(-1);
}

void CActionResetAllMoved::apply(bool moved, const char* source)
{
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    const CVector<CUnit>& units = CActionHelper::Units(*map, source);
    CGameEventMgr& events = Root().EventMgr();
    for (const QString& id : m_unitIds.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        // A unit that is no longer there has no mark to change.
        const std::int32_t position = CUtility::SearchById(units, id);
        if (position == 0)
            continue;
        units.Item(position)->SetHasMoved(moved);
        events.NotifyOfUnitEdit(id, this);
    }
}
