#include "CTool.h"

#include "CCheckModuleCommand.h"
#include "CDiffCommand.h"
#include "CDumpCommand.h"
#include "CInfoCommand.h"
#include "CModulesCommand.h"
#include "CNewCommand.h"
#include "CPackCommand.h"
#include "CRenderCommand.h"
#include "CResaveCommand.h"
#include "CToolFailure.h"
#include "CToolSession.h"
#include "CUnpackCommand.h"

#include "core/KorvaneError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSet>
#include <QTextStream>

#include <algorithm>

namespace {

const QString toolName = QStringLiteral("korvane-tool");

const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                    QStringLiteral("Shows this help."));
const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("version")},
                                       QStringLiteral("Shows the version."));
const QCommandLineOption homeOption(
    QStringLiteral("home"),
    QStringLiteral("Korvane's home, holding modules/ and usermods/ (default: $KORVANE_HOME, "
                   "else the program's directory when it holds modules/, else the installed "
                   "modules and the user's under $XDG_DATA_HOME/korvane)."),
    QStringLiteral("DIR"));

void addCommonOptions(QCommandLineParser& parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption(helpOption);
    parser.addOption(versionOption);
    parser.addOption(homeOption);
}

QString versionLine()
{
    return toolName + QLatin1Char(' ') + QStringLiteral(KORVANE_VERSION_STRING) + QLatin1Char('\n');
}

QString seeHelp(const QString& command = QString())
{
    return QStringLiteral("; see '") + toolName +
           (command.isEmpty() ? QString() : QLatin1Char(' ') + command) +
           QStringLiteral(" --help'");
}

// The failure as one readable line: messages may quote bytes of a damaged
// file, so control characters become "?" and a very long text keeps its start
// and its end (where the reason is).
QString oneLine(const QString& message)
{
    constexpr qsizetype longest = 500;
    constexpr qsizetype kept = 240;
    QString line = message;
    for (QChar& c : line) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            c = QLatin1Char('?');
    }
    if (line.size() > longest)
        line = line.left(kept) + QStringLiteral(" ... ") + line.right(kept);
    return line;
}

} // namespace

CTool::CTool()
{
    m_commands.push_back(std::make_unique<CModulesCommand>());
    m_commands.push_back(std::make_unique<CInfoCommand>());
    m_commands.push_back(std::make_unique<CDumpCommand>());
    m_commands.push_back(std::make_unique<CDiffCommand>());
    m_commands.push_back(std::make_unique<CNewCommand>());
    m_commands.push_back(std::make_unique<CResaveCommand>());
    m_commands.push_back(std::make_unique<CRenderCommand>());
    m_commands.push_back(std::make_unique<CPackCommand>());
    m_commands.push_back(std::make_unique<CUnpackCommand>());
    m_commands.push_back(std::make_unique<CCheckModuleCommand>());
}

CTool::~CTool() = default;

IToolCommand* CTool::find(const QString& name) const
{
    for (const auto& command : m_commands) {
        if (command->Name() == name)
            return command.get();
    }
    return nullptr;
}

int CTool::Run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    try {
        // A first reading with every command's options finds the command,
        // wherever the common options stand.
        QCommandLineParser scan;
        addCommonOptions(scan);
        QSet<QString> known;
        for (const auto& command : m_commands) {
            for (const QCommandLineOption& option : command->Options()) {
                if (!known.contains(option.names().constFirst())) {
                    known.insert(option.names().constFirst());
                    scan.addOption(option);
                }
            }
        }
        const bool scanned = scan.parse(arguments);
        const QStringList positional = scan.positionalArguments();
        IToolCommand* command = positional.isEmpty() ? nullptr : find(positional.constFirst());
        if (!command && scanned && scan.isSet(helpOption)) {
            out << generalHelp();
            return 0;
        }
        if (!command && scanned && scan.isSet(versionOption)) {
            out << versionLine();
            return 0;
        }
        if (positional.isEmpty()) {
            if (!scanned)
                throw CToolFailure::Usage(scan.errorText() + seeHelp());
            throw CToolFailure::Usage(QStringLiteral("no command given") + seeHelp());
        }
        if (!command)
            throw CToolFailure::Usage(QStringLiteral("unknown command '") +
                                      positional.constFirst() + QLatin1Char('\'') + seeHelp());
        return runCommand(*command, arguments, out);
    } catch (const CToolFailure& failure) {
        out.flush();
        err << toolName << QStringLiteral(": ") << oneLine(failure.Message()) << Qt::endl;
        return static_cast<int>(failure.ExitStatus());
    } catch (const KorvaneError& error) {
        out.flush();
        err << toolName << QStringLiteral(": ") << oneLine(error.Description()) << Qt::endl;
        return static_cast<int>(CToolFailure::Status::Input);
    } catch (const std::exception& error) {
        out.flush();
        err << toolName << QStringLiteral(": ") << QString::fromLocal8Bit(error.what()) << Qt::endl;
        return static_cast<int>(CToolFailure::Status::Input);
    }
}

