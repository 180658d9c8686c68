#include "CActionResetAllMoved.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

#include <QSet>
#include <QStringList>

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
    const QStringList ids = m_unitIds.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    // One pass over the map, in the list's order; a listed unit that is no
    // longer there has no mark to change.
    const QSet<QString> listed(ids.begin(), ids.end());
    CGameEventMgr& events = Root().EventMgr();
    for (const auto& unit : units) {
        if (!listed.contains(unit->Id()))
            continue;
        unit->SetHasMoved(moved);
        events.NotifyOfUnitEdit(unit->Id(), this);
    }
}
