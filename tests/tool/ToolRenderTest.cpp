#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"
#include "support/PackEdit.h"

#include <QFile>
#include <QImage>

namespace {

bool near(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) <= 3 && std::abs(a.green() - b.green()) <= 3 &&
           std::abs(a.blue() - b.blue()) <= 3;
}

class ToolRender : public ToolFixture
{
protected:
    // Renders into board.png in the home and reads the picture back.
    QImage render(const QString& game, QStringList options = {})
    {
        QFile::remove(png);
        const ToolRun run = Tool(QStringList{QStringLiteral("render"), game, "-o", png} + options);
        EXPECT_EQ(run.Status, 0) << run.Err.toStdString();
        return QImage(png);
    }

    // Pixels of a colour kind where the label of a unit at x, y goes. The
    // module's pictures have every channel from 64 up, so they never match.
    static int labelPixels(const QImage& image, int x, int y, bool (*kind)(QColor))
    {
        int found = 0;
        for (int row = y + UnitSize; row < y + UnitSize + 16; ++row) {
            for (int column = x - 20; column < x + UnitSize + 20; ++column)
                found += kind(image.pixelColor(column, row)) ? 1 : 0;
        }
        return found;
    }
    static bool blue(QColor c) { return c.blue() > 150 && c.red() < 30 && c.green() < 30; }
    static bool green(QColor c) { return c.green() > 150 && c.red() < 30 && c.blue() < 30; }
    static bool black(QColor c) { return c.red() < 30 && c.green() < 30 && c.blue() < 30; }

    const QString png = home.File(QStringLiteral("board.png"));
    const QColor board = TestModule::ColorOf(QStringLiteral("board.png"));
    const QColor infantry = TestModule::ColorOf(QStringLiteral("inf.png"));
    const QColor tank = TestModule::ColorOf(QStringLiteral("tank.png"));
};

} // namespace

TEST_F(ToolRender, DrawsTheActiveMapWithUnitsWhereTheModelPutsThem)
{
    auto game = NewGame(QStringLiteral("Render"));
    auto group = game->ActiveMapGroup();
    AddUnit(*group->ActiveMap(), QStringLiteral("tank"), 200, 20, QStringLiteral("Old"));
    auto map = AddMap(*group, QStringLiteral("Turn 2"));
    AddUnit(*map, QStringLiteral("inf"), 40, 50, QStringLiteral("x3"), QStringLiteral("3"));
    AddUnit(*map, QStringLiteral("inf"), 150, 50, QStringLiteral("x5"), QStringLiteral("5"), true);
    AddArrow(*map, 100, 150, 250, 150, 0x0000FF);
    const QImage image = render(Save(*game, QStringLiteral("render.krf")));
    ASSERT_EQ(image.size(), QSize(300, 200));

    // The picture's top-left corner is the unit's position.
    EXPECT_TRUE(near(image.pixelColor(40, 50), infantry));
    EXPECT_TRUE(near(image.pixelColor(40 + UnitSize - 1, 50 + UnitSize - 1), infantry));
    EXPECT_TRUE(near(image.pixelColor(39, 50), board));
    EXPECT_TRUE(near(image.pixelColor(40, 49), board));
    EXPECT_TRUE(near(image.pixelColor(40 + UnitSize, 60), board));
    EXPECT_TRUE(near(image.pixelColor(160, 60), infantry));
    // The unit of the map that is not shown is not drawn.
    EXPECT_TRUE(near(image.pixelColor(210, 30), board));

    // Labels: the module's blue text on black; a moved unit's text is green.
    EXPECT_GT(labelPixels(image, 40, 50, blue), 0);
    EXPECT_GT(labelPixels(image, 40, 50, black), 0);
    EXPECT_EQ(labelPixels(image, 40, 50, green), 0);
    EXPECT_GT(labelPixels(image, 150, 50, green), 0);
    EXPECT_EQ(labelPixels(image, 150, 50, blue), 0);

    // The arrow in its colour (red in the low byte).
    EXPECT_TRUE(near(image.pixelColor(170, 150), QColor(255, 0, 0)));
    EXPECT_TRUE(near(image.pixelColor(170, 156), board));
}

TEST_F(ToolRender, GroupMapAndScaleChooseWhatIsDrawnAndHowLarge)
{
    auto game = NewGame(QStringLiteral("Choices"));
    auto first = game->ActiveMapGroup();
    AddUnit(*first->ActiveMap(), QStringLiteral("tank"), 10, 10);
    AddUnit(*AddMap(*first, QStringLiteral("Turn 2")), QStringLiteral("inf"), 100, 100);
    auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(second);
    AddUnit(*AddMap(*second, QStringLiteral("Turn 3")), QStringLiteral("tank"), 200, 100);
    game->SwitchTo(second);
    const QString path = Save(*game, QStringLiteral("choices.krf"));

    QImage image = render(path, {"--group", "1", "--map", "1"});
    EXPECT_TRUE(near(image.pixelColor(20, 20), tank));
    EXPECT_TRUE(near(image.pixelColor(110, 110), board));
    // A group alone: its active map, the last one.
    image = render(path, {"--group", "1"});
    EXPECT_TRUE(near(image.pixelColor(20, 20), board));
    EXPECT_TRUE(near(image.pixelColor(110, 110), infantry));
    // By default the active group's active map, here at half size.
    image = render(path, {"--scale", "0.5"});
    ASSERT_EQ(image.size(), QSize(150, 100));
    EXPECT_TRUE(near(image.pixelColor(108, 58), tank));
    EXPECT_TRUE(near(image.pixelColor(98, 58), board));

    for (const QStringList& missing :
         {QStringList{"--group", "3"}, QStringList{"--group", "2", "--map", "2"}}) {
        QFile::remove(png);
        const ToolRun run = Tool(QStringList{QStringLiteral("render"), path, "-o", png} + missing);
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Err.contains(QStringLiteral("has no"))) << run.Err.toStdString();
        EXPECT_FALSE(QFile::exists(png));
    }
}

TEST_F(ToolRender, TransparentLabelsLetTheBoardShowThrough)
{
    const QString definition =
        WarModule()
            .Definition()
            .replace(QStringLiteral(">war<"), QStringLiteral(">glass<"))
            .replace(QStringLiteral("transparent>false<"), QStringLiteral("transparent>true<"));
    home.WriteFile(QStringLiteral("modules/glass.krm"),
                   EditPack(WarModule().Pack(), {{"module.def", definition.toUtf8()}}));
    auto game = NewGame(QStringLiteral("Glass"));
    AddUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("inf"), 40, 50, "x3");
    const QString path = home.WriteFile(QStringLiteral("glass.krf"),
                                        CGameFile::ToBytes(*game, QStringLiteral("krm_glass_v1")));

    const QImage image = render(path);
    EXPECT_GT(labelPixels(image, 40, 50, blue), 0);
    EXPECT_EQ(labelPixels(image, 40, 50, black), 0);
}