int CTool::runCommand(IToolCommand& command, const QStringList& arguments, QTextStream& out)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(command.Summary());
    addCommonOptions(parser);
    parser.addOptions(command.Options());
    parser.addPositionalArgument(command.Name(), QStringLiteral("The command."));
    QStringList names;
    for (const IToolCommand::Argument& argument : command.Arguments()) {
        parser.addPositionalArgument(argument.first, argument.second);
        names.append(argument.first);
    }

    if (!parser.parse(arguments))
        throw CToolFailure::Usage(parser.errorText() + seeHelp(command.Name()));
    if (parser.isSet(helpOption)) {
        out << parser.helpText();
        return 0;
    }
    if (parser.isSet(versionOption)) {
        out << versionLine();
        return 0;
    }
    const QStringList given = parser.positionalArguments().mid(1);
    const qsizetype fewest =
        names.size() - std::clamp<qsizetype>(command.OptionalArguments(), 0, names.size());
    if (given.size() < fewest || given.size() > names.size()) {
        const QString needs = names.isEmpty()
                                  ? QStringLiteral("takes no arguments")
                                  : QStringLiteral("takes ") + names.join(QLatin1Char(' '));
        throw CToolFailure::Usage(command.Name() + QLatin1Char(' ') + needs +
                                  seeHelp(command.Name()));
    }
    if (parser.isSet(homeOption) && parser.value(homeOption).isEmpty())
        throw CToolFailure::Usage(QStringLiteral("--home needs a directory") + seeHelp());

    CToolSession session(parser.value(homeOption));
    command.Run(session, parser, given, out);
    return command.Outcome();
}

QString CTool::generalHelp() const
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The command-line companion of Korvane: reads, checks, converts and draws "
                       "game files, and builds and checks module packs."));
    addCommonOptions(parser);
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("One of the commands below."),
                                 QStringLiteral("COMMAND [options]"));
    QString text = parser.helpText();
    text += QStringLiteral("\nCommands:\n");
    for (const auto& command : m_commands)
        text += QStringLiteral("  %1%2\n").arg(command->Name(), -15).arg(command->Summary());
    text += QStringLiteral("\n'") + toolName +
            QStringLiteral(" COMMAND --help' shows a command's arguments and options.\n"
                           "Exit status: 0 success, 1 input that cannot be processed, "
                           "2 a usage error.\n");
    return text;
}

int CTool::PositiveOption(const QCommandLineParser& parser, const QString& name)
{
    if (!parser.isSet(name))
        return 0;
    const QString value = parser.value(name);
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok || number < 1)
        throw CToolFailure::Usage(QStringLiteral("--") + name +
                                  QStringLiteral(" must be a whole number from 1 up, not '") +
                                  value + QLatin1Char('\''));
    return number;
}

QString CTool::RequiredOption(const QCommandLineParser& parser, const QString& name)
{
    const QString value = parser.value(name);
    if (value.isEmpty())
        throw CToolFailure::Usage(QStringLiteral("--") + name + QStringLiteral(" is required") +
                                  seeHelp(parser.positionalArguments().value(0)));
    return value;
}
