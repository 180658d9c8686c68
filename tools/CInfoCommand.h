#pragma once

#include "IToolCommand.h"

// "info FILE": a short summary of a game file: its context, name, how many
// groups, maps, units and arrows it holds, and its body size before and
// after compression.
class CInfoCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("info"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override { return {}; }
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
