#include "tool/ToolTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>

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

TEST_F(ToolCommandLine, HelpAndVersionWorkForTheToolAndEveryCommand)
{
    const ToolRun help = RunTool({QStringLiteral("--help")});
    EXPECT_EQ(help.Status, 0);
    EXPECT_TRUE(help.Err.isEmpty()) << help.Err.toStdString();
    for (const char* command :
         {"modules", "info", "dump", "new", "resave", "render", "pack", "unpack", "check-module"})
        EXPECT_TRUE(help.Out.contains(QLatin1String(command))) << command;

    const ToolRun renderHelp = RunTool({QStringLiteral("render"), QStringLiteral("--help")});
    EXPECT_EQ(renderHelp.Status, 0);
    for (const char* option : {"--group", "--map", "--scale", "--output", "--home", "FILE"})
        EXPECT_TRUE(renderHelp.Out.contains(QLatin1String(option))) << option;

    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--version")},
          QStringList{QStringLiteral("info"), QStringLiteral("--version")}}) {
        const ToolRun version = RunTool(arguments);
        EXPECT_EQ(version.Status, 0);
        EXPECT_EQ(version.Out.trimmed(),
                  QStringLiteral("korvane-tool ") + QStringLiteral(KORVANE_VERSION_STRING));
    }
}

TEST_F(ToolCommandLine, UsageErrorsExitWithTwoAndSayWhatIsWrong)
{
    const QString game = Save(*NewGame(QStringLiteral("Usage")), QStringLiteral("usage.krf"));
    const struct
    {
        QStringList Arguments;
        const char* Mentions;
    } cases[] = {
        {{}, "no command"},
        {{QStringLiteral("explode")}, "explode"},
        {{QStringLiteral("info")}, "FILE"},
        {{QStringLiteral("info"), game, game}, "FILE"},
        {{QStringLiteral("info"), game, QStringLiteral("--colour")}, "colour"},
        {{QStringLiteral("resave"), game}, "--output"},
        {{QStringLiteral("render"), game, QStringLiteral("-o"), home.File("x.png"),
          QStringLiteral("--group"), QStringLiteral("0")},
         "--group"},
        {{QStringLiteral("render"), game, QStringLiteral("-o"), home.File("x.png"),
          QStringLiteral("--map"), QStringLiteral("two")},
         "--map"},
        {{QStringLiteral("render"), game, QStringLiteral("-o"), home.File("x.png"),
          QStringLiteral("--scale"), QStringLiteral("0")},
         "--scale"},
        {{QStringLiteral("info"), game, QStringLiteral("--home")}, "home"},
    };
    for (const auto& c : cases) {
        const ToolRun run = RunTool(c.Arguments);
        EXPECT_EQ(run.Status, 2) << c.Arguments.join(' ').toStdString();
        expectOneLine(run, QLatin1String(c.Mentions));
        EXPECT_TRUE(run.Out.isEmpty());
    }
    EXPECT_FALSE(QFile::exists(home.File("x.png")));
}

TEST_F(ToolCommandLine, InputThatCannotBeProcessedExitsWithOneAndNamesTheFile)
{
    const QString text = home.WriteFile(QStringLiteral("notes.krf"), "Attack at dawn.\n");
    const ToolRun notAGame = Tool({QStringLiteral("info"), text});
    EXPECT_EQ(notAGame.Status, 1);
    expectOneLine(notAGame, text + QStringLiteral(": it is not a Korvane game file"));

    const ToolRun missing = Tool({QStringLiteral("dump"), home.File("gone.krf")});
    EXPECT_EQ(missing.Status, 1);
    expectOneLine(missing, home.File("gone.krf"));

    const ToolRun noHome =
        RunTool({QStringLiteral("modules"), QStringLiteral("--home"), home.File("nowhere")});
    EXPECT_EQ(noHome.Status, 1);
    expectOneLine(noHome, home.File("nowhere"));
}

TEST_F(ToolCommandLine, ModulesAreListedInTheProgramsOrderWithTheirKind)
{
    TestModule standard;
    standard.UniqueId = QStringLiteral("alpha");
    standard.Title = QStringLiteral("Alpha\tGame");
    standard.WriteTo(home.File(QStringLiteral("modules/alpha.krm")));
    TestModule chess;
    chess.WriteTo(home.File(QStringLiteral("modules/KRCV1A.KRM")));
    TestModule user;
    user.UniqueId = QStringLiteral("mine");
    user.Title = QStringLiteral("Aardvark");
    user.WriteTo(home.File(QStringLiteral("usermods/mine.udm")));
    home.WriteFile(QStringLiteral("modules/broken.krm"), "not a pack");

    // User modules come last whatever their names; tabs in captions become blanks.
    const ToolRun text = Tool({QStringLiteral("modules")});
    ASSERT_EQ(text.Status, 0) << text.Err.toStdString();
    const QStringList expected{
        QStringLiteral("1\tkrm_alpha_v1\tAlpha Game\tstandard\t") + home.File("modules/alpha.krm"),
        QStringLiteral("2\tkrm_chess_by_tavrelstudio_v1\tKorvane Chess\tbuiltin\t") +
            home.File("modules/KRCV1A.KRM"),
        QStringLiteral("3\tkrm_war_v1\tWar Game\tstandard\t") + home.File("modules/war.krm"),
        QStringLiteral("4\tudm_mine_v1\tAardvark\tuser\t") + home.File("usermods/mine.udm"),
    };
    EXPECT_EQ(text.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts), expected);

    // The home comes from KORVANE_HOME when --home is not given.
    const ToolRun json = RunTool({QStringLiteral("modules"), QStringLiteral("--json")});
    ASSERT_EQ(json.Status, 0) << json.Err.toStdString();
    const QJsonArray modules = QJsonDocument::fromJson(json.Out.toUtf8()).array();
    ASSERT_EQ(modules.size(), 4);
    const QJsonObject chessModule = modules.at(1).toObject();
    EXPECT_EQ(chessModule.value(QStringLiteral("position")).toInt(), 2);
    EXPECT_EQ(chessModule.value(QStringLiteral("id")).toString(),
              QStringLiteral("krm_chess_by_tavrelstudio_v1"));
    EXPECT_EQ(chessModule.value(QStringLiteral("kind")).toString(), QStringLiteral("builtin"));
    EXPECT_EQ(chessModule.value(QStringLiteral("extension")).toString(), QStringLiteral("mcm"));
    EXPECT_EQ(modules.at(0).toObject().value(QStringLiteral("caption")).toString(),
              QStringLiteral("Alpha\tGame"));
    const QJsonObject userModule = modules.at(3).toObject();
    EXPECT_EQ(userModule.value(QStringLiteral("kind")).toString(), QStringLiteral("user"));
    EXPECT_EQ(userModule.value(QStringLiteral("extension")).toString(), QStringLiteral("cmf"));
    EXPECT_EQ(userModule.value(QStringLiteral("file")).toString(), home.File("usermods/mine.udm"));
}
