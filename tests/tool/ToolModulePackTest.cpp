#include "tool/ToolTestSupport.h"

#include "contexts/CResFileMgr.h"
#include "support/PackEdit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

class ToolModulePack : public ToolFixture
{
protected:
    // A module's sources as an author keeps them.
    QString sourceFolder()
    {
        const TestModule module = WarModule();
        home.WriteFile(QStringLiteral("src/module.def"), module.Definition().toUtf8());
        for (const char* picture : {"board.png", "icon.png", "inf.png", "tank.png", "move.png"}) {
            const QString name = QLatin1String(picture);
            const QSize size = name == QLatin1String("board.png") ? QSize(BoardWidth, BoardHeight)
                                                                  : QSize(UnitSize, UnitSize);
            home.WriteFile(QStringLiteral("src/") + name, TestModule::Picture(name, size));
        }
        home.WriteFile(QStringLiteral("src/Notes.TXT"), QByteArray(3000, 'n'));
        home.WriteFile(QStringLiteral("src/empty.dat"), QByteArray());
        home.WriteFile(QStringLiteral("src/.backup.swp"), "editor leftovers");
        home.WriteFile(QStringLiteral("src/drafts/old.png"), "draft");
        return home.File(QStringLiteral("src"));
    }

    // A copy of the war module with its pack edited; returns its path.
    QString brokenModule(const QString& fileName, const TestModule& module,
                         const QMap<QString, QByteArray>& replace, const QStringList& drop = {})
    {
        return home.WriteFile(fileName, EditPack(module.Pack(), replace, drop));
    }

    // check-module's failure: status 1, one line on stderr naming the pack and
    // the first problem, every problem on stdout.
    QStringList problemsOf(const QString& pack)
    {
        const ToolRun run = Tool({QStringLiteral("check-module"), pack});
        EXPECT_EQ(run.Status, 1);
        EXPECT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
        EXPECT_TRUE(run.Err.startsWith(QStringLiteral("korvane-tool: ") + pack + ": "))
            << run.Err.toStdString();
        const QStringList problems = run.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        if (!problems.isEmpty()) {
            EXPECT_TRUE(run.Err.contains(problems.constFirst())) << run.Err.toStdString();
        }
        return problems;
    }
};

} // namespace

TEST_F(ToolModulePack, PackThenUnpackGivesBackTheSameFiles)
{
    const QString folder = sourceFolder();
    const QString pack = home.File(QStringLiteral("out/war2.krm"));
    QDir().mkpath(home.File(QStringLiteral("out")));
    const ToolRun packed = Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), pack});
    ASSERT_EQ(packed.Status, 0) << packed.Err.toStdString();

    // module.def first; hidden files and folders stay out; text shrinks, pictures may not.
    CResFileMgr reader(home.File(QStringLiteral("out")), QStringLiteral("war2.krm"));
    ASSERT_TRUE(reader.IsOpen()) << reader.LastError().toStdString();
    ASSERT_EQ(reader.EntryCount(), 8);
    EXPECT_EQ(reader.Entry(1).Name, QStringLiteral("module.def"));
    EXPECT_EQ(reader.FindEntry(QStringLiteral(".backup.swp")), 0);
    EXPECT_EQ(reader.FindEntry(QStringLiteral("old.png")), 0);
    EXPECT_TRUE(reader.Entry(reader.FindEntry(QStringLiteral("notes.txt"))).IsCompressed());

    const QString unpacked = home.File(QStringLiteral("unpacked"));
    const ToolRun run = Tool({QStringLiteral("unpack"), pack, QStringLiteral("-o"), unpacked});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    QStringList names = QDir(unpacked).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(names.size(), 8);
    for (const QFileInfo& source : QDir(folder).entryInfoList(QDir::Files)) {
        // Packs keep names in lower case.
        const QString name = source.fileName().toLower();
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
        EXPECT_EQ(home.ReadFile(QStringLiteral("unpacked/") + name),
                  home.ReadFile(QStringLiteral("src/") + source.fileName()))
            << name.toStdString();
    }

    // Packing a folder into a pack inside it leaves the old pack out.
    const QString inside = folder + QStringLiteral("/war3.krm");
    ASSERT_EQ(Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), inside}).Status, 0);
    ASSERT_EQ(Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), inside}).Status, 0);
    EXPECT_EQ(CResFileMgr(folder, QStringLiteral("war3.krm")).EntryCount(), 8);

    // The new pack is a sound module.
    const ToolRun check = Tool({QStringLiteral("check-module"), pack});
    ASSERT_EQ(check.Status, 0) << check.Out.toStdString() << check.Err.toStdString();
    EXPECT_TRUE(check.Out.contains(QStringLiteral("no problems found")));
    EXPECT_TRUE(check.Out.contains(QStringLiteral("Id: krm_war_v1")));
    EXPECT_TRUE(check.Out.contains(QStringLiteral("Tokens: 3")));
}

