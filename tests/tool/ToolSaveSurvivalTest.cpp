// A save cut short, by a kill or by a full disk, must never cost the file
// that was there before. These tests cut korvane-tool short with POSIX calls
// (signals, resource limits), so they run on Unix only.
#include "tool/ToolTestSupport.h"

#include "contexts/IGameContext.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <random>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>

namespace {

class ToolSaveSurvival : public ToolFixture
{
protected:
    // The arguments of a resave of a game of maps full of units (long enough
    // to be cut short at many points) over an older small game, which lies in
    // a folder of its own so that leftovers would show.
    QStringList resaveOverAnOldGame(int maps)
    {
        auto game = NewGame(QStringLiteral("Long campaign"));
        for (int m = 0; m < maps; ++m) {
            CMap& map = *AddMap(*game->ActiveMapGroup(), QStringLiteral("Turn %1").arg(m + 2));
            map.SetText(QStringLiteral("Orders of turn %1").arg(m + 2));
            for (int u = 0; u < 400; ++u)
                AddUnit(map, u % 2 ? QStringLiteral("inf") : QStringLiteral("tank"), u * 7 % 300,
                        u * 13 % 200, CUtility::GenerateId().repeated(4), QString::number(u));
        }
        const QString input = Save(*game, QStringLiteral("large.krf"));
        newBytes = home.ReadFile(QStringLiteral("large.krf")); // resaves as it is
        oldBytes = CGameFile::ToBytes(*NewGame(QStringLiteral("Old game")), context->Id());
        home.WriteFile(QStringLiteral("out/game.krf"), oldBytes);
        return {QStringLiteral("resave"), input, "-o", output, "--home", home.Path()};
    }

    QByteArray found() const { return home.ReadFile(QStringLiteral("out/game.krf")); }
    QStringList outputFolder() const
    {
        return QDir(home.File(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden);
    }

    const QString output = home.File(QStringLiteral("out/game.krf"));
    QByteArray oldBytes;
    QByteArray newBytes;
};

TEST_F(ToolSaveSurvival, KilledResaveLeavesTheOldOrTheNewFileWhole)
{
    const QStringList resave = resaveOverAnOldGame(60);
    // The fastest of three whole runs sets the window the kills fall into, so
    // a slow first run cannot put kills past the end of later ones.
    qint64 wholeRun = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        ASSERT_EQ(RunTool(resave).Status, 0);
        wholeRun = std::min(wholeRun, timer.elapsed());
    }
    ASSERT_EQ(found(), newBytes);

    std::mt19937 random(20261122);
    int cutShort = 0;
    for (int kill = 0; kill < 50; ++kill) {
        home.WriteFile(QStringLiteral("out/game.krf"), oldBytes);
        QElapsedTimer timer;
        timer.start();
        const auto process = StartTool(resave);
        // Half the kills fall anywhere, half late in the run, where the game
        // is compressed and written.
        const qint64 at = std::uniform_int_distribution<qint64>(kill % 2 ? wholeRun * 7 / 10 : 0,
                                                                wholeRun * 9 / 10)(random);
        if (!process->waitForFinished(static_cast<int>(at))) {
            process->kill();
            ASSERT_TRUE(process->waitForFinished());
            ++cutShort;
        } else {
            // A run faster than those timed (the machine got quieter) narrows the window.
            wholeRun = std::min(wholeRun, timer.elapsed());
        }
        ASSERT_TRUE(found() == oldBytes || found() == newBytes)
            << "kill " << kill << " at " << at << " ms left " << found().size() << " bytes";
    }
    // Most kills must land while the tool runs, or the loop proved nothing.
    EXPECT_GE(cutShort, 25);
    // A kill in the middle of the write can leave the writer's temporary
    // sibling ("game.krf.XXXXXX") behind, never anything else; a whole run
    // leaves nothing of its own.
    const QStringList killedLeft = outputFolder();
    const QRegularExpression temporary(QStringLiteral("^game\\.krf(\\.\\w{6})?$"));
    for (const QString& name : killedLeft)
        EXPECT_TRUE(temporary.match(name).hasMatch()) << name.toStdString();
    ASSERT_EQ(RunTool(resave).Status, 0);
    EXPECT_EQ(found(), newBytes);
    EXPECT_EQ(outputFolder(), killedLeft);
}

TEST_F(ToolSaveSurvival, FullDiskFailsTheSaveAndKeepsTheOldFile)
{
    const QStringList resave = resaveOverAnOldGame(10);
    // Writing past the limit fails with EFBIG instead of raising SIGXFSZ, as
    // a full disk fails with ENOSPC. The swap files are shorter than the game.
    const auto limit = static_cast<rlim_t>(newBytes.size() - 1);
    const ToolRun run = FinishTool(*StartTool(resave, [limit] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit fileSize{limit, limit};
        setrlimit(RLIMIT_FSIZE, &fileSize);
    }));
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Err.startsWith("korvane-tool: " + output + ": cannot be written"))
        << run.Err.toStdString();
    EXPECT_EQ(found(), oldBytes);
    EXPECT_EQ(outputFolder(), QStringList{QStringLiteral("game.krf")});
}

} // namespace
#endif
