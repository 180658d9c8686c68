#pragma once

#include "actions/IAction.h"
#include "core/CVector.h"

#include <cstdint>
#include <memory>

// The undo history: at most 25 entries, oldest first, with UndoPos entries
// in effect. A new action may merge into the last entry (chaining); an
// irreversible action clears the whole history.
class CActionMgr
{
public:
    static constexpr std::int32_t HistoryLimit = 25;

    void Execute(std::shared_ptr<IAction> action);
    void Undo();
    void Redo();
    std::shared_ptr<IAction> NextUndoAction() const;
    std::shared_ptr<IAction> NextRedoAction() const;
    void Clear();

    std::int32_t UndoPos() const { return m_undoPos; }
    const CVector<IAction>& Actions() const { return m_actions; }

private:
    CVector<IAction> m_actions;
    std::int32_t m_undoPos = 0;
};
