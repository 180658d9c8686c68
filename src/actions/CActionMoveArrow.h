#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// Moves one end of an arrow by its handle unit: the handle and the end it
// names in its Data go to the new place. A later move of the same handle
// merges into this one, as unit moves do. A handle whose arrow is gone moves
// by itself.
class CActionMoveArrow : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    // The handle unit that was dragged, and its Data naming the arrow end.
    const QString& UnitId() const { return m_unitId; }
    void SetUnitId(const QString& unitId) { m_unitId = unitId; }
    const QString& Data() const { return m_data; }
    void SetData(const QString& data) { m_data = data; }
    std::int32_t X() const { return m_x; }
    std::int32_t Y() const { return m_y; }
    void SetPosition(std::int32_t x, std::int32_t y)
    {
        m_x = x;
        m_y = y;
    }
    std::int32_t ChainCount() const { return m_chainCount; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Move Arrow");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction& next) const override;
    void Chain(const IAction& next) override;
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionMoveArrow"; }

private:
    QString m_mapId;
    QString m_unitId;
    QString m_data;
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_chainCount = 0;
    std::int32_t m_oldUnitX = 0;
    std::int32_t m_oldUnitY = 0;
    // The arrow end moved at the last Execute; empty when there was none.
    QString m_movedArrowId;
    std::int32_t m_oldEndX = 0;
    std::int32_t m_oldEndY = 0;
};
