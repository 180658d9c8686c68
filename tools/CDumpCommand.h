#pragma once

#include "IToolCommand.h"

// "dump FILE": the whole game as JSON on stdout (see CGameJson).
class CDumpCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("dump"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override { return {}; }
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
