#pragma once

#include "actions/IAction.h"

#include <QCoreApplication>
#include <QString>

// Sets the game's name and remarks.
class CActionEditGame : public IAction
{
public:
    const QString& Name() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }

    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Edit Game Properties");
    }
    void Execute() override;
    void Reverse() override;
    bool CanChain(const IAction&) const override { return false; }
    void Chain(const IAction&) override {}
    bool Reversable() const override { return true; }
    const char* ClassName() const override { return "CActionEditGame"; }

private:
    QString m_name;
    QString m_remarks;
    QString m_oldName;
    QString m_oldRemarks;
};
