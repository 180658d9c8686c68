#pragma once

#include "IToolCommand.h"

// "modules [--json]": the contexts in the context manager's order, one line
// each (position, id, caption, kind, file, separated by tabs) or as a JSON
// array. The kind is "builtin" for the fixed modules, "user" for user
// modules and "standard" for every other module.
class CModulesCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("modules"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override { return {}; }
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
