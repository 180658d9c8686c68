#include "CActionMgr.h"

#include "core/CTraceScope.h"

void CActionMgr::Execute(std::shared_ptr<IAction> action)
{
    CTraceScope scope("Execute", "CActionMgr");
    while (m_actions.Count() > m_undoPos)
        m_actions.DeleteItem(m_actions.Count());

    scope.Denote(QStringLiteral("Testing For Chain"));
    bool chained = false;
    if (m_actions.Count() > 0) {
        const std::shared_ptr<IAction>& last = m_actions.Item(m_actions.Count());
        if (last->CanChain(*action)) {
            scope.Denote(QStringLiteral("CanChain"));
            last->Chain(*action);
            chained = true;
            scope.Denote(QStringLiteral("Did Chain"));
        }
    }
    if (!chained) {
        scope.Denote(QStringLiteral("Cannot Chain"));
        m_actions.AddItem(action);
    }

    scope.Denote(QStringLiteral("Executing Action ") + QLatin1String(action->ClassName()));
    // A chained action runs by itself too; its predecessor only takes over reversing it.
    action->Execute();

    while (m_actions.Count() > HistoryLimit)
        m_actions.DeleteItem(1);
    m_undoPos = m_actions.Count();
    scope.Denote(QStringLiteral("UndoPos=") + QString::number(m_undoPos));

    if (!action->Reversable())
        Clear();
}

void CActionMgr::Undo()
{
    CTraceScope scope("Undo", "CActionMgr");
    const std::shared_ptr<IAction> action = NextUndoAction();
    if (!action)
        return;
    --m_undoPos;
    action->Reverse();
}

void CActionMgr::Redo()
{
    CTraceScope scope("Redo", "CActionMgr");
    const std::shared_ptr<IAction> action = NextRedoAction();
    if (!action)
        return;
    ++m_undoPos;
    action->Execute();
}

std::shared_ptr<IAction> CActionMgr::NextUndoAction() const
{
    return m_undoPos > 0 ? m_actions.Item(m_undoPos) : nullptr;
}

std::shared_ptr<IAction> CActionMgr::NextRedoAction() const
{
    return m_undoPos < m_actions.Count() ? m_actions.Item(m_undoPos + 1) : nullptr;
}

void CActionMgr::Clear()
{
    CTraceScope scope("Clear", "CActionMgr");
    m_actions.Clear();
    m_undoPos = 0;
}
