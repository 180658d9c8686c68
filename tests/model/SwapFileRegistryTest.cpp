// Swap files of a process that died are removed by the next one that swaps;
// those of a process still running are not. The other processes are forks
// of this one, so this runs on Unix only.
#include "core/CUtility.h"
#include "model/CSwapFileRegistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void writeSwap(const QString& path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("units");
}

// A process that registers and writes the files, then waits on the pipe
// until it is killed.
pid_t swappingProcess(const QStringList& files, int (&ready)[2])
{
    EXPECT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        for (const QString& file : files) {
            CSwapFileRegistry::Register(file);
            writeSwap(file);
        }
        const char done = 1;
        if (write(ready[1], &done, 1) != 1)
            _exit(1);
        pause();
        _exit(0);
    }
    char done = 0;
    EXPECT_EQ(read(ready[0], &done, 1), 1);
    return child;
}

} // namespace

TEST(SwapFileRegistry, LeftoversOfADeadProcessGoWhenTheNextOneSwapsAndALiveOnesStay)
{
    CSwapFileRegistry::RemoveAll();
    QTemporaryDir cache;
    const QString dir = cache.path() + QLatin1Char('/');
    const auto newSwap = [&] { return dir + CUtility::GenerateId() + QStringLiteral(".tmp"); };
    const auto names = [&](const QString& pattern) {
        return QDir(dir).entryList({pattern}, QDir::Files, QDir::Name);
    };
    const QStringList childFiles{newSwap(), newSwap()};
    int ready[2];
    const pid_t child = swappingProcess(childFiles, ready);
    ASSERT_GT(child, 0);
    // Named like a swap file but never listed: not ours to remove.
    writeSwap(dir + QStringLiteral("0123456789ABCDEF0123456789ABCDEF.tmp"));

    // The other process runs: its files stay.
    const QString mine = newSwap();
    CSwapFileRegistry::Register(mine);
    writeSwap(mine);
    EXPECT_EQ(names(QStringLiteral("*.tmp")).size(), 4);
    EXPECT_EQ(names(QStringLiteral("swap-*.list")).size(), 2);

    // Killed: the next process to swap (here, this one once it has started
    // afresh) removes what it left, and ends leaving nothing of its own.
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    close(ready[0]);
    close(ready[1]);
    CSwapFileRegistry::RemoveAll();
    EXPECT_FALSE(QFile::exists(mine));
    const QString next = newSwap();
    CSwapFileRegistry::Register(next);
    writeSwap(next);
    EXPECT_EQ(names(QStringLiteral("*.tmp")),
              (QStringList{QStringLiteral("0123456789ABCDEF0123456789ABCDEF.tmp"),
                           QFileInfo(next).fileName()}));
    EXPECT_EQ(names(QStringLiteral("swap-*")).size(), 2); // this process's list and lock
    CSwapFileRegistry::Forget(next);
    QFile::remove(next);
    EXPECT_EQ(names(QStringLiteral("swap-*")), QStringList());
}
#endif
