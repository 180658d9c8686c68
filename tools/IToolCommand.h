#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

class CToolSession;
class QCommandLineParser;
class QTextStream;

// One command of korvane-tool ("info", "render", ...). Commands report
// failures by raising CToolFailure; a KorvaneError that escapes is treated as
// input that cannot be processed.
class IToolCommand
{
public:
    // A positional argument: its name in the help ("FILE") and what it is.
    using Argument = std::pair<QString, QString>;

    virtual ~IToolCommand() = default;

    virtual QString Name() const = 0;
    // One line for the list of commands.
    virtual QString Summary() const = 0;
    // The positional arguments after the command's name; all are required
    // but the last OptionalArguments() of them.
    virtual QList<Argument> Arguments() const = 0;
    virtual int OptionalArguments() const { return 0; }
    // The command's own options.
    virtual QList<QCommandLineOption> Options() const = 0;
    // Runs with a parser that has read the command line; arguments are the
    // positional arguments after the command's name, one for each of Arguments.
    virtual void Run(CToolSession& session, const QCommandLineParser& parser,
                     const QStringList& arguments, QTextStream& out) = 0;
    // The exit status after a Run that returned: 0, or a status of the
    // command's own (3 and up) that its help explains.
    virtual int Outcome() const { return 0; }
};
