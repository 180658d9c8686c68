#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class CMap;

// Adds a map to the active group as a copy of the group's last map (every
// unit and arrow) and makes it the active map. The map id and the copied
// units' ids are generated at the first Execute and kept, so a redo rebuilds
// exactly the same map; copied arrows keep their ids, so the handles' Data
// still names them. Undo makes the group's last remaining map active.
class CActionNewMap : public IAction
{
public:
    // Empty until the first Execute, unless the creator sets one.
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& Name() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }

    QString Caption() const override { return QCoreApplication::translate("IAction", "New Map"); }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionNewMap"; }

    // Copies every unit and arrow of source onto target, both locked. The
    // i-th unit gets unitIds[i], ids missing from the list are generated
    // and added to it.
    static void CopyContents(const CMap& source, CMap& target, QStringList& unitIds,
                             const char* errorSource);

private:
    QString m_mapId;
    QString m_name;
    QString m_remarks;
    QStringList m_unitIds;
};
