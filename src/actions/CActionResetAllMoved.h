#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Clears the moved mark of the listed units of one map; undo sets it again.
// With no ids listed it does nothing at all.
class CActionResetAllMoved : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    // Lists a unit: the ids are kept as one text, each followed by "|".
    void Add(const QString& unitId) { m_unitIds += unitId + QLatin1Char('|'); }
    const QString& UnitIds() const { return m_unitIds; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Reset Moved");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionResetAllMoved"; }

private:
    void apply(bool moved, const char* source);

    QString m_mapId;
    QString m_unitIds;
};
