#include "contexts/CChessGame.h"
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
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

#include <map>

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
        auto root = std::make_shared<CKorvane>();
        InstallRoot(root);
        root->Constructor(nullptr);
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

TEST_F(ShippedModulesTest, DiscoveryListsBothModules)
{
    const CContextMgr& manager = Root().ContextMgr();
    ASSERT_EQ(manager.ContextCount(), 2);
    EXPECT_EQ(manager.Context(1)->Caption(), QStringLiteral("Border Skirmish"));
    EXPECT_EQ(manager.Context(1)->Id(), QStringLiteral("krm_border_skirmish_by_korvane_v1"));
    EXPECT_EQ(manager.Context(2)->Caption(), QStringLiteral("Korvane Chess"));
    EXPECT_TRUE(std::dynamic_pointer_cast<CChessGame>(manager.Context(2)));
    EXPECT_EQ(manager.Infos().Item(2)->ShortCode(), QStringLiteral("KRC"));
    for (std::int32_t i = 1; i <= 2; ++i)
        EXPECT_TRUE(drawsSomething(manager.Context(i)->Picture())) << i;
}

TEST_F(ShippedModulesTest, ChessStartsFromTheInitialPosition)
{
    const std::shared_ptr<IGameContext> chess = Root().ContextMgr().Context(
        Root().ContextMgr().PosOfContext("krm_chess_by_tavrelstudio_v1"));
    const std::shared_ptr<CGame> game = newGame(chess);
    EXPECT_EQ(chess->MapWidth(), 400);
    EXPECT_EQ(chess->MapHeight(), 400);
    ASSERT_EQ(chess->Tokens().Count(), 12);
    QSet<QString> categories;
    for (const auto& token : chess->Tokens()) {
        EXPECT_EQ(token->Class(), QStringLiteral("CEmptyToken"));
        categories.insert(token->Category());
    }
    EXPECT_EQ(categories, (QSet<QString>{"White", "Black"}));
    expectPictures(*chess);

    ASSERT_TRUE(game);
    const std::shared_ptr<CMap> map = onlyMap(*game);
    ASSERT_TRUE(map && map->Units());
    ASSERT_EQ(map->Units()->Count(), 32);
    std::map<QString, int> counts;
    QSet<QPair<int, int>> squares;
    for (const auto& unit : *map->Units()) {
        ++counts[unit->Token()->Id()];
        // Every piece on the centre of a square of its own.
        EXPECT_EQ(unit->x() % 50, 25);
        EXPECT_EQ(unit->y() % 50, 25);
        EXPECT_TRUE(unit->x() < 400 && unit->y() < 400);
        squares.insert({unit->x(), unit->y()});
        if (unit->Token()->Id() == QLatin1String("wk")) {
            EXPECT_EQ(QPoint(unit->x(), unit->y()), QPoint(225, 375)); // e1
        }
        if (unit->Token()->Id() == QLatin1String("bq")) {
            EXPECT_EQ(QPoint(unit->x(), unit->y()), QPoint(175, 25)); // d8
        }
    }
    EXPECT_EQ(squares.size(), 32);
    const std::map<QString, int> pieces{{"wp", 8}, {"wr", 2}, {"wn", 2}, {"wb", 2},
                                        {"wq", 1}, {"wk", 1}, {"bp", 8}, {"br", 2},
                                        {"bn", 2}, {"bb", 2}, {"bq", 1}, {"bk", 1}};
    EXPECT_EQ(counts, pieces);
    // Each new game is a game of its own.
    EXPECT_NE(chess->CreateDefaultGame()->Id(), game->Id());
}

TEST_F(ShippedModulesTest, SkirmishUsesEveryTokenKindAndPlacesItsUnits)
{
    const std::shared_ptr<IGameContext> skirmish = Root().ContextMgr().Context(1);
    const std::shared_ptr<CGame> game = newGame(skirmish);
    EXPECT_EQ(skirmish->LabelForeColor(), 0xFFFFFF);

    std::map<QString, QStringList> byClass;
    for (const auto& token : skirmish->Tokens())
        byClass[token->Class()].append(token->Id());
    EXPECT_EQ(byClass.size(), 5u);
    EXPECT_EQ(byClass["CQuantityToken"].size(), 6);
    EXPECT_EQ(byClass["CNumericToken"], (QStringList{"turn", "vp_red", "vp_blue"}));
    EXPECT_EQ(byClass["CArrowToken"], (QStringList{"move", "attack"}));
    EXPECT_EQ(byClass["CEmptyToken"], QStringList{"fort"});
    QStringList arrowColours;
    QStringList defaultTexts;
    for (const auto& token : skirmish->Tokens()) {
        if (token->Class() == QLatin1String("CArrowToken"))
            arrowColours.append(token->Custom());
        if (token->Class() == QLatin1String("CTextToken"))
            defaultTexts.append(token->DefaultCaption());
    }
    EXPECT_EQ(arrowColours, (QStringList{"#2060FF", "#FF2020"}));
    EXPECT_EQ(defaultTexts, (QStringList{"Objective", "Note"}));
    expectPictures(*skirmish);

    ASSERT_TRUE(game);
    const std::shared_ptr<CMap> map = onlyMap(*game);
    ASSERT_TRUE(map && map->Units());
    EXPECT_EQ(game->Name(), QStringLiteral("Border Skirmish"));
    EXPECT_EQ(map->Name(), QStringLiteral("Turn 1"));
    ASSERT_EQ(map->Units()->Count(), 11);
    std::map<QString, std::shared_ptr<CUnit>> units;
    for (const auto& unit : *map->Units()) {
        units[unit->Token()->Id()] = unit;
        EXPECT_TRUE(unit->x() > 0 && unit->x() < skirmish->MapWidth());
        EXPECT_TRUE(unit->y() > 0 && unit->y() < skirmish->MapHeight());
    }
    const auto label = [&](const char* id) {
        const auto& unit = units[QLatin1String(id)];
        return unit ? unit->Caption() + '/' + unit->Data() : QStringLiteral("missing");
    };
    EXPECT_EQ(label("red_inf"), QStringLiteral("x3/3"));
    EXPECT_EQ(label("blue_arm").section('/', 1), QStringLiteral("2"));
    EXPECT_EQ(label("turn").section('/', 0, 0), QStringLiteral("x1"));
    EXPECT_EQ(label("objective").section('/', 1), QStringLiteral("Hold the bridge"));
    ASSERT_TRUE(units["red_inf"] && units["blue_inf"]);
    // Both sides are on the board, on their own halves.
    EXPECT_LT(units["red_inf"]->x(), skirmish->MapWidth() / 2);
    EXPECT_GT(units["blue_inf"]->x(), skirmish->MapWidth() / 2);
}

TEST_F(ShippedModulesTest, DefaultGamesSaveLoadAndSaveAgainToTheSameBytes)
{
    CContextMgr& contexts = Root().ContextMgr();
    for (std::int32_t position = 1; position <= contexts.ContextCount(); ++position) {
        const std::shared_ptr<IGameContext> context = contexts.Context(position);
        SCOPED_TRACE(context->Id().toStdString());
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
