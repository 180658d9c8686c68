#include "tool/ToolTestSupport.h"

#include "contexts/CResFileMgr.h"
#include "core/CKorvane.h"

#include <QDir>
#include <QFile>

namespace {

class ToolModulePack : public ToolFixture
{
protected:
    // A module's sources as an author keeps them, with a hidden file and a folder.
    QString sourceFolder() const
    {
        home.WriteFile(QStringLiteral("src/module.def"), WarModule().Definition().toUtf8());
        for (const char* picture : {"board.png", "icon.png", "inf.png", "tank.png", "move.png"})
            home.WriteFile(QStringLiteral("src/") + QLatin1String(picture),
                           TestModule::Picture(QLatin1String(picture), {UnitSize, UnitSize}));
        home.WriteFile(QStringLiteral("src/Notes.TXT"), QByteArray(3000, 'n'));
        home.WriteFile(QStringLiteral("src/empty.dat"), QByteArray());
        home.WriteFile(QStringLiteral("src/.backup.swp"), "editor leftovers");
        home.WriteFile(QStringLiteral("src/drafts/old.png"), "draft");
        return home.File(QStringLiteral("src"));
    }

    // check-module's failure: status 1, one line on stderr naming the pack and
    // its first problem; every problem on stdout, one a line.
    QStringList problemsOf(const QString& fileName, const QByteArray& pack) const
    {
        const QString path = home.WriteFile(fileName, pack);
        const ToolRun run = Tool({QStringLiteral("check-module"), path});
        EXPECT_EQ(run.Status, 1);
        const QStringList problems = run.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        EXPECT_EQ(
            run.ErrLines(),
            QStringList{"korvane-tool: " + path + ": " + problems.value(0) +
                        (problems.size() > 1
                             ? QStringLiteral(" (and %1 more problems)").arg(problems.size() - 1)
                             : QString())});
        return problems;
    }
};

} // namespace

TEST_F(ToolModulePack, PackThenUnpackGivesBackTheSameFilesAndRefuseWhatTheyCannotUse)
{
    const QString folder = sourceFolder();
    const QString pack = home.File(QStringLiteral("war2.krm"));
    ASSERT_EQ(Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), pack}).Status, 0);

    // module.def first; hidden files and folders stay out.
    CResFileMgr reader(home.Path(), QStringLiteral("war2.krm"));
    ASSERT_EQ(reader.EntryCount(), 8) << reader.LastError().toStdString();
    EXPECT_EQ(reader.Entry(1).Name, QStringLiteral("module.def"));

    const QString unpacked = home.File(QStringLiteral("unpacked"));
    ASSERT_EQ(Tool({QStringLiteral("unpack"), pack, QStringLiteral("-o"), unpacked}).Status, 0);
    const QStringList names = QDir(unpacked).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(names.size(), 8);
    for (const QString& source : QDir(folder).entryList(QDir::Files)) {
        // Packs keep names in lower case.
        EXPECT_EQ(home.ReadFile("unpacked/" + source.toLower()), home.ReadFile("src/" + source))
            << source.toStdString();
    }

    // A pack written into the folder it packs is never packed into itself.
    const QString inside = folder + QStringLiteral("/war3.krm");
    ASSERT_EQ(Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), inside}).Status, 0);
    ASSERT_EQ(Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), inside}).Status, 0);
    EXPECT_EQ(CResFileMgr(folder, QStringLiteral("war3.krm")).EntryCount(), 8);

    const ToolRun check = Tool({QStringLiteral("check-module"), pack});
    ASSERT_EQ(check.Status, 0) << check.Out.toStdString() << check.Err.toStdString();
    EXPECT_TRUE(check.Out.contains(QStringLiteral("no problems found")));

    // Both refuse what they cannot use and write nothing.
    const QString refused = home.File(QStringLiteral("refused.krm"));
    QFile::remove(folder + QStringLiteral("/module.def"));
    ToolRun run = Tool({QStringLiteral("pack"), folder, QStringLiteral("-o"), refused});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Err.contains(QStringLiteral("module.def"))) << run.Err.toStdString();
    EXPECT_FALSE(QFile::exists(refused));

    // A pack cut short: its directory still reads, its last entry does not.
    const QByteArray whole = WarModule().Pack();
    const QString cut = home.WriteFile(QStringLiteral("cut.krm"), whole.left(whole.size() - 40));
    run = Tool({QStringLiteral("unpack"), cut, QStringLiteral("-o"), home.File("cut")});
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.ErrLines().size(), 1);
    EXPECT_TRUE(run.Err.startsWith("korvane-tool: " + cut + ": ")) << run.Err.toStdString();
    EXPECT_FALSE(QFile::exists(home.File(QStringLiteral("cut"))));
}

