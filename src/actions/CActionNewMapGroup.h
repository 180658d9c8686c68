#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Starts a new archive: a new group holding one map, a copy of the active
// group's last map, and makes it the active group. It cannot be undone, so
// executing it empties the undo history.
class CActionNewMapGroup : public IAction
{
public:
    // The new map's name and remarks.
    const QString& Name() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }
    // Empty until executed.
    const QString& GroupId() const { return m_groupId; }
    const QString& MapId() const { return m_mapId; }

    QString Caption() const override { return QCoreApplication::translate("IAction", "New Map"); }
    void Execute() override;
    void Reverse() override {}
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return false; }
    const char* ClassName() const override { return "CActionNewMapGroup"; }

private:
    QString m_name;
    QString m_remarks;
    QString m_groupId;
    QString m_mapId;
};
