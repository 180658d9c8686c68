#include "tool/ToolTestSupport.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "render/CMapExport.h"

#include <QImage>

namespace {

class MapExport : public ToolFixture
{};

} // namespace

TEST_F(MapExport, WritesTheSameBytesAsKorvaneToolRenderAndKeepsAFileItCannotReplace)
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
