#include "CActionGroup.h"

#include "core/CTraceScope.h"

void CActionGroup::AddAction(std::shared_ptr<IAction> action)
{
    if (!action->Reversable())
        m_reversable = false;
    m_actions.AddItem(std::move(action));
}

void CActionGroup::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionGroup");
    for (std::int32_t i = 1; i <= m_actions.Count(); ++i)
        m_actions.Item(i)->Execute();
}

void CActionGroup::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionGroup");
    for (std::int32_t i = m_actions.Count(); i >= 1; --i)
        m_actions.Item(i)->Reverse();
}

bool CActionGroup::CanChain(const IAction& next) const
{
    if (!m_allowChain || m_actions.Count() == 0)
        return false;
    return m_actions.Item(m_actions.Count())->CanChain(next);
}

void CActionGroup::Chain(const IAction& next)
{
    if (m_actions.Count() > 0)
        m_actions.Item(m_actions.Count())->Chain(next);
}
