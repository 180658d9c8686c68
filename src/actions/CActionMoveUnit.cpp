#include "CActionMoveUnit.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

void CActionMoveUnit::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionMoveUnit");
    const char* source = "CActionMoveUnit.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto unit = CActionHelper::RequireUnit(*map, m_unitId, source);

    m_oldX = unit->x();
    m_oldY = unit->y();
    m_oldHasMoved = unit->HasMoved();
    unit->SetX(CActionHelper::RoundToEven(m_x));
    unit->SetY(CActionHelper::RoundToEven(m_y));
    unit->SetHasMoved(m_hasMoved);
    const bool changed =
        unit->x() != m_oldX || unit->y() != m_oldY || unit->HasMoved() != m_oldHasMoved;

    CActionHelper::AddDirty(1);
    if (changed)
        Root().EventMgr().NotifyOfUnitEdit(m_unitId, this);
}

void CActionMoveUnit::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionMoveUnit");
    const char* source = "CActionMoveUnit.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto unit = CActionHelper::RequireUnit(*map, m_unitId, source);

    unit->SetX(m_oldX);
    unit->SetY(m_oldY);
    unit->SetHasMoved(m_oldHasMoved);
    // This move and every move merged into it since it last executed.
    CActionHelper::AddDirty(-1 - m_chainCount);
    m_chainCount = 0;
    Root().EventMgr().NotifyOfUnitEdit(m_unitId, this);
}

bool CActionMoveUnit::CanChain(const IAction& next) const
{
    // Unit ids are unique in a game; the map is compared as well so that a
    // copied id on another map can never merge two boards' moves.
    const auto* move = dynamic_cast<const CActionMoveUnit*>(&next);
    return move && move->m_unitId == m_unitId && move->m_mapId == m_mapId;
}

void CActionMoveUnit::Chain(const IAction& next)
{
    if (!CanChain(next))
        return;
    const auto& move = static_cast<const CActionMoveUnit&>(next);
    m_x = move.m_x;
    m_y = move.m_y;
    m_hasMoved = move.m_hasMoved;
    ++m_chainCount;
}
