
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Runs a program to its end: "exit code|stdout and stderr" (-1 when it crashed).
QString run(const QString& program, const QStringList& arguments,
            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended =
        process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
    return QString::number(ended ? process.exitCode() : -1) + QLatin1Char('|') +
           QString::fromLocal8Bit(process.readAll());
}

// Every entry under a folder with its size and modification time.
QStringList snapshot(const QString& folder)
{
    QStringList entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info = it.nextFileInfo();
        entries << info.filePath() + QLatin1Char(' ') + QString::number(info.size()) +
                       QLatin1Char(' ') + info.lastModified().toString(Qt::ISODateWithMs);
    }
    entries.sort();
    return entries;
}

// The module files a successful "korvane-tool modules" lists, in its order.
QStringList moduleFiles(const QString& listing)
{
    QStringList files;
    for (const QString& line : listing.mid(2).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        files << line.section(QLatin1Char('\t'), 4);
    return listing.startsWith(QStringLiteral("0|")) ? files : QStringList{listing};
}

} // namespace

TEST(Installed, FindsTheShippedModulesAndWritesOnlyIntoTheUsersFolders)
{
    QTemporaryDir destDir;
    QTemporaryDir userDir;
    const QString user = userDir.path();
    QProcessEnvironment installEnv = QProcessEnvironment::systemEnvironment();
    installEnv.insert("DESTDIR", destDir.path());
    const QString install =
        run(KORVANE_CMAKE, {"--install", KORVANE_BUILD_DIR, "--prefix", "/usr"}, installEnv);
    ASSERT_TRUE(install.startsWith(QStringLiteral("0|"))) << install.toStdString();
    const QString prefix = destDir.path() + "/usr/";
    const QString shipped = prefix + "share/korvane/modules/";
    // The tool, the desktop entry and the file type are used below.
    for (const char* file : {"games/korvane", "share/icons/hicolor/scalable/apps/korvane.svg"})
        EXPECT_TRUE(QFileInfo(prefix + file).isFile()) << file;
    EXPECT_EQ(run("desktop-file-validate", {prefix + "share/applications/korvane.desktop"}), "0|");
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("KORVANE_HOME");
    for (const char* name : {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "HOME"})
        env.insert(name, user + '/' + name);
    // shared-mime-info compiles the package only when it reads it.
    const QString mimeDir = env.value("XDG_DATA_HOME") + "/mime";
    QDir().mkpath(mimeDir + "/packages");
    QFile::copy(prefix + "share/mime/packages/korvane.xml", mimeDir + "/packages/korvane.xml");
    EXPECT_EQ(run("update-mime-database", {mimeDir}, env), "0|");
    QFile globs(mimeDir + "/globs2");
    ASSERT_TRUE(globs.open(QIODevice::ReadOnly));
    EXPECT_TRUE(globs.readAll().contains(":application/x-korvane-game:*.krf"));

    const QStringList before = snapshot(destDir.path());
    EXPECT_EQ(moduleFiles(run(prefix + "bin/korvane-tool", {"modules"}, env)),
              QStringList({shipped + "skirmish.krm", shipped + "krcv1a.krm"}));

    // A module in the user's folder wins over the shipped one of that name.
    const QString mine = user + "/XDG_DATA_HOME/korvane/modules/skirmish.krm";
    QDir().mkpath(QFileInfo(mine).absolutePath());
    ASSERT_TRUE(QFile::copy(shipped + "skirmish.krm", mine));
    env.insert("KORVANE_TRACE", "1");
    EXPECT_EQ(moduleFiles(run(prefix + "bin/korvane-tool", {"modules"}, env)),
              QStringList({mine, shipped + "krcv1a.krm"}));
    EXPECT_TRUE(QFileInfo(user + "/XDG_STATE_HOME/korvane/debug.txt").isFile());
    EXPECT_EQ(snapshot(destDir.path()), before);
}
