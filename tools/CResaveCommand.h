#pragma once

#include "IToolCommand.h"

// "resave FILE -o OUT": reads a game and writes it again in the current
// format (which upgrades games written before map groups existed).
class CResaveCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("resave"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
