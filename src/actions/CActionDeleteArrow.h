#pragma once

#include "actions/CArrowHandles.h"
#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Takes an arrow and its two handle units off a map; undo puts them back
// where they stood in the map's lists.
class CActionDeleteArrow : public IAction
{
public:
    const QString& MapId() const { return m_mapId; }
    void SetMapId(const QString& mapId) { m_mapId = mapId; }
    const QString& ArrowId() const { return m_arrowId; }
    void SetArrowId(const QString& arrowId) { m_arrowId = arrowId; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Delete Arrow");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionDeleteArrow"; }

private:
    QString m_mapId;
    QString m_arrowId;
    CArrowHandles::Removal m_removed;
};
