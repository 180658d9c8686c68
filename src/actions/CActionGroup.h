#pragma once

#include "actions/IAction.h"
#include "core/CVector.h"

#include <memory>

// Several actions executed as one undo step ("Merge Units", "Split Off 5").
// Members execute in the order added and reverse in the opposite order.
class CActionGroup : public IAction
{
public:
    void SetCaption(const QString& caption) { m_caption = caption; }
    // One irreversible member makes the whole group irreversible.
    void AddAction(std::shared_ptr<IAction> action);
    bool AllowChain() const { return m_allowChain; }
    void SetAllowChain(bool allow) { m_allowChain = allow; }
    const CVector<IAction>& Actions() const { return m_actions; }

    QString Caption() const override { return m_caption; }
    void Execute() override;
    void Reverse() override;
    // Only while AllowChain is set, and then as the last member would.
    bool CanChain(const IAction& next) const override;
    void Chain(const IAction& next) override;
    bool Reversable() const override { return m_reversable; }
    const char* ClassName() const override { return "CActionGroup"; }

private:
    CVector<IAction> m_actions;
    QString m_caption;
    bool m_reversable = true;
    bool m_allowChain = false;
};
