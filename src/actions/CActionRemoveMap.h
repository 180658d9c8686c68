#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Removes a map from its archive for good: the archive's next map (or the
// previous one, for the last) is shown in its place. It cannot be undone, so
// executing it empties the undo history. An archive keeps at least one map,
// and a closed archive keeps all of them.
class CActionRemoveMap : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    // The map shown in the removed one's place; empty until executed.
    const QString& ShownMapId() const { return m_shownMapId; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Remove Map");
    }
    void Execute() override;
    void Reverse() override {}
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return false; }
    const char* ClassName() const override { return "CActionRemoveMap"; }

private:
    QString m_mapId;
    QString m_shownMapId;
};
