#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "persist/CGameFile.h"
#include "render/CBoardRenderer.h"
#include "render/CMapExport.h"

#include <QFile>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

// Colours equal within what PNG and scaling round away.
bool NearColor(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) <= 3 && std::abs(a.green() - b.green()) <= 3 &&
           std::abs(a.blue() - b.blue()) <= 3;
}

// Pixels of a colour kind in a box. The module's pictures have every channel
// from 64 up, so they never match.
int pixels(const QImage& image, const QRect& box, bool (*kind)(QColor))
{
    int found = 0;
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x)
            found += kind(image.pixelColor(x, y)) ? 1 : 0;
    }
    return found;
}
bool blue(QColor c)
{
    return c.blue() > 150 && c.red() < 30 && c.green() < 30;
}
bool green(QColor c)
{
    return c.green() > 150 && c.red() < 30 && c.blue() < 30;
}
bool black(QColor c)
{
    return c.red() < 30 && c.green() < 30 && c.blue() < 30;
}

// The renderer in this process, on the war module.
class BoardRendererTest : public ToolFixture
{
protected:
    void SetUp() override
    {
        ToolFixture::SetUp();
        map = std::make_shared<CMap>(CUtility::GenerateId(), CUtility::GenerateId());
        map->AquireLock();
    }
    void TearDown() override
    {
        map.reset();
        ToolFixture::TearDown();
    }

    QImage render(double scale = 1) const { return CBoardRenderer(context).RenderMap(*map, scale); }

    std::shared_ptr<CMap> map;
};

// What render adds to the renderer: which map it draws, at what size, and
// what it does with a module's settings.
class ToolRender : public ToolFixture
{
protected:
    // Renders into board.png in the home: what the tool said, on stdout when
    // it wrote the picture, else on stderr.
    QString render(const QString& game, const QStringList& options = {})
    {
        QFile::remove(png);
        const ToolRun run = Tool(QStringList{QStringLiteral("render"), game, "-o", png} + options);
        EXPECT_TRUE(QFile::exists(png) == (run.Status == 0)) << run.Err.toStdString();
        return run.Status == 0 ? run.Out : run.Err;
    }

    const QString png = home.File(QStringLiteral("board.png"));
};

} // namespace

TEST_F(BoardRendererTest,
       PicturesLabelsAndArrowsAreDrawnWhereTheyAreAndUnlockedMapsShowOnlyTheBoard)
{
    const auto first = AddUnit(*map, QStringLiteral("inf"), 30, 40, QStringLiteral("x12"));
    AddUnit(*map, QStringLiteral("tank"), 50, 20);
    const auto moved =
        AddUnit(*map, "inf", 200, 100, QStringLiteral("x5"), QStringLiteral("5"), true);
    const auto arrowUnit = AddUnit(*map, QStringLiteral("move"), 150, 20);
    AddUnit(*map, QStringLiteral("tank"), 100, 100);
    // Arrow points are handle positions; the ends are drawn at the handles'
    // grab spots, the centre of the arrow token's click region.
    const CBoardRenderer renderer(context);
    const QPoint o = renderer.ArrowOrigin();
    ASSERT_NE(o, QPoint());
    const auto arrow = AddArrow(*map, 20 - o.x(), 170 - o.y(), 180 - o.x(), 170 - o.y(), 0x0000FF);
    AddArrow(*map, 150 - o.x(), 130 - o.y(), 150 - o.x(), 130 - o.y(), 0x00FF00);
    const QRect label = renderer.LabelRect(*first);
    EXPECT_EQ(label.top(), 40 + UnitSize);
    EXPECT_LE(std::abs(label.center().x() - (30 + UnitSize / 2)), 1);
    EXPECT_TRUE(renderer.LabelRect(*arrowUnit).isEmpty());

    const QImage image = render();
    EXPECT_TRUE(NearColor(image.pixelColor(30, 40), infantry));
    EXPECT_TRUE(NearColor(image.pixelColor(29, 40), board));
    // The later unit covers the earlier one.
    EXPECT_TRUE(NearColor(image.pixelColor(55, 45), tank));
    EXPECT_TRUE(NearColor(image.pixelColor(55, 60), infantry));
    // The label's box hides the board; arrow tokens have no picture. Labels
    // are the module's blue on black, green for a unit that moved.
    for (int x = label.left(); x <= label.right(); ++x)
        EXPECT_FALSE(NearColor(image.pixelColor(x, label.center().y()), board)) << x;
    EXPECT_GT(pixels(image, label, blue), 0);
    EXPECT_EQ(pixels(image, label, green), 0);
    EXPECT_GT(pixels(image, renderer.LabelRect(*moved), green), 0);
    EXPECT_EQ(pixels(image, renderer.LabelRect(*moved), blue), 0);
    // Labels are bold: the same caption in the regular weight leaves less ink.
    QImage regular(label.size(), QImage::Format_RGB32);
    regular.fill(Qt::black);
    {
        QPainter painter(&regular);
        QFont font = renderer.LabelFont();
        font.setBold(false);
        painter.setFont(font);
        painter.setPen(QColor(0, 0, 255));
        painter.drawText(regular.rect(), Qt::AlignCenter, QStringLiteral("x12"));
    }
    EXPECT_TRUE(renderer.LabelFont().bold());
    EXPECT_GT(pixels(image, label, blue), pixels(regular, regular.rect(), blue) * 5 / 4);
    EXPECT_TRUE(NearColor(image.pixelColor(155, 25), board));
    // Arrows in the module's colour with a wide head; a zero-length one is a dot.
    EXPECT_TRUE(NearColor(image.pixelColor(170, 173), QColor(255, 0, 0)));
    EXPECT_TRUE(NearColor(image.pixelColor(150, 173), board));
    EXPECT_TRUE(NearColor(image.pixelColor(183, 170), board));
    EXPECT_TRUE(NearColor(image.pixelColor(150, 130), QColor(0, 255, 0)));
    const QRectF bounds = renderer.ArrowBounds(*arrow);
    EXPECT_TRUE(bounds.contains(QPointF(20, 170)) && bounds.contains(QPointF(180, 176)));

    EXPECT_TRUE(NearColor(image.pixelColor(105, 105), tank));
    map->ReleaseLock();
    ASSERT_EQ(map->Units(), nullptr);
    EXPECT_TRUE(NearColor(render().pixelColor(105, 105), board));
}

