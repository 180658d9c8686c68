#pragma once

#include "IToolCommand.h"

// "pack DIR -o FILE": builds a module pack from a folder: "module.def" first,
// then every other file in name order, each compressed when that makes it
// smaller. Hidden files and sub-folders are left out (a pack has no
// folders); the pack being written is never packed into itself.
class CPackCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("pack"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