TEST_F(ToolModulePack, PackAndUnpackRefuseWhatTheyCannotUseAndWriteNothing)
{
    const QString folder = sourceFolder();
    const QString pack = home.File(QStringLiteral("war2.krm"));

    QFile::remove(folder + QStringLiteral("/module.def"));
    ToolRun run = Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), pack});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Err.contains(QStringLiteral("module.def"))) << run.Err.toStdString();
    EXPECT_FALSE(QFile::exists(pack));

    run = Tool({QStringLiteral("pack"), home.File(QStringLiteral("nowhere")), "-o", pack});
    EXPECT_EQ(run.Status, 1);
    EXPECT_FALSE(QFile::exists(pack));

    // A pack cut short: its directory still reads, an entry does not.
    const QByteArray whole = WarModule().Pack();
    const QString cut = home.WriteFile(QStringLiteral("cut.krm"), whole.left(whole.size() - 40));
    const QString target = home.File(QStringLiteral("cut"));
    run = Tool({QStringLiteral("unpack"), cut, QStringLiteral("-o"), target});
    EXPECT_EQ(run.Status, 1);
    ASSERT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
    EXPECT_TRUE(run.Err.startsWith(QStringLiteral("korvane-tool: ") + cut));
    EXPECT_FALSE(QFileInfo::exists(target));
}

TEST_F(ToolModulePack, CheckModuleNamesTheFaultyEntry)
{
    TestModule module = WarModule();
    // A token type outside the grammar: the line of that token is named.
    const QString definition =
        module.Definition().replace(QStringLiteral("token_id=\"tank\" token_type=\"Image\""),
                                    QStringLiteral("token_id=\"tank\" token_type=\"Tank\""));
    const int line = static_cast<int>(
        definition.left(definition.indexOf(QStringLiteral("\"Tank\""))).count(QLatin1Char('\n')) +
        1);
    QStringList problems =
        problemsOf(brokenModule(QStringLiteral("badtype.krm"), module,
                                {{QStringLiteral("module.def"), definition.toUtf8()}}));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.constFirst().startsWith(QStringLiteral("module.def: line %1: ").arg(line)))
        << problems.constFirst().toStdString();

    // Every picture problem is listed, each under its own entry.
    module.Tokens[1].Unit = QStringLiteral("ghost.png");
    problems = problemsOf(brokenModule(QStringLiteral("pictures.krm"), module,
                                       {{QStringLiteral("board.png"), "not a picture"}},
                                       {QStringLiteral("ghost.png")}));
    ASSERT_EQ(problems.size(), 2) << problems.join('\n').toStdString();
    EXPECT_TRUE(problems.at(0).startsWith(QStringLiteral("board.png: not a picture")));
    EXPECT_TRUE(problems.at(1).startsWith(QStringLiteral("ghost.png: missing")));
    EXPECT_TRUE(problems.at(1).contains(QStringLiteral("'tank'")));

    // A click region outside the picture, and an initial game that is not one.
    module = WarModule();
    module.Tokens[0].Left = 30;
    module.Tokens[0].Width = 10;
    module.InitialGame = QStringLiteral("start.krf");
    problems = problemsOf(brokenModule(QStringLiteral("game.krm"), module,
                                       {{QStringLiteral("start.krf"), "KR01 garbage"}}));
    ASSERT_EQ(problems.size(), 2) << problems.join('\n').toStdString();
    EXPECT_TRUE(problems.at(0).startsWith(QStringLiteral("module.def: token 'inf'")));
    EXPECT_TRUE(problems.at(1).startsWith(QStringLiteral("start.krf: ")));

    // A pack that is not one, and a pack without a definition.
    problems = problemsOf(home.WriteFile(QStringLiteral("junk.krm"), "junk"));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.constFirst().startsWith(QStringLiteral("junk.krm: ")));
    problems = problemsOf(
        brokenModule(QStringLiteral("nodef.udm"), WarModule(), {}, {QStringLiteral("module.def")}));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.constFirst().startsWith(QStringLiteral("module.def: missing")));
}
