#include "contexts/CContextMgr.h"
#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "support/ContextTestSupport.h"
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>
#include <QRect>
#include <QSet>

#include <gtest/gtest.h>

namespace {

// The packs the build made, installed into a fresh home.
class ShippedModulesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QDir built(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR));
        const QStringList packs = built.entryList({QStringLiteral("*.krm")}, QDir::Files);
        ASSERT_EQ(packs.size(), 2) << "the build should have made two module packs";
        QDir().mkpath(home.File(QStringLiteral("modules")));
        for (const QString& pack : packs)
            ASSERT_TRUE(QFile::copy(built.filePath(pack), home.File("modules/" + pack)));
        StartRoot();
    }
    void TearDown() override { ReleaseRoot(); }

    // Activates the context as the program does and makes its new game.
    static std::shared_ptr<CGame> newGame(const std::shared_ptr<IGameContext>& context)
    {
        Root().SetContext(context);
        context->Activate(nullptr);
        return context->CreateDefaultGame();
    }

    // Some pixel of the picture is not wholly transparent.
    static bool drawsSomething(const QImage& image)
    {
        QImage clear(image.size(), QImage::Format_Alpha8);
        clear.fill(0);
        return !image.isNull() && image.convertToFormat(QImage::Format_Alpha8) != clear;
    }

    // Every token has a visible picture in the palette and drag lists.
    static void expectPictures(const IGameContext& context)
    {
        for (const auto& token : context.Tokens()) {
            EXPECT_TRUE(drawsSomething(context.PalletImgLst()->Image(token->PalletImage())))
                << token->Id().toStdString();
            EXPECT_TRUE(drawsSomething(context.DragImgLst()->Image(token->DragImage())))
                << token->Id().toStdString();
        }
    }

    TestHome home;
};

} // namespace

TEST_F(ShippedModulesTest, BothAreListedAndChessOpensWithEveryPieceInItsOwnSquare)
{
    CContextMgr& contexts = Root().ContextMgr();
    ASSERT_EQ(contexts.ContextCount(), 2);
    EXPECT_EQ(contexts.Context(1)->Caption() + '|' + contexts.Context(2)->Caption(),
              "Border Skirmish|Korvane Chess");
    EXPECT_TRUE(drawsSomething(contexts.Context(1)->Picture()));
    EXPECT_TRUE(drawsSomething(contexts.Context(2)->Picture()));

    const std::shared_ptr<IGameContext> chess =
        contexts.Context(contexts.PosOfContext("krm_chess_by_tavrelstudio_v1"));
    const std::shared_ptr<CGame> game = newGame(chess);
    ASSERT_EQ(chess->Tokens().Count(), 12);
    expectPictures(*chess);
    ASSERT_TRUE(game && game->MapGroups().Count() == 1 &&
                game->ActiveMapGroup()->Maps().Count() == 1);
    const std::shared_ptr<CMap> opening = game->ActiveMapGroup()->ActiveMap();
    ASSERT_EQ(opening->Units()->Count(), 32);
    ASSERT_EQ(QSize(chess->MapWidth(), chess->MapHeight()), QSize(400, 400));

    // Ranks 8 down to 1, files a to h; "." is an empty square. Each piece is
    // drawn alone: whatever it changes lies in the square where it starts.
    const QString board = QStringLiteral("rnbqkbnr pppppppp ........ ........ "
                                         "........ ........ PPPPPPPP RNBQKBNR")
                              .remove(QLatin1Char(' '));
    const CBoardRenderer renderer(chess);
    auto alone = std::make_shared<CMap>(CUtility::GenerateId(), CUtility::GenerateId());
    alone->AquireLock();
    const QImage empty = renderer.RenderMap(*alone, 1);
    QSet<int> squares;
    for (const auto& piece : *opening->Units()) {
        alone->Units()->Clear();
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), piece->Token());
        unit->SetX(piece->x());
        unit->SetY(piece->y());
        alone->Units()->AddItem(unit);
        const QImage drawn = renderer.RenderMap(*alone, 1);
        QRect changed;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                if (drawn.pixel(x, y) != empty.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        const QRect square(changed.left() / 50 * 50, changed.top() / 50 * 50, 50, 50);
        const QString token = piece->Token()->Id();
        EXPECT_TRUE(!changed.isEmpty() && square.contains(changed))
            << token.toStdString() << " at " << piece->x() << "," << piece->y();
        const int index = square.top() / 50 * 8 + square.left() / 50;
        squares.insert(index);
        const QChar expected = board.at(index);
        EXPECT_EQ(token.at(0), expected.isUpper() ? QLatin1Char('w') : QLatin1Char('b'));
        EXPECT_EQ(token.at(1), expected.toLower()) << token.toStdString();
    }
    EXPECT_EQ(squares.size(), 32);
}

TEST_F(ShippedModulesTest, SkirmishOpensWithEachSideOnItsOwnHalfOfTheBoard)
{
    const std::shared_ptr<IGameContext> skirmish = Root().ContextMgr().Context(1);
    const std::shared_ptr<CGame> game = newGame(skirmish);
    // Saved games name the module by this id.
    EXPECT_EQ(skirmish->Id(), QStringLiteral("krm_border_skirmish_by_korvane_v1"));
    expectPictures(*skirmish);

    ASSERT_TRUE(game && game->MapGroups().Count() == 1 &&
                game->ActiveMapGroup()->Maps().Count() == 1);
    const std::shared_ptr<CMap> map = game->ActiveMapGroup()->ActiveMap();
    EXPECT_EQ(game->Name() + '|' + map->Name(), QStringLiteral("Border Skirmish|Turn 1"));
    ASSERT_EQ(map->Units()->Count(), 11);
    for (const auto& unit : *map->Units()) {
        // The whole picture (40 x 40, its corner at the position) on the board.
        EXPECT_TRUE(unit->x() >= 0 && unit->x() + 40 <= skirmish->MapWidth());
        EXPECT_TRUE(unit->y() >= 0 && unit->y() + 40 <= skirmish->MapHeight());
        // Each side on its own half.
        const QString side = unit->Token()->Id().section('_', 0, 0);
        const bool left = unit->x() + 20 < skirmish->MapWidth() / 2;
        EXPECT_TRUE(side == QLatin1String("red") ? left : side != QLatin1String("blue") || !left);
    }
}
