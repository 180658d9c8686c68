#include "CActionClearArrows.h"

#include "actions/CActionHelper.h"
#include "core/CTraceScope.h"
#include "model/CMap.h"

void CActionClearArrows::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionClearArrows");
    const char* source = "CActionClearArrows.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    m_removed = CArrowHandles::Take(*map, QString(), source);
    scope.Denote(QStringLiteral("Arrows=") + QString::number(m_removed.Arrows.size()));

    CActionHelper::AddDirty(1);
    CArrowHandles::Announce(m_removed, false, this);
}

void CActionClearArrows::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionClearArrows");
    const char* source = "CActionClearArrows.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    CArrowHandles::PutBack(*map, m_removed, source);

    CActionHelper::AddDirty(-1);
    CArrowHandles::Announce(m_removed, true, this);
    m_removed = CArrowHandles::Removal();
}
