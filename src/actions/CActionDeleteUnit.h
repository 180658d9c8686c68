#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class CUnit;

// Takes a unit off a map and keeps it; undo appends it again at the end of
// the map's list, so it is drawn above the units placed before it.
class CActionDeleteUnit : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const std::shared_ptr<CUnit>& Unit() const { return m_unit; }
    void SetUnit(std::shared_ptr<CUnit> unit) { m_unit = std::move(unit); }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Delete Unit");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionDeleteUnit"; }

private:
    QString m_mapId;
    std::shared_ptr<CUnit> m_unit;
};
