#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// Places a new arrow with its tail at the drop point and its head 35 pixels
// toward the middle of the board on each axis, together with a head and a
// tail handle unit of the arrow token. The colour comes from the token's
// Custom text. The three ids are generated at the first Execute and kept, so
// a redo recreates the same arrow and handles.
class CActionAddArrow : public IAction
{
public:
    static constexpr std::int32_t HeadOffset = 35;

    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& TokenId() const { return m_tokenId; }
    void SetTokenId(const QString& tokenId) { m_tokenId = tokenId; }
    std::int32_t X() const { return m_x; }
    std::int32_t Y() const { return m_y; }
    void SetPosition(std::int32_t x, std::int32_t y)
    {
        m_x = x;
        m_y = y;
    }
    // Empty until the first Execute.
    const QString& ArrowId() const { return m_arrowId; }
    const QString& HeadUnitId() const { return m_headUnitId; }
    const QString& TailUnitId() const { return m_tailUnitId; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Place New Arrow");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionAddArrow"; }

private:
    QString m_mapId;
    QString m_tokenId;
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    QString m_arrowId;
    QString m_headUnitId;
    QString m_tailUnitId;
};
