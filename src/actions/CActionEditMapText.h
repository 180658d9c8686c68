#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// Sets a map's free text. A later text edit of the same map merges into this
// one, so typing is one undo step back to the text before the first edit.
class CActionEditMapText : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& Text() const { return m_text; }
    void SetText(const QString& text) { m_text = text; }
    std::int32_t ChainCount() const { return m_chainCount; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Edit Map Text");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction& next) const override;
    void Chain(const IAction& next) override;
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionEditMapText"; }

private:
    QString m_mapId;
    QString m_text;
    QString m_oldText;
    std::int32_t m_chainCount = 0;
};
