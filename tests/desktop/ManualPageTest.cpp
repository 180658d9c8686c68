#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Runs a program to its end and returns its standard output ("" when it failed).
QString output(const QString& program, const QStringList& arguments,
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return QString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

// An installed manual page as plain roff, its escaped hyphens made plain.
QString page(const QString& compressed)
{
    return output("gzip", {"-dc", compressed}).replace(QStringLiteral("\\-"), QStringLiteral("-"));
}

// The long options a help text lists ("--output" from "-o, --output <FILE>").
QStringList longOptions(const QString& help)
{
    QStringList options;
    static const QRegularExpression option(QStringLiteral("^\\s+(?:-\\w, )?(--[\\w-]+)"),
                                           QRegularExpression::MultilineOption);
    for (auto it = option.globalMatch(help); it.hasNext();)
        options << it.next().captured(1);
    return options;
}

// The parts of the tool's page under the ".SS" headings of one command, each
// up to the next heading.
QString commandParts(const QString& text, const QString& command)
{
    QString found;
    const QString heading = QStringLiteral("S \"korvane-tool ") + command;
    for (const QString& part : text.split(QStringLiteral("\n.S"))) {
        if (part.startsWith(heading) && part.size() > heading.size() &&
            QStringLiteral(" \"").contains(part.at(heading.size())))
            found += part;
    }
    return found;
}

} // namespace

TEST(ManualPages, InstalledCompressedAndListEveryCommandAndOptionTheProgramsHelpShows)
{
    QTemporaryDir destDir;
    QProcessEnvironment installEnv = QProcessEnvironment::systemEnvironment();
    installEnv.insert("DESTDIR", destDir.path());
    ASSERT_FALSE(
        output(KORVANE_CMAKE, {"--install", KORVANE_BUILD_DIR, "--prefix", "/usr"}, installEnv)
            .isEmpty());
    const QString prefix = destDir.path() + "/usr/";
    const QString tool = page(prefix + "share/man/man1/korvane-tool.1.gz");
    const QString game = page(prefix + "share/man/man6/korvane.6.gz");
    ASSERT_TRUE(tool.startsWith(".\\\"")) << tool.left(200).toStdString();
    ASSERT_TRUE(game.startsWith(".\\\"")) << game.left(200).toStdString();
    EXPECT_TRUE(tool.contains(QStringLiteral("\"Korvane " KORVANE_VERSION_STRING "\"")));

    // Every command the tool lists has its own part in the page, which names
    // every option the command's help shows.
    const QString toolPath = prefix + "bin/korvane-tool";
    const QString help = output(toolPath, {"--help"});
    const qsizetype listStart = help.indexOf(QStringLiteral("\nCommands:\n"));
    ASSERT_GE(listStart, 0) << help.toStdString();
    const QStringList commandLines =
        help.mid(listStart + 11).section(QStringLiteral("\n\n"), 0, 0).split(QLatin1Char('\n'));
    ASSERT_GE(commandLines.size(), 9) << help.toStdString();
    for (const QString& line : commandLines) {
        const QString command = line.simplified().section(QLatin1Char(' '), 0, 0);
        const QString part = commandParts(tool, command);
        EXPECT_FALSE(part.isEmpty()) << "no part for " << command.toStdString();
        const QStringList options = longOptions(output(toolPath, {command, "--help"}));
        EXPECT_TRUE(options.contains(QStringLiteral("--home"))) << command.toStdString();
        for (const QString& option : options) {
            const bool common = option == "--help" || option == "--version" || option == "--home";
            EXPECT_TRUE((common ? tool : part).contains(option))
                << command.toStdString() << ' ' << option.toStdString();
        }
    }
    for (const char* status : {".B 0\n", ".B 1\n", ".B 2\n"})
        EXPECT_TRUE(tool.section(".SH EXIT STATUS", 1).section("\n.SH ", 0, 0).contains(status))
            << status;

    // The program answers --help without a display, and its page names the same options.
    QProcessEnvironment noDisplay = QProcessEnvironment::systemEnvironment();
    noDisplay.remove("DISPLAY");
    noDisplay.remove("WAYLAND_DISPLAY");
    const QString gameBinary = prefix + "games/korvane";
    ASSERT_TRUE(QFileInfo(gameBinary).isExecutable());
    const QString gameHelp = output(gameBinary, {"--help"}, noDisplay);
    EXPECT_TRUE(gameHelp.startsWith(QStringLiteral("Usage: korvane [FILE]\n")))
        << gameHelp.toStdString();
    const QStringList gameOptions = longOptions(gameHelp);
    EXPECT_EQ(gameOptions, QStringList({"--help", "--version"}));
    for (const QString& option : gameOptions)
        EXPECT_TRUE(game.section(".SH OPTIONS", 1).contains(option)) << option.toStdString();
    EXPECT_EQ(output(gameBinary, {"--version"}, noDisplay),
              QStringLiteral("korvane " KORVANE_VERSION_STRING "\n"));
}
