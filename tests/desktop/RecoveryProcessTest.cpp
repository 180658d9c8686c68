#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "model/CGame.h"
#include "persist/CGameFile.h"
#include "support/ContextTestSupport.h"
#include "support/TestHome.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A root in this process on the home, with its one module active.
struct ModuleSession
{
    ModuleSession()
    {
        context->Activate(nullptr);
        root.SetContext(context);
    }
    ~ModuleSession() { ReleaseRoot(); }

    CKorvane& root = StartRoot();
    std::shared_ptr<IGameContext> context = root.ContextMgr().Context(1);
};

QString nameIn(const QByteArray& file)
{
    const ModuleSession session;
    QString error;
    const auto game = CGameFile::FromBytes(file, &error);
    return game ? game->Name() : error;
}

// The scripted program on a home with the test module and an autosave every
// second, started on a named file.
struct ScriptedKorvane
{
    ScriptedKorvane()
    {
        TestModule().WriteTo(home.File("modules/test.krm"));
        home.WriteFile("config/Korvane/Korvane.conf", "[CRecoveryMgr]\nAutosaveSeconds=1\n");
    }
    // A game file of the module holding a game of that name.
    QString game(const QString& file, const QString& name)
    {
        const ModuleSession session;
        const auto made = session.context->CreateDefaultGame();
        made->SetName(name);
        return home.WriteFile(file, CGameFile::ToBytes(*made, session.context->Id()));
    }
    void start(const QString& script, const QString& file)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("KORVANE_SCRIPT", script);
        env.insert("XDG_CONFIG_HOME", home.File("config"));
        korvane.setProcessEnvironment(env);
        korvane.start(KORVANE_SCRIPTED, {file});
    }
    // Started on file, it renames the game and is killed once the recovery
    // copy is written.
    void crashAfterRenaming(const QString& file, const QString& name)
    {
        start("rename:" + name, file);
        // The info file is written last.
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return !recovery.entryList({"*.json"}).isEmpty(); }, 20000));
        korvane.kill();
        korvane.waitForFinished();
    }

    TestHome home;
    const QDir recovery{home.File("cache/recovery")};
    QProcess korvane;
};

} // namespace

TEST(RecoveryProcess, AKilledKorvaneOffersItsChangesAtTheNextStartAndACleanExitLeavesNothing)
{
    ScriptedKorvane run;
    const QString file = run.game("turn.krf", "Kursk");
    const QByteArray original = run.home.ReadFile("turn.krf");
    run.crashAfterRenaming(file, "Kursk, moved");
    EXPECT_EQ(run.home.ReadFile("turn.krf"), original);

    run.start("yes;save;quit", file);
    ASSERT_TRUE(run.korvane.waitForFinished(30000));
    EXPECT_EQ(run.korvane.exitCode(), 0);
    EXPECT_EQ(nameIn(run.home.ReadFile("turn.krf")), "Kursk, moved");
    EXPECT_EQ(run.recovery.entryList(QDir::Files), QStringList());
}

TEST(RecoveryProcess, AnotherFileNamedAtTheStartOpensAfterTheRestoredGameIsOfferedForSaving)
{
    ScriptedKorvane run;
    const QString restored = run.game("turn.krf", "Kursk");
    const QByteArray original = run.home.ReadFile("turn.krf");
    const QString named = run.game("next.krf", "Orel");
    run.crashAfterRenaming(restored, "Kursk, moved");

    // Restore, then No to saving the restored game before the named file opens.
    run.start("yes;no;rename:Orel, held;save;quit", named);
    ASSERT_TRUE(run.korvane.waitForFinished(30000));
    EXPECT_EQ(run.korvane.exitCode(), 0);
    EXPECT_EQ(nameIn(run.home.ReadFile("next.krf")), "Orel, held");
    EXPECT_EQ(run.home.ReadFile("turn.krf"), original);
}
