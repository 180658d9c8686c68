#pragma once

#include "IToolCommand.h"

// "render FILE [--group N] [--map N] [--scale F] -o OUT.png": draws one map
// as the board shows it, through the engine's board renderer. The default
// map is the active map of the chosen group, the default group the active one.
class CRenderCommand : public IToolCommand
{
public:
    static constexpr double MaxScale = 16;

    QString Name() const override { return QStringLiteral("render"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
};
