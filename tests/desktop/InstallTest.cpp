#include "contexts/CModuleInstaller.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "support/ContextTestSupport.h"
#include "support/EnvScope.h"
#include "support/QtPrinters.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct ProgramRun
{
    int Status = -1;
    QString Out;
};

// Runs a program to its end with stdout and stderr together.
ProgramRun run(const QString& program, const QStringList& arguments,
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ProgramRun result;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit)
        result.Status = process.exitCode();
    result.Out = QString::fromLocal8Bit(process.readAll());
    return result;
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

// The module files "korvane-tool modules" lists, in its order.
QStringList moduleFiles(const ProgramRun& listing)
{
    QStringList files;
    for (const QString& line : listing.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        files << line.section(QLatin1Char('\t'), 4);
    return files;
}

} // namespace

TEST(Installed, FindsTheShippedModulesAndWritesOnlyIntoTheUsersFolders)
{
    QTemporaryDir destDir;
    QTemporaryDir userDir;
    const QString user = userDir.path();
    QProcessEnvironment installEnv = QProcessEnvironment::systemEnvironment();
    installEnv.insert("DESTDIR", destDir.path());
    const ProgramRun install =
        run(KORVANE_CMAKE, {"--install", KORVANE_BUILD_DIR, "--prefix", "/usr"}, installEnv);
    ASSERT_EQ(install.Status, 0) << install.Out.toStdString();
    const QString prefix = destDir.path() + "/usr/";
    const QString shipped = prefix + "share/korvane/modules/";
    const QStringList expected{"bin/korvane-tool", "share/applications/korvane.desktop",
                               "share/mime/packages/korvane.xml",
                               "share/icons/hicolor/scalable/apps/korvane.svg", "bin/korvane"};
    for (const QString& file : expected)
        EXPECT_TRUE(QFileInfo(prefix + file).isFile()) << file.toStdString();

    const ProgramRun validate = run("desktop-file-validate", {prefix + expected[1]});
    EXPECT_EQ(validate.Status, 0);
    EXPECT_EQ(validate.Out, "");
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("KORVANE_HOME");
    for (const char* name : {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "HOME"})
        env.insert(name, user + '/' + name);
    // shared-mime-info compiles the package only when it reads it.
    const QString mimeDir = env.value("XDG_DATA_HOME") + "/mime";
    QDir().mkpath(mimeDir + "/packages");
    QFile::copy(prefix + expected[2], mimeDir + "/packages/korvane.xml");
    const ProgramRun mime = run("update-mime-database", {mimeDir}, env);
    EXPECT_EQ(mime.Status, 0);
    EXPECT_EQ(mime.Out, "");
    QFile globs(mimeDir + "/globs2");
    ASSERT_TRUE(globs.open(QIODevice::ReadOnly));
    EXPECT_TRUE(globs.readAll().contains(":application/x-korvane-game:*.krf"));

    const QStringList before = snapshot(destDir.path());
    const ProgramRun first = run(prefix + "bin/korvane-tool", {"modules"}, env);
    ASSERT_EQ(first.Status, 0) << first.Out.toStdString();
    EXPECT_EQ(moduleFiles(first), QStringList({shipped + "skirmish.krm", shipped + "krcv1a.krm"}));

    // Installing a module puts it into the user's folder, and that copy wins.
    {
        EnvScope scope;
        scope.Set("KORVANE_HOME", std::nullopt);
        for (const char* name : {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
            scope.Set(name, env.value(name).toLocal8Bit());
        StartRoot();
        ScriptedMessages messages;
        EXPECT_EQ(CModuleInstaller::Install(shipped + "skirmish.krm", messages),
                  CModuleInstaller::Result::Installed);
        ReleaseRoot();
    }
    const QString mine = user + "/XDG_DATA_HOME/korvane/modules/skirmish.krm";
    env.insert("KORVANE_TRACE", "1");
    const ProgramRun second = run(prefix + "bin/korvane-tool", {"modules"}, env);
    EXPECT_EQ(moduleFiles(second), QStringList({mine, shipped + "krcv1a.krm"}));
    EXPECT_TRUE(QFileInfo(user + "/XDG_STATE_HOME/korvane/debug.txt").isFile());
    EXPECT_EQ(snapshot(destDir.path()), before);
}
