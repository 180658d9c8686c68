#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "persist/CRecoveryMgr.h"
#include "support/WindowFixture.h"
#include "ui/app/CProgram.h"
#include "ui/app/CRecentFiles.h"
#include "ui/board/mdcBoard.h"

#include <QFileInfo>

namespace {

const QString skirmish = QStringLiteral("krm_border_skirmish_by_korvane_v1");

// The shipped modules, and two that cannot start a game: one whose initial
// game is damaged, one without its board picture.
class GameFlow : public WindowFixture
{
protected:
    void SetUp() override
    {
        TestModule noStart = TestModule::Titled(QStringLiteral("no_start"), QStringLiteral("A"));
        noStart.InitialGame = QStringLiteral("start.krf");
        noStart.Extra = {{QStringLiteral("start.krf"), QByteArray("KR01 not a game")}};
        noStart.WriteTo(home.File(QStringLiteral("modules/nostart.krm")));
        TestModule noBoard = TestModule::Titled(QStringLiteral("no_board"), QStringLiteral("B"));
        noBoard.WithBoard = false;
        noBoard.WriteTo(home.File(QStringLiteral("modules/noboard.krm")));
        WindowFixture::SetUp();
    }
    // A game file of the module whose body cannot be read.
    QString damagedFile(const QString& name) const
    {
        const QByteArray id = skirmish.toLatin1();
        return home.WriteFile(name, "KR01" + QByteArray(1, char(id.size())) + id +
                                        QByteArray("\x40\0\0\0", 4) + QByteArray(64, 'x'));
    }
};

TEST_F(GameFlow, ANewGameThatCannotBeMadeKeepsTheGameUnderItsOwnModule)
{
    newGame();
    dropCounter();
    const std::shared_ptr<CGame> game = Root().Game();
    const std::shared_ptr<IGameContext> module = Root().Context();
    for (const char* broken : {"krm_no_start_v1", "krm_no_board_v1"}) {
        SCOPED_TRACE(broken);
        gui->Boxes.Answers = {FMessageBox::Answer::No}; // keep the changes unsaved
        gui->NewGame.GameId = QLatin1String(broken);
        EXPECT_FALSE(CGameCommands::NewGame());
        EXPECT_TRUE(lastMessage().contains(QStringLiteral("cannot")))
            << lastMessage().toStdString();
        EXPECT_EQ(Root().Game(), game);
        EXPECT_EQ(Root().Context(), module);
        EXPECT_EQ(palettePages(), 4);
        EXPECT_NE(Root().ActionMgr().NextUndoAction(), nullptr);
        EXPECT_TRUE(window->windowTitle().endsWith(QStringLiteral("* - Korvane")));
    }
    // Still saved as a game of its module, and opened again.
    gui->Save.Choose(home.File(QString()), QStringLiteral("kept"), QStringLiteral("krf"));
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGameAs());
    const QString path = home.File(QStringLiteral("kept.krf"));
    EXPECT_EQ(Root().PersistMgr().ContextIdFromFile(path), skirmish);
    EXPECT_TRUE(CGameCommands::OpenFile(path));
}

TEST_F(GameFlow, AFileRefusedWhileNoGameIsOpenLeavesNoModuleBehind)
{
    const QString broken = damagedFile(QStringLiteral("broken game.krf"));
    const auto expectEmptyWindow = [this] {
        EXPECT_EQ(Root().Game(), nullptr);
        EXPECT_EQ(Root().Context(), nullptr);
        EXPECT_EQ(palettePages(), 0);
        EXPECT_TRUE(window->Board()->sceneRect().isEmpty()) << "the hint shows, not a board";
        EXPECT_EQ(window->windowTitle(), QStringLiteral("Korvane"));
    };
    // Named on the command line, then dropped on the window.
    CProgram::OpenAtStart(QLatin1Char('"') + broken + QLatin1Char('"'));
    expectEmptyWindow();
    EXPECT_FALSE(CGameCommands::OpenFile(broken));
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("broken game.krf")));
    expectEmptyWindow();
}

TEST_F(GameFlow, ASaveFromTheSaveQuestionIsFollowedLikeFileSave)
{
    CRecoveryMgr recovery;
    window->SetRecovery(&recovery);
    newGame();
    dropCounter();
    ASSERT_TRUE(recovery.WriteCopy());
    ASSERT_TRUE(QFileInfo::exists(recovery.CopyPath()));

    // Yes to the question before a new game: the file joins the recent
    // games and the recovery copy goes.
    gui->Boxes.Answers = {FMessageBox::Answer::Yes};
    gui->Save.Choose(home.File(QString()), QStringLiteral("asked"), QStringLiteral("krf"));
    newGame();
    EXPECT_EQ(CRecentFiles::List().value(0), home.File(QStringLiteral("asked.krf")));
    EXPECT_FALSE(QFileInfo::exists(recovery.CopyPath()));

    // Yes to the question on closing: the title shows the saved file.
    dropCounter();
    gui->Boxes.Answers = {FMessageBox::Answer::Yes};
    gui->Save.Choose(home.File(QString()), QStringLiteral("closing"), QStringLiteral("krf"));
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(window->windowTitle().endsWith(QStringLiteral(" - closing.krf - Korvane")))
        << window->windowTitle().toStdString();
    EXPECT_EQ(CRecentFiles::List().value(0), home.File(QStringLiteral("closing.krf")));
    window->SetRecovery(nullptr);
    recovery.Exit();
}

} // namespace
