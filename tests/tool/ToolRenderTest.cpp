#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"
#include "render/CMapExport.h"
#include "support/PackEdit.h"

#include <QFile>
#include <QImage>

// What render adds to the board renderer (tested in this process): which map
// it draws, at what size, and what it does with a module's settings.
namespace {

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

    const QString png = home.File(QStringLiteral("board.png"));
};

} // namespace

TEST_F(ToolRender, GroupMapAndScaleChooseWhatIsDrawnAndHowLarge)
{
    auto game = NewGame(QStringLiteral("Choices"));
    auto first = game->ActiveMapGroup();
    AddUnit(*first->ActiveMap(), QStringLiteral("tank"), 10, 10);
    AddUnit(*AddMap(*first, QStringLiteral("Turn 2")), QStringLiteral("inf"), 100, 100);
    auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(second);
    auto last = AddMap(*second, QStringLiteral("Turn 3"));
    AddUnit(*last, QStringLiteral("tank"), 200, 100);
    game->SwitchTo(second);
    const QString path = Save(*game, QStringLiteral("choices.krf"));

    QImage image = render(path, {"--group", "1", "--map", "1"});
    ASSERT_EQ(image.size(), QSize(300, 200));
    EXPECT_TRUE(NearColor(image.pixelColor(10, 10), tank));
    EXPECT_TRUE(NearColor(image.pixelColor(9, 10), board));
    EXPECT_TRUE(NearColor(image.pixelColor(110, 110), board));
    // A group alone: its active map, the last one.
    image = render(path, {"--group", "1"});
    EXPECT_TRUE(NearColor(image.pixelColor(20, 20), board));
    EXPECT_TRUE(NearColor(image.pixelColor(110, 110), infantry));
    // By default the active group's active map, here at half size.
    image = render(path, {"--scale", "0.5"});
    ASSERT_EQ(image.size(), QSize(150, 100));
    EXPECT_TRUE(NearColor(image.pixelColor(108, 58), tank));
    EXPECT_TRUE(NearColor(image.pixelColor(98, 58), board));

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

    // Under the picture: the label's blue text, and board instead of a black box.
    const QImage image = render(path);
    int text = 0;
    int box = 0;
    for (int y = 50 + UnitSize; y < 50 + UnitSize + 16; ++y) {
        for (int x = 20; x < 40 + UnitSize + 20; ++x) {
            const QColor c = image.pixelColor(x, y);
            text += c.blue() > 150 && c.red() < 30 && c.green() < 30 ? 1 : 0;
            box += c.red() < 30 && c.green() < 30 && c.blue() < 30 ? 1 : 0;
        }
    }
    EXPECT_GT(text, 0);
    EXPECT_EQ(box, 0);
}

TEST_F(ToolRender, MapExportWritesTheSameBytesAsRenderAndKeepsAFileItCannotReplace)
{
    auto game = NewGame("Export");
    const std::shared_ptr<CMap> map = game->ActiveMapGroup()->ActiveMap();
    AddUnit(*map, "tank", 200, 20, "Old");
    AddUnit(*map, "inf", 40, 60, "3 Inf", "3", true);
    AddArrow(*map, 10, 10, 150, 120, 255);
    const QString file = Save(*game, "export.krf");
    const QString mine = home.File("mine.png");
    const QString tools = home.File("tool.png");
    for (const QString scale : {"1", "0.5", "2.25"}) {
        QString error;
        ASSERT_TRUE(CMapExport::ToPng(map, context, scale.toDouble(), mine, error))
            << error.toStdString();
        const ToolRun run = Tool({"render", file, "--scale", scale, "-o", tools});
        ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
        EXPECT_EQ(home.ReadFile("mine.png"), home.ReadFile("tool.png")) << scale.toStdString();
        EXPECT_EQ(QImage(mine).size(), QSize(300, 200) * scale.toDouble());
    }

    QString error;
    EXPECT_FALSE(CMapExport::ToPng(map, context, 0, mine, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(home.ReadFile("mine.png"), home.ReadFile("tool.png"));
    EXPECT_FALSE(CMapExport::ToPng(map, context, 1, home.File("no/folder/x.png"), error));
    EXPECT_TRUE(error.startsWith("cannot be written")) << error.toStdString();
}
