#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Sets a unit's caption, data and moved mark.
//
// A later edit of the same unit is accepted for chaining, but merging takes
// over nothing: the later edit runs by itself and is not recorded, so one
// undo restores the values from before the first edit and a redo applies
// only the first edit again. The change counter keeps the later edit's
// increment. This behaviour is kept on purpose.
class CActionEditUnit : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& UnitId() const { return m_unitId; }
    void SetUnitId(const QString& unitId) { m_unitId = unitId; }
    // The values the unit takes.
    const QString& UnitCaption() const { return m_caption; }
    void SetUnitCaption(const QString& caption) { m_caption = caption; }
    const QString& Data() const { return m_data; }
    void SetData(const QString& data) { m_data = data; }
    bool HasMoved() const { return m_hasMoved; }
    void SetHasMoved(bool hasMoved) { m_hasMoved = hasMoved; }

    QString Caption() const override { return QCoreApplication::translate("IAction", "Edit Unit"); }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction& next) const override;
    void Chain(const IAction& next) override;
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionEditUnit"; }

private:
    QString m_mapId;
    QString m_unitId;
    QString m_caption;
    QString m_data;
    bool m_hasMoved = false;
    QString m_oldCaption;
    QString m_oldData;
    bool m_oldHasMoved = false;
};
