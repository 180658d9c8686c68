#include "PersistTestSupport.h"

#include "core/CConfiguration.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "persist/CGameFile.h"
#include "persist/CPersistMgr.h"
#include "persist/CRecoveryMgr.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

using Answer = FMessageBox::Answer;

// A game of the module "alpha", saved as turn.krf in the home.
class RecoveryMgrTest : public PersistTest
{
protected:
    void SetUp() override
    {
        writeModule("alpha.krm", module("alpha"));
        gui = start();
        activate("krm_alpha_v1");
        game = newGame("Kursk");
        gui->Save.Choose(home.Path(), "turn", "krf");
        ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
        saved = home.ReadFile("turn.krf");
    }

    // An unsaved change, as an edit leaves it.
    void change(CGame& changed, const QString& name)
    {
        changed.SetName(name);
        changed.SetDirty(2);
    }
    static QStringList recoveryFiles()
    {
        return QDir(CUtility::GetRecoveryDir()).entryList(QDir::Files);
    }
    static QString nameIn(const QByteArray& file)
    {
        QString error;
        const auto read = CGameFile::FromBytes(file, &error);
        return read ? read->Name() : error;
    }

    TestGui* gui = nullptr;
    std::shared_ptr<CGame> game;
    QByteArray saved;
};

} // namespace

TEST_F(RecoveryMgrTest, CopiesOnlyWhileChangedAndLeavesTheGameAndItsFileAlone)
{
    Root().Config().SetValue("CRecoveryMgr", "AutosaveSeconds", "1");
    CRecoveryMgr recovery;
    recovery.Start(game);
    ASSERT_TRUE(recovery.WriteCopy());
    EXPECT_TRUE(recoveryFiles().isEmpty());

    change(*game, "Kursk, moved");
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(recovery.CopyPath()); }, 3000));
    EXPECT_EQ(game->Dirty(), 2);
    EXPECT_EQ(home.ReadFile("turn.krf"), saved);
    QFile copy(recovery.CopyPath());
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(nameIn(copy.readAll()), "Kursk, moved");

    recovery.GameSaved();
    EXPECT_EQ(recoveryFiles(), QStringList());
    ASSERT_TRUE(recovery.WriteCopy());
    EXPECT_EQ(recoveryFiles().size(), 3); // the copy, its info and its lock
    recovery.Exit();
    EXPECT_EQ(recoveryFiles(), QStringList());
    EXPECT_FALSE(recovery.IsRunning());
}

TEST_F(RecoveryMgrTest, OffersOnlyCopiesOfKorvanesThatDiedAndRestoresThemAsUnsavedChanges)
{
    change(*game, "Kursk, moved");
    auto crashed = std::make_unique<CRecoveryMgr>();
    crashed->Start(game);
    ASSERT_TRUE(crashed->WriteCopy());
    CRecoveryMgr next;
    // The other Korvane still runs: its copy is not ours to take.
    EXPECT_FALSE(next.OfferRecovery(gui->Boxes));
    EXPECT_TRUE(gui->Boxes.Boxes.empty());

    const QString copy = crashed->CopyPath();
    crashed.reset(); // ends without Exit, as a crash would
    ASSERT_TRUE(QFile::exists(copy));
    newGame("Other");
    gui->Boxes.Answers = {Answer::Yes};
    ASSERT_TRUE(next.OfferRecovery(gui->Boxes));
    ASSERT_EQ(gui->Boxes.Boxes.size(), 1u);
    const QString text = gui->Boxes.Boxes[0].Text;
    EXPECT_TRUE(QRegularExpression("^Restore unsaved changes to 'turn\\.krf' from \\S.*\\?$")
                    .match(text)
                    .hasMatch())
        << text.toStdString();
    const std::shared_ptr<CGame> restored = Root().Game();
    EXPECT_EQ(restored->Name(), "Kursk, moved");
    EXPECT_NE(restored->Dirty(), 0);
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_TRUE(QFile::exists(next.CopyPath()));
    EXPECT_EQ(home.ReadFile("turn.krf"), saved);
    // Save writes the original file, without asking for a name again.
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
    EXPECT_EQ(gui->Save.Shown.size(), 1);
    EXPECT_EQ(nameIn(home.ReadFile("turn.krf")), "Kursk, moved");

    // No throws the copy away and keeps the current game.
    auto other = std::make_unique<CRecoveryMgr>();
    other->Start(restored);
    restored->SetDirty(1);
    ASSERT_TRUE(other->WriteCopy());
    const QString otherCopy = other->CopyPath();
    other.reset();
    gui->Boxes.Answers = {Answer::No};
    EXPECT_FALSE(next.OfferRecovery(gui->Boxes));
    EXPECT_EQ(gui->Boxes.Boxes.size(), 2u);
    EXPECT_FALSE(QFile::exists(otherCopy));
    EXPECT_EQ(Root().Game(), restored);
}