TEST_F(ToolModulePack, CheckModuleNamesTheFaultyEntry)
{
    TestModule module = WarModule();
    // Every picture problem is listed under its own entry (and the picture
    // library's own complaints about a damaged PNG stay off stderr).
    module.Tokens[1].Unit = QStringLiteral("ghost.png");
    QByteArray damaged = TestModule::Picture(QStringLiteral("inf.png"), {UnitSize, UnitSize});
    damaged[damaged.size() - 20] = ~damaged[damaged.size() - 20];
    QStringList problems = problemsOf(QStringLiteral("pictures.krm"),
                                      module.Pack({{QStringLiteral("board.png"), "not a picture"},
                                                   {QStringLiteral("inf.png"), damaged}},
                                                  {QStringLiteral("ghost.png")}));
    ASSERT_EQ(problems.size(), 3);
    EXPECT_TRUE(problems[0].startsWith(QStringLiteral("board.png: not a picture")));
    EXPECT_TRUE(problems[1].startsWith(QStringLiteral("inf.png: not a picture")));
    EXPECT_TRUE(problems[2].startsWith(QStringLiteral("ghost.png: missing")));
    EXPECT_TRUE(problems[2].contains(QStringLiteral("token 'tank'")));

    // A click region outside the picture, and an initial game that is not one.
    module = WarModule();
    module.Tokens[0].Left = 30;
    module.Tokens[0].Width = 10;
    module.InitialGame = QStringLiteral("start.krf");
    problems = problemsOf(QStringLiteral("game.krm"),
                          module.Pack({{QStringLiteral("start.krf"), "KR01 garbage"}}));
    ASSERT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems[0].startsWith(QStringLiteral("module.def: token 'inf'")));
    EXPECT_TRUE(problems[1].startsWith(QStringLiteral("start.krf: ")));

    // Odd entries are ignored one by one, each named; the module still checks.
    problems = problemsOf(
        QStringLiteral("odd.krm"),
        AppendRawEntries(WarModule(), {{"notes..txt", "n"}, {"Board.PNG", "not the board"}}));
    EXPECT_EQ(problems, (QStringList{"notes..txt: ignored: a name a pack may not hold",
                                     "board.png: ignored: a second entry of that name (the "
                                     "first is used)"}));

    // A user module without a definition.
    problems = problemsOf(QStringLiteral("nodef.udm"),
                          WarModule().Pack({}, {QStringLiteral("module.def")}));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].startsWith(QStringLiteral("module.def: missing")));
}

TEST_F(ToolModulePack, ProcessesSharingAHomeKeepEachOthersCacheAndTrace)
{
    // This process stands for the program: it has found the module but not
    // used it yet.
    context.reset();
    ReleaseRoot();
    StartRoot();
    const QString cache = home.File(QStringLiteral("cache"));
    const QStringList cached = QDir(cache).entryList(QDir::Files);
    ASSERT_EQ(cached.size(), 1);
    home.WriteFile(QStringLiteral("debug.txt"), "the program's trace");

    // Two tools side by side, then one more after them: the cache file they
    // found stays, and so does the program's trace.
    const QStringList newGame{QStringLiteral("new"), QStringLiteral("krm_war_v1"), "--home",
                              home.Path(), "-o"};
    auto first = StartTool(newGame + QStringList{home.File(QStringLiteral("a.krf"))});
    auto second = StartTool(newGame + QStringList{home.File(QStringLiteral("b.krf"))});
    EXPECT_EQ(FinishTool(*first).Status, 0);
    EXPECT_EQ(FinishTool(*second).Status, 0);
    EXPECT_EQ(QDir(cache).entryList(QDir::Files), cached);
    EXPECT_EQ(home.ReadFile(QStringLiteral("debug.txt")), QByteArray("the program's trace"));
}
