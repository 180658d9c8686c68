#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QFile>

namespace {

bool near(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) <= 3 && std::abs(a.green() - b.green()) <= 3 &&
           std::abs(a.blue() - b.blue()) <= 3;
}

// Pixels in area matching test.
template <typename Test> int count(const QImage& image, const QRect& area, Test test)
{
    int found = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            found += test(image.pixelColor(x, y)) ? 1 : 0;
    }
    return found;
}

class ToolRender : public ToolFixture
{
protected:
    void SetUp() override
    {
        ToolFixture::SetUp();
        board = TestModule::ColorOf(QStringLiteral("board.png"));
        infantry = TestModule::ColorOf(QStringLiteral("inf.png"));
        tank = TestModule::ColorOf(QStringLiteral("tank.png"));
    }

    // Where a label under a unit at x, y can be: below its picture, around its middle.
    static QRect labelArea(int x, int y) { return QRect(x - 20, y + UnitSize, UnitSize + 40, 16); }

    ToolRun render(const QString& game, QStringList options = {})
    {
        options.prepend(game);
        options.prepend(QStringLiteral("render"));
        options << QStringLiteral("-o") << home.File(QStringLiteral("board.png"));
        return Tool(options);
    }

    QColor board;
    QColor infantry;
    QColor tank;
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
    const QString path = Save(*game, QStringLiteral("render.krf"));

    const ToolRun run = render(path);
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    const QImage image = ReadPng(home.File(QStringLiteral("board.png")));
    ASSERT_EQ(image.size(), QSize(BoardWidth, BoardHeight));

    // The picture's top-left corner is the unit's position.
    EXPECT_TRUE(near(image.pixelColor(40, 50), infantry));
    EXPECT_TRUE(near(image.pixelColor(40 + UnitSize - 1, 50 + UnitSize - 1), infantry));
    EXPECT_TRUE(near(image.pixelColor(39, 50), board));
    EXPECT_TRUE(near(image.pixelColor(40, 49), board));
    EXPECT_TRUE(near(image.pixelColor(40 + UnitSize, 60), board));
    EXPECT_TRUE(near(image.pixelColor(160, 60), infantry));
    // The unit of the map that is not shown is not drawn.
    EXPECT_TRUE(near(image.pixelColor(210, 30), board));

    // Labels: blue text on black, a moved unit's text green.
    const auto blue = [](QColor c) { return c.blue() > 150 && c.red() < 100 && c.green() < 100; };
    const auto green = [](QColor c) { return c.green() > 150 && c.red() < 100 && c.blue() < 100; };
    const auto black = [](QColor c) { return c.red() < 30 && c.green() < 30 && c.blue() < 30; };
    EXPECT_GT(count(image, labelArea(40, 50), blue), 0);
    EXPECT_GT(count(image, labelArea(40, 50), black), 0);
    EXPECT_EQ(count(image, labelArea(40, 50), green), 0);
    EXPECT_GT(count(image, labelArea(150, 50), green), 0);
    EXPECT_EQ(count(image, labelArea(150, 50), blue), 0);

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
    const QString png = home.File(QStringLiteral("board.png"));

    ASSERT_EQ(render(path, {QStringLiteral("--group"), QStringLiteral("1"), QStringLiteral("--map"),
                            QStringLiteral("1")})
                  .Status,
              0);
    QImage image = ReadPng(png);
    EXPECT_TRUE(near(image.pixelColor(20, 20), tank));
    EXPECT_TRUE(near(image.pixelColor(110, 110), board));

    // Group 1 alone: its active map, the last one.
    ASSERT_EQ(render(path, {QStringLiteral("--group"), QStringLiteral("1")}).Status, 0);
    image = ReadPng(png);
    EXPECT_TRUE(near(image.pixelColor(20, 20), board));
    EXPECT_TRUE(near(image.pixelColor(110, 110), infantry));

    // By default the active group's active map, here at half size.
    ASSERT_EQ(render(path, {QStringLiteral("--scale"), QStringLiteral("0.5")}).Status, 0);
    image = ReadPng(png);
    ASSERT_EQ(image.size(), QSize(BoardWidth / 2, BoardHeight / 2));
    EXPECT_TRUE(near(image.pixelColor(108, 58), tank));
    EXPECT_TRUE(near(image.pixelColor(98, 58), board));

    for (const QStringList& missing : {QStringList{QStringLiteral("--group"), QStringLiteral("3")},
                                       QStringList{QStringLiteral("--group"), QStringLiteral("2"),
                                                   QStringLiteral("--map"), QStringLiteral("2")}}) {
        QFile::remove(png);
        const ToolRun run = render(path, missing);
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Err.contains(QStringLiteral("has no"))) << run.Err.toStdString();
        EXPECT_FALSE(QFile::exists(png));
    }
}
