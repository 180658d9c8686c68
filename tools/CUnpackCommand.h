#pragma once

#include "IToolCommand.h"

// "unpack FILE -o DIR": writes every entry of a pack into a folder (made when
// missing). Packs keep their names in lower case, so the files come out in
// lower case. Every entry is read before the first file is written, so a
// damaged pack writes nothing.
class CUnpackCommand : public IToolCommand
{
public:
    QString Name() const override { return QStringLiteral("unpack"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
