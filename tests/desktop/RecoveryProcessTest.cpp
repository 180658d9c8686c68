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

} // namespace

TEST(RecoveryProcess, AKilledKorvaneOffersItsChangesAtTheNextStartAndACleanExitLeavesNothing)
{
    TestHome home;
    TestModule().WriteTo(home.File("modules/test.krm"));
    QByteArray original;
    {
        const ModuleSession session;
        const auto game = session.context->CreateDefaultGame();
        game->SetName("Kursk");
        original = CGameFile::ToBytes(*game, session.context->Id());
    }
    const QString file = home.WriteFile("turn.krf", original);
    home.WriteFile("config/Korvane/Korvane.conf", "[CRecoveryMgr]\nAutosaveSeconds=1\n");
    const QDir recovery(home.File("cache/recovery"));
    QProcess korvane;
    const auto start = [&](const QString& script) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("KORVANE_SCRIPT", script);
        env.insert("XDG_CONFIG_HOME", home.File("config"));
        korvane.setProcessEnvironment(env);
        korvane.start(KORVANE_SCRIPTED, {file});
    };

    start("rename:Kursk, moved");
    // The info file is written last.
    ASSERT_TRUE(QTest::qWaitFor([&] { return !recovery.entryList({"*.json"}).isEmpty(); }, 20000));
    korvane.kill();
    korvane.waitForFinished();
    EXPECT_EQ(home.ReadFile("turn.krf"), original);

    start("yes;save;quit");
    ASSERT_TRUE(korvane.waitForFinished(30000));
    EXPECT_EQ(korvane.exitCode(), 0);
    EXPECT_EQ(nameIn(home.ReadFile("turn.krf")), "Kursk, moved");
    EXPECT_EQ(recovery.entryList(QDir::Files), QStringList());
}
