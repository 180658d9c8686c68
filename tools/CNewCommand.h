#pragma once

#include "IToolCommand.h"

// "new MODULE_ID -o FILE": saves the default game of a module (its initial
// game, or one empty map). The id may also be an old three-letter code.
class CNewCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("new"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
