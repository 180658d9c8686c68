#pragma once

#include "IToolCommand.h"

// "check-module FILE": checks a module pack (see CModuleCheck). A sound pack
// gets a short summary; otherwise every problem is listed, one a line as
// "entry: problem", and the command fails.
class CCheckModuleCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("check-module"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override { return {}; }
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
