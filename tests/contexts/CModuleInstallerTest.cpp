#include "support/ContextTestSupport.h"

#include "contexts/CContextMgr.h"
#include "contexts/CInstallModTask.h"
#include "contexts/CModuleInstaller.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

using Answer = FMessageBox::Answer;
using Result = CModuleInstaller::Result;

class ModuleInstallerTest : public ::testing::Test
{
protected:
    void SetUp() override { StartRoot(); }
    void TearDown() override { ReleaseRoot(); }

    static TestModule titled(const QString& title)
    {
        return TestModule::Titled(QStringLiteral("installed"), title);
    }

    static QStringList cacheFiles() { return QDir(CUtility::GetCacheDir()).entryList(QDir::Files); }
    // Each box shown as "title|text", a question with " (No)" when that is its default.
    QStringList shown() const
    {
        QStringList lines;
        for (const ScriptedMessages::Shown& box : messages.Boxes)
            lines << box.Title + '|' + box.Text +
                         (box.IsQuestion && box.Default == Answer::No ? " (No)" : "");
        return lines;
    }

    TestHome home;
    ScriptedMessages messages;
};

} // namespace

TEST_F(ModuleInstallerTest, ReplacingAModuleNeedsConsentAndHappensAtShutdown)
{
    const QByteArray oldPack = titled(QStringLiteral("Old Edition")).Pack();
    home.WriteFile(QStringLiteral("modules/war.krm"), oldPack);
    ReleaseRoot();
    StartRoot();
    const QString chosen = titled(QStringLiteral("New Edition"))
                               .WriteTo(home.File(QStringLiteral("downloads/war.krm")));

    // "No" leaves everything as it was.
    messages.Answers = {Answer::No};
    EXPECT_EQ(CModuleInstaller::Install(chosen, messages), Result::Declined);
    EXPECT_EQ(shown(), QStringList{"Module already exists|war.krm already exits.\n"
                                   "Do you want to replace it? (No)"});
    EXPECT_EQ(Root().ShutdownTaskCount(), 0);
    EXPECT_TRUE(cacheFiles().filter(QStringLiteral(".tmp")).isEmpty());

    // "Yes" copies the module into the cache and defers the move.
    messages.Answers = {Answer::Yes};
    EXPECT_EQ(CModuleInstaller::Install(chosen, messages), Result::Installed);
    EXPECT_EQ(shown().value(2),
              "Korvane|You must restart Korvane for these settings to take effect.");
    EXPECT_EQ(Root().ShutdownTaskCount(), 1);
    const QStringList cached = cacheFiles().filter(QStringLiteral(".tmp"));
    ASSERT_EQ(cached.size(), 1);
    EXPECT_EQ(home.ReadFile(QStringLiteral("modules/war.krm")), oldPack)
        << "the running program keeps its module until it ends";
    EXPECT_EQ(Root().ContextMgr().Context(1)->Caption(), QStringLiteral("Old Edition"));

    ReleaseRoot();
    EXPECT_EQ(home.ReadFile(QStringLiteral("modules/war.krm")),
              titled(QStringLiteral("New Edition")).Pack());
    EXPECT_FALSE(QFile::exists(CUtility::GetCacheDir() + cached[0]));
}

TEST_F(ModuleInstallerTest, DestinationFollowsTheExtensionAndCopiesAreWritable)
{
    // A user module goes to the user module directory. Without that folder
    // the user is told, and nothing is copied or left to do at shut-down.
    const QString user = titled(QStringLiteral("Mine")).WriteTo(home.File("downloads/Mine.UDM"));
    EXPECT_EQ(CModuleInstaller::Install(user, messages), Result::MissingDirectory);
    EXPECT_EQ(shown(), QStringList{"Korvane|Mine.UDM cannot be installed: the folder " +
                                   QDir::toNativeSeparators(home.File("usermods/")) +
                                   " does not exist. Nothing has been installed."});
    EXPECT_EQ(Root().ShutdownTaskCount(), 0);
    EXPECT_TRUE(cacheFiles().filter(QStringLiteral(".tmp")).isEmpty());
    // With it, nothing to replace, so no question: only the restart notice.
    QDir().mkpath(home.File(QStringLiteral("usermods")));
    messages.Boxes.clear();
    EXPECT_EQ(CModuleInstaller::Install(user, messages), Result::Installed);
    EXPECT_EQ(messages.Boxes.size(), 1u);

    // A name without a ".krm" or ".udm" extension, and nothing chosen, install
    // nothing and ask nothing.
    const QString bare = home.WriteFile(QStringLiteral("downloads/krm"), "no extension");
    EXPECT_EQ(CModuleInstaller::Install(bare, messages), Result::InvalidExtension);
    EXPECT_EQ(CModuleInstaller::Install(QString(), messages), Result::NothingChosen);
    QDir().mkpath(home.File(QStringLiteral("modules")));
    EXPECT_EQ(CModuleInstaller::Install(home.File(QStringLiteral("downloads/gone.krm")), messages),
              Result::NotFound);
    EXPECT_EQ(messages.Boxes.size(), 1u);

    // A module chosen from the module directory itself is installed already.
    const QString inPlace =
        titled(QStringLiteral("Here")).WriteTo(home.File(QStringLiteral("modules/here.krm")));
    EXPECT_EQ(CModuleInstaller::Install(inPlace, messages), Result::AlreadyInPlace);
    EXPECT_EQ(shown().value(1), "Korvane|here.krm is already installed.");
    EXPECT_EQ(Root().ShutdownTaskCount(), 1);

    // A read-only module is installed writable; the chosen file itself is left alone.
    const QString chosen =
        titled(QStringLiteral("Locked")).WriteTo(home.File(QStringLiteral("cdrom/locked.krm")));
    ASSERT_TRUE(QFile::setPermissions(chosen, QFileDevice::ReadOwner));
    EXPECT_EQ(CModuleInstaller::Install(chosen, messages), Result::Installed);
    EXPECT_FALSE(QFileInfo(chosen).permissions() & QFileDevice::WriteOwner);
    QFile::setPermissions(chosen, QFileDevice::ReadOwner | QFileDevice::WriteOwner);

    ReleaseRoot();
    EXPECT_TRUE(QFile::exists(home.File(QStringLiteral("usermods/Mine.UDM"))));
    // Installed writable, it can be replaced by a later installation.
    const QString installed = home.File(QStringLiteral("modules/locked.krm"));
    ASSERT_TRUE(QFile::exists(installed));
    EXPECT_TRUE(QFileInfo(installed).permissions() & QFileDevice::WriteOwner);
}

TEST_F(ModuleInstallerTest, TaskWithoutItsCachedCopyDoesNothing)
{
    const QByteArray installed("installed module");
    const QString destination = home.WriteFile(QStringLiteral("modules/kept.krm"), installed);
    CInstallModTask(home.File(QStringLiteral("cache/none.tmp")), destination).Execute();
    EXPECT_EQ(home.ReadFile(QStringLiteral("modules/kept.krm")), installed);

    // A destination that cannot be replaced keeps the cached copy for another try.
    const QString source = home.WriteFile(QStringLiteral("cache/new.tmp"), "new module");
    QDir().mkpath(home.File(QStringLiteral("modules/folder.krm/inside")));
    CInstallModTask(source, home.File(QStringLiteral("modules/folder.krm"))).Execute();
    EXPECT_TRUE(QFile::exists(source));
}
