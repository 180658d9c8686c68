#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"

#include <QFontMetrics>

#include <cmath>
#include <limits>

// The renderer in this process, on the war module; what korvane-tool draws
// through it is tested by running the tool.
namespace {

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

    // Pixels of a colour kind in a label's box. The module's pictures have
    // every channel from 64 up, so they never match.
    static int pixels(const QImage& image, const QRect& box, bool (*kind)(QColor))
    {
        int found = 0;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            for (int x = box.left(); x <= box.right(); ++x)
                found += kind(image.pixelColor(x, y)) ? 1 : 0;
        }
        return found;
    }
    static bool blue(QColor c) { return c.blue() > 150 && c.red() < 30 && c.green() < 30; }
    static bool green(QColor c) { return c.green() > 150 && c.red() < 30 && c.blue() < 30; }

    std::shared_ptr<CMap> map;
};

} // namespace

TEST_F(BoardRendererTest, PicturesSitAtTheUnitsPositionWithTheLabelCentredUnderThem)
{
    const auto first = AddUnit(*map, QStringLiteral("inf"), 30, 40, QStringLiteral("x12"));
    AddUnit(*map, QStringLiteral("tank"), 50, 20);
    const auto moved =
        AddUnit(*map, "inf", 200, 100, QStringLiteral("x5"), QStringLiteral("5"), true);
    const auto arrowUnit = AddUnit(*map, QStringLiteral("move"), 150, 20);
    const CBoardRenderer renderer(context);
    EXPECT_EQ(renderer.BoardSize(), QSize(300, 200));
    EXPECT_EQ(renderer.PictureRect(*first), QRect(30, 40, UnitSize, UnitSize));
    // The module's 8 points at 96 per inch.
    EXPECT_EQ(renderer.LabelFont().pixelSize(), 11);
    const QRect label = renderer.LabelRect(*first);
    EXPECT_EQ(label.top(), 40 + UnitSize);
    EXPECT_LE(std::abs(label.center().x() - (30 + UnitSize / 2)), 1);
    EXPECT_EQ(label.height(), QFontMetrics(renderer.LabelFont()).height());
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
    EXPECT_TRUE(NearColor(image.pixelColor(155, 25), board));
}

TEST_F(BoardRendererTest, ArrowsHaveAWideHeadAZeroLengthArrowIsADotAndUnlockedMapsShowOnlyTheBoard)
{
    const auto arrow = AddArrow(*map, 20, 70, 180, 70, 0x0000FF);
    AddArrow(*map, 150, 130, 150, 130, 0x00FF00);
    const QImage image = render();
    EXPECT_TRUE(NearColor(image.pixelColor(170, 73), QColor(255, 0, 0)));
    EXPECT_TRUE(NearColor(image.pixelColor(150, 73), board));
    EXPECT_TRUE(NearColor(image.pixelColor(183, 70), board));
    EXPECT_TRUE(NearColor(image.pixelColor(150, 130), QColor(0, 255, 0)));
    const QRectF bounds = CBoardRenderer(context).ArrowBounds(*arrow);
    EXPECT_TRUE(bounds.contains(QPointF(20, 70)) && bounds.contains(QPointF(180, 76)));

    // An unlocked map shows only the board.
    AddUnit(*map, QStringLiteral("tank"), 100, 100);
    EXPECT_TRUE(NearColor(render().pixelColor(105, 105), tank));
    map->ReleaseLock();
    ASSERT_EQ(map->Units(), nullptr);
    EXPECT_TRUE(NearColor(render().pixelColor(105, 105), board));
}

TEST_F(BoardRendererTest, HostilePositionsAndScalesNeverCrash)
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
}