TEST_F(BoardRendererTest, HostileInputsNeverCrashAndAFailedExportKeepsTheOldFile)
{
    constexpr int highest = std::numeric_limits<std::int32_t>::max();
    constexpr int lowest = std::numeric_limits<std::int32_t>::min();
    AddUnit(*map, QStringLiteral("tank"), highest, highest, QStringLiteral("far"));
    AddUnit(*map, QStringLiteral("tank"), lowest, lowest, QStringLiteral("far"));
    AddArrow(*map, lowest, lowest, highest, highest, 0x0000FF);
    AddArrow(*map, highest, 0, highest, 10, 0x0000FF);
    const QImage image = render();
    ASSERT_EQ(image.size(), QSize(300, 200));
    EXPECT_TRUE(NearColor(image.pixelColor(299, 0), board));

    for (const double scale : {0.0, -1.0, std::nan(""), 1.0 / 0.0, 200.0})
        EXPECT_THROW(render(scale), KorvaneError) << scale;
    EXPECT_TRUE(CBoardRenderer(nullptr).BoardSize().isEmpty());
    EXPECT_THROW(CBoardRenderer(nullptr).RenderMap(*map, 1), KorvaneError);

    // The window program's export: a picture that cannot be drawn or written
    // leaves the file that was there.
    const QString png = home.WriteFile(QStringLiteral("map.png"), "old picture");
    QString error;
    EXPECT_FALSE(CMapExport::ToPng(map, context, 0, png, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(home.ReadFile(QStringLiteral("map.png")), QByteArray("old picture"));
    EXPECT_FALSE(CMapExport::ToPng(map, context, 1, home.File("no/folder/x.png"), error));
    EXPECT_TRUE(error.startsWith("cannot be written")) << error.toStdString();
    ASSERT_TRUE(CMapExport::ToPng(map, context, 2.25, png, error)) << error.toStdString();
    EXPECT_EQ(QImage(png).size(), QSize(675, 450));
}

TEST_F(ToolRender, GroupMapAndScaleChooseWhatIsDrawnAndHowLarge)
{
    auto game = NewGame(QStringLiteral("Choices"));
    AddUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("tank"), 10, 10);
    AddMap(*game->ActiveMapGroup(), QStringLiteral("Turn 2"));
    auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(second);
    AddMap(*second, QStringLiteral("Turn 3"));
    game->SwitchTo(second);
    const QString path = Save(*game, QStringLiteral("choices.krf"));

    // The map drawn is the one named.
    EXPECT_EQ(render(path, {"--group", "1", "--map", "1"}),
              "Wrote " + png + ": map 1 ('Start') of group 1, 300 x 200 pixels\n");
    EXPECT_TRUE(NearColor(QImage(png).pixelColor(10, 10), tank));
    // A group alone: its active map, the last one; by default the active
    // group's active map, here at half size.
    EXPECT_TRUE(render(path, {"--group", "1"})
                    .endsWith(": map 2 ('Turn 2') of group 1, 300 x 200 pixels\n"));
    EXPECT_TRUE(render(path, {"--scale", "0.5"})
                    .endsWith(": map 1 ('Turn 3') of group 2, 150 x 100 pixels\n"));

    EXPECT_EQ(render(path, {"--group", "3"}),
              "korvane-tool: " + path + ": it has no group 3 (it has 2)\n");
    EXPECT_TRUE(render(path, {"--group", "2", "--map", "2"})
                    .endsWith(": group 2 has no map 2 (it has 1)\n"));
}

TEST_F(ToolRender, TransparentLabelsLetTheBoardShowThrough)
{
    const QString definition =
        WarModule()
            .Definition()
            .replace(QStringLiteral(">war<"), QStringLiteral(">glass<"))
            .replace(QStringLiteral("transparent>false<"), QStringLiteral("transparent>true<"));
    home.WriteFile(QStringLiteral("modules/glass.krm"),
                   WarModule().Pack({{"module.def", definition.toUtf8()}}));
    auto game = NewGame(QStringLiteral("Glass"));
    AddUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("inf"), 40, 50, "x3");
    const QString path = home.WriteFile(QStringLiteral("glass.krf"),
                                        CGameFile::ToBytes(*game, QStringLiteral("krm_glass_v1")));

    // Under the picture: the label's blue text, and board instead of a black box.
    EXPECT_TRUE(render(path).startsWith(QStringLiteral("Wrote ")));
    const QImage image(png);
    const QRect under(20, 50 + UnitSize, UnitSize + 40, 16);
    EXPECT_GT(pixels(image, under, blue), 0);
    EXPECT_EQ(pixels(image, under, black), 0);
}
