#include "CActionDeleteUnit.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

#include <QCoreApplication>

void CActionDeleteUnit::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionDeleteUnit");
    const char* source = "CActionDeleteUnit.Execute";
    if (!m_unit)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "No unit to delete"));
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    const QString unitId = m_unit->Id();
    scope.Denote(QStringLiteral("UnitId=") + unitId);
    CVector<CUnit>& units = CActionHelper::Units(*map, source);
    // Found by id: a map that was swapped out and back holds new objects.
    const std::int32_t position = CActionHelper::UnitPosition(units, unitId);
    if (position == 0)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "The unit %1 is not on map %2")
                               .arg(unitId, m_mapId));
    m_unit = units.Item(position);
    units.DeleteItem(position);
    CActionHelper::AddDirty(1);
    Root().EventMgr().NotifyOfUnitDelete(unitId, this);
}

void CActionDeleteUnit::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionDeleteUnit");
    const char* source = "CActionDeleteUnit.Reverse";
    if (!m_unit)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "No unit to restore"));
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unit->Id());
    CActionHelper::Units(*map, source).AddItem(m_unit);
    CActionHelper::AddDirty(-1);
    Root().EventMgr().NotifyOfUnitAdd(m_unit->Id(), this);
}
