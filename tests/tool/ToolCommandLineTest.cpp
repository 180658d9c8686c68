#include "tool/ToolTestSupport.h"

#include <QFile>
#include <QJsonObject>

namespace {

using ToolCommandLine = ToolFixture;

// A failure is one line on stderr naming what is at fault.
void expectOneLine(const ToolRun& run, const QString& mentions)
{
    ASSERT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
    EXPECT_TRUE(run.Err.startsWith(QStringLiteral("korvane-tool: "))) << run.Err.toStdString();
    EXPECT_TRUE(run.Err.contains(mentions)) << run.Err.toStdString();
}

} // namespace

TEST_F(ToolCommandLine, HelpAndVersionWorkAndUsageErrorsExitWithTwoInputErrorsWithOne)
{
    const ToolRun help = RunTool({QStringLiteral("--help")});
    EXPECT_EQ(help.Status, 0);
    EXPECT_TRUE(help.Err.isEmpty()) << help.Err.toStdString();
    // The list of commands is written from the commands themselves.
    EXPECT_TRUE(help.Out.contains(QLatin1String("\nCommands:\n  modules")))
        << help.Out.toStdString();

    const ToolRun renderHelp = RunTool({QStringLiteral("render"), QStringLiteral("--help")});
    EXPECT_EQ(renderHelp.Status, 0);
    EXPECT_TRUE(renderHelp.Out.contains(QLatin1String("--scale"))) << renderHelp.Out.toStdString();

    const ToolRun version = RunTool({QStringLiteral("--version")});
    EXPECT_EQ(version.Status, 0);
    EXPECT_EQ(version.Out.trimmed(), QStringLiteral("korvane-tool " KORVANE_VERSION_STRING));

    // Usage errors exit with 2, input errors with 1.
    const QString game = Save(*NewGame(QStringLiteral("Usage")), QStringLiteral("usage.krf"));
    const QString png = home.File(QStringLiteral("x.png"));
    const struct
    {
        QStringList Arguments;
        const char* Mentions;
    } usage[] = {
        {{}, "no command"},
        {{QStringLiteral("explode")}, "explode"},
        {{QStringLiteral("info")}, "FILE"},
        {{QStringLiteral("info"), game, QStringLiteral("--colour")}, "colour"},
        {{QStringLiteral("resave"), game}, "--output"},
        {{QStringLiteral("render"), game, "-o", png, "--group", "0"}, "--group"},
        {{QStringLiteral("render"), game, "-o", png, "--scale", "0"}, "--scale"},
    };
    for (const auto& c : usage) {
        const ToolRun run = RunTool(c.Arguments);
        EXPECT_EQ(run.Status, 2) << c.Arguments.join(' ').toStdString();
        expectOneLine(run, QLatin1String(c.Mentions));
    }
    EXPECT_FALSE(QFile::exists(png));

    const ToolRun missing = Tool({QStringLiteral("dump"), home.File(QStringLiteral("gone.krf"))});
    EXPECT_EQ(missing.Status, 1);
    expectOneLine(missing, home.File(QStringLiteral("gone.krf")) + ": no such file");
    const ToolRun noHome = RunTool({QStringLiteral("modules"), "--home", home.File("nowhere")});
    EXPECT_EQ(noHome.Status, 1);
    expectOneLine(noHome, home.File(QStringLiteral("nowhere")));
}

TEST_F(ToolCommandLine, ModulesAreListedInTheProgramsOrderWithTheirKind)
{
    TestModule::Titled("alpha", "Alpha\tGame").WriteTo(home.File("modules/alpha.krm"));
    TestModule().WriteTo(home.File(QStringLiteral("modules/KRCV1A.KRM")));
    TestModule::Titled("mine", "Aardvark").WriteTo(home.File("usermods/mine.udm"));
    home.WriteFile(QStringLiteral("modules/broken.krm"), "not a pack");

    // User modules come last whatever their names; tabs in captions become blanks.
    const ToolRun text = Tool({QStringLiteral("modules")});
    ASSERT_EQ(text.Status, 0) << text.Err.toStdString();
    EXPECT_EQ(
        text.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts),
        (QStringList{"1\tkrm_alpha_v1\tAlpha Game\tstandard\t" + home.File("modules/alpha.krm"),
                     "2\tkrm_chess_by_tavrelstudio_v1\tKorvane Chess\tbuiltin\t" +
                         home.File("modules/KRCV1A.KRM"),
                     "3\tkrm_war_v1\tWar Game\tstandard\t" + home.File("modules/war.krm"),
                     "4\tudm_mine_v1\tAardvark\tuser\t" + home.File("usermods/mine.udm")}));

    // The home comes from KORVANE_HOME when --home is not given.
    const QJsonValue modules = RunTool({QStringLiteral("modules"), "--json"}).Json();
    EXPECT_EQ(modules[0]["caption"], QJsonValue("Alpha\tGame"));
    EXPECT_EQ(modules[1], QJsonValue(QJsonObject{{"position", 2},
                                                 {"id", "krm_chess_by_tavrelstudio_v1"},
                                                 {"caption", "Korvane Chess"},
                                                 {"kind", "builtin"},
                                                 {"file", home.File("modules/KRCV1A.KRM")},
                                                 {"extension", "mcm"}}));
    EXPECT_EQ(modules[3]["extension"], QJsonValue("cmf"));
}
