#include "PersistTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "persist/CRecoveryMgr.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

using RecoveryMgrTest = PersistTest;

} // namespace

TEST_F(RecoveryMgrTest, CopiesChangedGamesAndOffersOnlyThoseOfKorvanesThatDiedAsUnsavedChanges)
{
    // A game of the module "alpha", saved as turn.krf in the home, then changed.
    writeModule("alpha.krm", module("alpha"));
    TestGui* gui = start();
    activate("krm_alpha_v1");
    const auto game = newGame("Kursk");
    gui->Save.Choose(home.Path(), "turn", "krf");
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
    game->SetName("Kursk, moved");
    game->SetDirty(2);

    // A copy is kept only while the game has changes, and goes when it is saved.
    CRecoveryMgr saving;
    ASSERT_TRUE(saving.WriteCopy());
    saving.GameSaved();
    game->SetDirty(0);
    ASSERT_TRUE(saving.WriteCopy());
    EXPECT_EQ(QDir(CUtility::GetRecoveryDir()).entryList(QDir::Files), QStringList());
    game->SetDirty(2);

    auto crashed = std::make_unique<CRecoveryMgr>();
    ASSERT_TRUE(crashed->WriteCopy());
    EXPECT_EQ(game->Dirty(), 2);
    CRecoveryMgr next;
    // The other Korvane still runs: its copy is not ours to take.
    EXPECT_FALSE(next.OfferRecovery(gui->Boxes));
    EXPECT_TRUE(gui->Boxes.Boxes.empty());

    const QString copy = crashed->CopyPath();
    crashed.reset(); // ends without Exit, as a crash would
    newGame("Other");
    gui->Boxes.Answers = {FMessageBox::Answer::Yes};
    ASSERT_TRUE(next.OfferRecovery(gui->Boxes));
    ASSERT_EQ(gui->Boxes.Boxes.size(), 1u);
    const QString text = gui->Boxes.Boxes[0].Text;
    const QRegularExpression question("^Restore unsaved changes to 'turn\\.krf' from \\S.*\\?$");
    EXPECT_TRUE(question.match(text).hasMatch()) << text.toStdString();
    const std::shared_ptr<CGame> restored = Root().Game();
    EXPECT_EQ(restored->Name(), "Kursk, moved");
    EXPECT_NE(restored->Dirty(), 0);
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_TRUE(QFile::exists(next.CopyPath()));

    // No throws the copy away and keeps the current game.
    auto other = std::make_unique<CRecoveryMgr>();
    ASSERT_TRUE(other->WriteCopy());
    const QString otherCopy = other->CopyPath();
    other.reset();
    // A copy a dead Korvane was writing when it died leaves no trace either.
    const QString partial = CUtility::GetRecoveryDir() + "0A1B2C.krf.x3Fq9z";
    home.WriteFile(QDir(home.Path()).relativeFilePath(partial), "partial");
    gui->Boxes.Answers = {FMessageBox::Answer::No};
    EXPECT_FALSE(next.OfferRecovery(gui->Boxes));
    EXPECT_FALSE(QFile::exists(partial));
    EXPECT_EQ(gui->Boxes.Boxes.size(), 2u);
    EXPECT_FALSE(QFile::exists(otherCopy));
    EXPECT_EQ(Root().Game(), restored);
}
