#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// Moves a unit and sets its moved mark. A later move of the same unit
// merges into this one: the unit ends at the latest place, and one undo
// takes it back to where the first move started and takes every merged move
// off the change counter.
class CActionMoveUnit : public IAction
{
public:
    const QString& UnitId() const { return m_unitId; }
    void SetUnitId(const QString& unitId) { m_unitId = unitId; }
    float X() const { return m_x; }
    float Y() const { return m_y; }
    // Board pixels; rounded to the nearest whole pixel, ties to even.
    void SetPosition(float x, float y)
    {
        m_x = x;
        m_y = y;
    }
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    // The value the unit's moved mark takes; a move marks the unit by default.
    bool HasMoved() const { return m_hasMoved; }
    void SetHasMoved(bool hasMoved) { m_hasMoved = hasMoved; }
    // How many later moves were merged into this one since it last executed.
    std::int32_t ChainCount() const { return m_chainCount; }

    QString Caption() const override { return QCoreApplication::translate("IAction", "Move Unit"); }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction& next) const override;
    void Chain(const IAction& next) override;
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionMoveUnit"; }

private:
    QString m_unitId;
    float m_x = 0;
    float m_y = 0;
    QString m_mapId;
    bool m_hasMoved = true;
    std::int32_t m_chainCount = 0;
    std::int32_t m_oldX = 0;
    std::int32_t m_oldY = 0;
    bool m_oldHasMoved = false;
};
