#include "CActionDeleteArrow.h"

#include "actions/CActionHelper.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"
#include "model/CMap.h"

#include <QCoreApplication>

void CActionDeleteArrow::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionDeleteArrow");
    const char* source = "CActionDeleteArrow.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("ArrowId=") + m_arrowId);
    if (m_arrowId.isEmpty())
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "No arrow to delete"));
    CArrowHandles::Removal removed = CArrowHandles::Take(*map, m_arrowId, source);
    if (removed.Empty())
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "The arrow %1 is not on map %2")
                               .arg(m_arrowId, m_mapId));
    m_removed = std::move(removed);

    CActionHelper::AddDirty(1);
    CArrowHandles::Announce(m_removed, false, this);
}

void CActionDeleteArrow::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionDeleteArrow");
    const char* source = "CActionDeleteArrow.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("ArrowId=") + m_arrowId);
    CArrowHandles::PutBack(*map, m_removed, source);

    CActionHelper::AddDirty(-1);
    CArrowHandles::Announce(m_removed, true, this);
    m_removed = CArrowHandles::Removal();
}
