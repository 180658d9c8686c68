#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// Places a new unit of a token on a map, with the token's default caption
// and data. The unit id is generated at the first Execute (unless the
// creator set one) and kept, so a redo recreates the same unit.
class CActionAddUnit : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& UnitId() const { return m_unitId; }
    void SetUnitId(const QString& unitId) { m_unitId = unitId; }
    const QString& TokenId() const { return m_tokenId; }
    void SetTokenId(const QString& tokenId) { m_tokenId = tokenId; }
    std::int32_t X() const { return m_x; }
    std::int32_t Y() const { return m_y; }
    void SetPosition(std::int32_t x, std::int32_t y)
    {
        m_x = x;
        m_y = y;
    }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Place New Unit");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionAddUnit"; }

private:
    QString m_mapId;
    QString m_unitId;
    QString m_tokenId;
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
};
