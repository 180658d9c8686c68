// A save cut short, by a kill or by a full disk, must never cost the file
// that was there before. These tests run korvane-tool in a child process and
// use POSIX calls (signals, resource limits) to cut it short, so they run on
// Unix only.
#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>

namespace {

class ToolSaveSurvival : public ToolFixture
{
protected:
    // Starts korvane-tool with the home appended, as RunTool does; prepare runs
    // in the child before the tool starts.
    void start(QProcess& process, QStringList arguments,
               const std::function<void()>& prepare = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
        process.setProcessEnvironment(environment);
        if (prepare)
            process.setChildProcessModifier(prepare);
        process.start(QStringLiteral(KORVANE_TOOL_PATH),
                      arguments << QStringLiteral("--home") << home.Path());
        ASSERT_TRUE(process.waitForStarted());
    }

    // A game of maps full of units: its resave takes long enough to be cut
    // short at many different points.
    QString largeGame(int maps, int unitsPerMap) const
    {
        auto game = NewGame(QStringLiteral("Long campaign"));
        CMapGroup& group = *game->ActiveMapGroup();
        for (int m = 0; m < maps; ++m) {
            CMap& map = *AddMap(group, QStringLiteral("Turn %1").arg(m + 2));
            map.SetText(QStringLiteral("Orders of turn %1").arg(m + 2));
            for (int u = 0; u < unitsPerMap; ++u)
                AddUnit(map, u % 2 ? QStringLiteral("inf") : QStringLiteral("tank"), u * 7 % 300,
                        u * 13 % 200, CUtility::GenerateId().repeated(4), QString::number(u));
        }
        return Save(*game, QStringLiteral("large.krf"));
    }

    // The output lives in a folder of its own, so leftovers would show.
    const QString outputName = QStringLiteral("out/game.krf");
    QTemporaryDir settings;
};

TEST_F(ToolSaveSurvival, KilledResaveLeavesTheOldOrTheNewFileWhole)
{
    const QString input = largeGame(60, 400);
    const QString output = home.File(outputName);
    const QByteArray newBytes = home.ReadFile(QStringLiteral("large.krf")); // resaves as it is
    auto small = NewGame(QStringLiteral("Old game"));
    Save(*small, QStringLiteral("old.krf"));
    const QByteArray oldBytes = home.ReadFile(QStringLiteral("old.krf"));
    ASSERT_NE(oldBytes, newBytes);
    home.WriteFile(outputName, oldBytes);

    // The fastest of three whole runs sets the window the kills fall into, so
    // a slow first run cannot put kills past the end of later ones.
    qint64 wholeRun = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        ASSERT_EQ(Tool({QStringLiteral("resave"), input, QStringLiteral("-o"), output}).Status, 0);
        wholeRun = std::min(wholeRun, timer.elapsed());
    }
    ASSERT_EQ(home.ReadFile(outputName), newBytes);

    std::mt19937 random(20261122);
    // Half the kills fall anywhere, half late in the run, where the game is
    // compressed and written.
    std::uniform_int_distribution<qint64> anywhere(0, wholeRun * 9 / 10);
    std::uniform_int_distribution<qint64> late(wholeRun * 7 / 10, wholeRun * 9 / 10);
    int cutShort = 0;
    for (int kill = 0; kill < 50; ++kill) {
        home.WriteFile(outputName, oldBytes);
        QProcess process;
        start(process, {QStringLiteral("resave"), input, QStringLiteral("-o"), output});
        const qint64 at = kill % 2 ? late(random) : anywhere(random);
        if (!process.waitForFinished(static_cast<int>(at))) {
            process.kill();
            ASSERT_TRUE(process.waitForFinished());
            ++cutShort;
        }
        const QByteArray found = home.ReadFile(outputName);
        ASSERT_TRUE(found == oldBytes || found == newBytes)
            << "kill " << kill << " at " << at << " ms left " << found.size() << " bytes";
    }
    // Most kills must land while the tool runs, or the loop proved nothing.
    EXPECT_GE(cutShort, 25);

    ASSERT_EQ(Tool({QStringLiteral("resave"), input, QStringLiteral("-o"), output}).Status, 0);
    EXPECT_EQ(home.ReadFile(outputName), newBytes);
    EXPECT_EQ(QDir(home.File(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("game.krf")});
}

TEST_F(ToolSaveSurvival, FullDiskFailsTheSaveAndKeepsTheOldFile)
{
    const QString input = largeGame(10, 400);
    const QString output = home.File(outputName);
    auto small = NewGame(QStringLiteral("Old game"));
    Save(*small, QStringLiteral("old.krf"));
    const QByteArray oldBytes = home.ReadFile(QStringLiteral("old.krf"));
    home.WriteFile(outputName, oldBytes);

    // Writing past the limit fails with EFBIG instead of raising SIGXFSZ,
    // as a full disk fails with ENOSPC.
    // The resaved file is as long as the input; the swap files are shorter.
    const rlim_t limit = static_cast<rlim_t>(QFile(input).size() - 1);
    QProcess process;
    start(process, {QStringLiteral("resave"), input, QStringLiteral("-o"), output}, [limit] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit fileSize{limit, limit};
        setrlimit(RLIMIT_FSIZE, &fileSize);
    });
    ASSERT_TRUE(process.waitForFinished(120000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QString error = QString::fromUtf8(process.readAllStandardError());
    EXPECT_TRUE(error.startsWith(QStringLiteral("korvane-tool: ") + output +
                                 QStringLiteral(": cannot be written")))
        << error.toStdString();
    EXPECT_EQ(home.ReadFile(outputName), oldBytes);
    EXPECT_EQ(QDir(home.File(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("game.krf")});
}

} // namespace
#endif
