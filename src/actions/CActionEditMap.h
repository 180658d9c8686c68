#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Sets a map's name, remarks and frozen flag (so freezing is undoable too).
class CActionEditMap : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& Name() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }
    bool Frozen() const { return m_frozen; }
    void SetFrozen(bool frozen) { m_frozen = frozen; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Edit Map Properties");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionEditMap"; }

private:
    QString m_mapId;
    QString m_name;
    QString m_remarks;
    bool m_frozen = false;
    QString m_oldName;
    QString m_oldRemarks;
    bool m_oldFrozen = false;
};
