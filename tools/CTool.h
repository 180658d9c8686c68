#pragma once

#include "IToolCommand.h"

#include <QStringList>

#include <memory>
#include <vector>

class QCommandLineParser;
class QTextStream;

// korvane-tool's command line: "korvane-tool COMMAND [options]". Finds the
// command, checks its options and arguments, runs it, and turns every
// failure into one line on stderr and an exit status: 0 success, 1 input that
// cannot be processed, 2 a usage error.
class CTool
{
public:
    CTool();
    ~CTool();

    // arguments as the process got them, the program's name first.
    int Run(const QStringList& arguments, QTextStream& out, QTextStream& err);

    // Reads a whole number of at least 1 from an option; absent gives 0.
    // Raises a usage failure for anything else.
    static int PositiveOption(const QCommandLineParser& parser, const QString& name);
    // The value of an option the command cannot do without; raises a usage
    // failure when it is missing or empty.
    static QString RequiredOption(const QCommandLineParser& parser, const QString& name);

private:
    IToolCommand* find(const QString& name) const;
    int runCommand(IToolCommand& command, const QStringList& arguments, QTextStream& out);
    QString generalHelp() const;

    std::vector<std::unique_ptr<IToolCommand>> m_commands;
};
