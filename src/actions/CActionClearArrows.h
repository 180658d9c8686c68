#pragma once

#include "actions/CArrowHandles.h"
#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Takes every arrow and every arrow handle off a map; undo puts them back in
// their former order.
class CActionClearArrows : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Clear All Arrows");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionClearArrows"; }

private:
    QString m_mapId;
    CArrowHandles::Removal m_removed;
};
