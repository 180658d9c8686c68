#include "contexts/CContextMgr.h"
#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "persist/CGameFile.h"
#include "render/CBoardRenderer.h"
#include "support/ContextTestSupport.h"
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>
#include <QRect>
#include <QSet>

#include <gtest/gtest.h>

#include <set>
#include <string>

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

    static std::shared_ptr<CMap> onlyMap(const CGame& game)
    {
        EXPECT_EQ(game.MapGroups().Count(), 1);
        const std::shared_ptr<CMapGroup> group = game.ActiveMapGroup();
        if (!group || group->Maps().Count() != 1 || !group->ActiveMap())
            return nullptr;
        return group->ActiveMap();
    }

    static bool drawsSomething(const QImage& image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0)
                    return true;
            }
        }
        return false;
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

TEST_F(ShippedModulesTest, ChessOpeningDrawsEveryPieceInsideItsOwnSquare)
{
    const std::shared_ptr<IGameContext> chess = Root().ContextMgr().Context(
        Root().ContextMgr().PosOfContext("krm_chess_by_tavrelstudio_v1"));
    const std::shared_ptr<CGame> game = newGame(chess);
    ASSERT_EQ(chess->Tokens().Count(), 12);
    for (const auto& token : chess->Tokens()) {
        EXPECT_EQ(token->Class(), QStringLiteral("CEmptyToken"));
        EXPECT_EQ(token->Category(), token->Id().startsWith('w') ? "White" : "Black");
    }
    expectPictures(*chess);
    ASSERT_TRUE(game);
    const std::shared_ptr<CMap> opening = onlyMap(*game);
    ASSERT_TRUE(opening && opening->Units());
    ASSERT_EQ(opening->Units()->Count(), 32);

    // Ranks 8 down to 1, files a to h; "." is an empty square.
    const QString board = QStringLiteral("rnbqkbnr pppppppp ........ ........ "
                                         "........ ........ PPPPPPPP RNBQKBNR")
                              .remove(QLatin1Char(' '));
    const CBoardRenderer renderer(chess);
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), CUtility::GenerateId());
    map->AquireLock();
    const QImage empty = renderer.RenderMap(*map, 1);
    ASSERT_EQ(empty.size(), QSize(400, 400));
    QSet<int> squares;
    // Each piece drawn alone: whatever it changes lies in one square, the
    // square where that piece starts.
    for (const auto& piece : *opening->Units()) {
        map->Units()->Clear();
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), piece->Token());
        unit->SetX(piece->x());
        unit->SetY(piece->y());
        map->Units()->AddItem(unit);
        const QImage drawn = renderer.RenderMap(*map, 1);
        QRect changed;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                if (drawn.pixel(x, y) != empty.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        const std::string id = piece->Token()->Id().toStdString();
        ASSERT_FALSE(changed.isEmpty()) << id;
        const QRect square(changed.left() / 50 * 50, changed.top() / 50 * 50, 50, 50);
        EXPECT_TRUE(square.contains(changed))
            << id << " straddles squares: " << changed.x() << "," << changed.y() << " "
            << changed.width() << "x" << changed.height();
        const int index = square.top() / 50 * 8 + square.left() / 50;
        squares.insert(index);
        const QChar expected = board.at(index);
        const QString token = piece->Token()->Id();
        EXPECT_EQ(token.at(0), expected.isUpper() ? QLatin1Char('w') : QLatin1Char('b')) << id;
        EXPECT_EQ(token.at(1), expected.toLower()) << id;
    }
    EXPECT_EQ(squares.size(), 32);
    // Each new game is a game of its own.
    EXPECT_NE(chess->CreateDefaultGame()->Id(), game->Id());
}

TEST_F(ShippedModulesTest, SkirmishUsesEveryTokenKindAndPlacesItsUnits)
{
    const std::shared_ptr<IGameContext> skirmish = Root().ContextMgr().Context(1);
    const std::shared_ptr<CGame> game = newGame(skirmish);
    // Saved games name the module by this id.
    EXPECT_EQ(skirmish->Id(), QStringLiteral("krm_border_skirmish_by_korvane_v1"));
    expectPictures(*skirmish);
    std::set<QString> kinds;
    for (const auto& token : skirmish->Tokens())
        kinds.insert(token->Class());
    EXPECT_EQ(kinds, (std::set<QString>{"CArrowToken", "CEmptyToken", "CNumericToken",
                                        "CQuantityToken", "CTextToken"}));

    ASSERT_TRUE(game);
    const std::shared_ptr<CMap> map = onlyMap(*game);
    ASSERT_TRUE(map && map->Units());
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

TEST_F(ShippedModulesTest, BothAreListedAndTheirGamesSaveLoadAndSaveAgainToTheSameBytes)
{
    CContextMgr& contexts = Root().ContextMgr();
    ASSERT_EQ(contexts.ContextCount(), 2);
    const char* const captions[] = {"Border Skirmish", "Korvane Chess"};
    for (std::int32_t position = 1; position <= contexts.ContextCount(); ++position) {
        const std::shared_ptr<IGameContext> context = contexts.Context(position);
        SCOPED_TRACE(context->Id().toStdString());
        EXPECT_EQ(context->Caption(), QLatin1String(captions[position - 1]));
        EXPECT_TRUE(drawsSomething(context->Picture()));
        const std::shared_ptr<CGame> game = newGame(context);
        ASSERT_NE(game, nullptr);
        const QString storedId = contexts.TranslateInternalId(context->Id());

        const QByteArray first = CGameFile::ToBytes(*game, storedId);
        QString error;
        const std::shared_ptr<CGame> loaded = CGameFile::FromBytes(first, &error);
        ASSERT_NE(loaded, nullptr) << error.toStdString();
        // Non-arrow units get new ids on loading, and ids of those are not
        // written, so the second image must match the first byte for byte.
        EXPECT_EQ(CGameFile::ToBytes(*loaded, storedId).toHex(), first.toHex());
        context->Deactivate();
        Root().SetContext(nullptr);
    }
}
