#include "CActionMoveArrow.h"

#include "actions/CActionHelper.h"
#include "actions/CArrowHandles.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"

namespace {

struct ArrowEnd
{
    std::shared_ptr<CArrow> Arrow;
    CArrowHandles::End End = CArrowHandles::End::Head;
};

ArrowEnd findEnd(const CMap& map, const QString& data, const char* source)
{
    ArrowEnd found;
    QString arrowId;
    if (!CArrowHandles::Parse(data, arrowId, found.End))
        return found;
    const CVector<CArrow>& arrows = CActionHelper::Arrows(map, source);
    if (const std::int32_t position = CUtility::SearchById(arrows, arrowId))
        found.Arrow = arrows.Item(position);
    return found;
}

std::int32_t endX(const ArrowEnd& e)
{
    return e.End == CArrowHandles::End::Head ? e.Arrow->HeadX() : e.Arrow->TailX();
}

std::int32_t endY(const ArrowEnd& e)
{
    return e.End == CArrowHandles::End::Head ? e.Arrow->HeadY() : e.Arrow->TailY();
}

void setEnd(const ArrowEnd& e, std::int32_t x, std::int32_t y)
{
    if (e.End == CArrowHandles::End::Head) {
        e.Arrow->SetHeadX(x);
        e.Arrow->SetHeadY(y);
    } else {
        e.Arrow->SetTailX(x);
        e.Arrow->SetTailY(y);
    }
}

} // namespace

void CActionMoveArrow::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionMoveArrow");
    const char* source = "CActionMoveArrow.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto handle = CActionHelper::RequireUnit(*map, m_unitId, source);
    const ArrowEnd end = findEnd(*map, m_data.isEmpty() ? handle->Data() : m_data, source);

    m_oldUnitX = handle->x();
    m_oldUnitY = handle->y();
    handle->SetX(m_x);
    handle->SetY(m_y);
    bool changed = m_oldUnitX != m_x || m_oldUnitY != m_y;
    m_movedArrowId.clear();
    if (end.Arrow) {
        m_movedArrowId = end.Arrow->Id();
        m_oldEndX = endX(end);
        m_oldEndY = endY(end);
        setEnd(end, m_x, m_y);
        changed = changed || m_oldEndX != m_x || m_oldEndY != m_y;
    }

    CActionHelper::AddDirty(1);
    if (!changed)
        return;
    CGameEventMgr& events = Root().EventMgr();
    if (end.Arrow)
        events.NotifyOfArrowEdit(m_movedArrowId, this);
    events.NotifyOfUnitEdit(m_unitId, this);
}

void CActionMoveArrow::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionMoveArrow");
    const char* source = "CActionMoveArrow.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    const auto handle = CActionHelper::RequireUnit(*map, m_unitId, source);
    ArrowEnd end;
    if (!m_movedArrowId.isEmpty())
        end = findEnd(*map, m_data.isEmpty() ? handle->Data() : m_data, source);

    handle->SetX(m_oldUnitX);
    handle->SetY(m_oldUnitY);
    if (end.Arrow)
        setEnd(end, m_oldEndX, m_oldEndY);
    CActionHelper::AddDirty(-1 - m_chainCount);
    m_chainCount = 0;

    CGameEventMgr& events = Root().EventMgr();
    if (end.Arrow)
        events.NotifyOfArrowEdit(m_movedArrowId, this);
    events.NotifyOfUnitEdit(m_unitId, this);
}

bool CActionMoveArrow::CanChain(const IAction& next) const
{
    const auto* move = dynamic_cast<const CActionMoveArrow*>(&next);
    return move && move->m_unitId == m_unitId && move->m_mapId == m_mapId;
}

void CActionMoveArrow::Chain(const IAction& next)
{
    if (!CanChain(next))
        return;
    const auto& move = static_cast<const CActionMoveArrow&>(next);
    m_x = move.m_x;
    m_y = move.m_y;
    ++m_chainCount;
}
