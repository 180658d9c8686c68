#include "contexts/ContextTestSupport.h"

#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CStandardGame.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "support/PackEdit.h"
#include "support/RootFixture.h"
#include "tokens/IToken.h"

#include <QFile>
#include <QFontMetrics>
#include <QPainter>

#include <cmath>
#include <functional>
#include <limits>

namespace {

using ColorTest = std::function<bool(QColor)>;

bool near(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) <= 3 && std::abs(a.green() - b.green()) <= 3 &&
           std::abs(a.blue() - b.blue()) <= 3;
}

// Strong blue (the module's label text), green (moved labels), red (arrows), black (label box).
bool bluish(QColor c)
{
    return c.blue() > 150 && c.red() < 100 && c.green() < 100;
}
bool greenish(QColor c)
{
    return c.green() > 150 && c.red() < 100 && c.blue() < 100;
}
bool black(QColor c)
{
    return c.red() < 30 && c.green() < 30 && c.blue() < 30;
}

int count(const QImage& image, const QRect& area, const ColorTest& test)
{
    int found = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            found += test(image.pixelColor(x, y)) ? 1 : 0;
    }
    return found;
}

class BoardRendererTest : public RootFixture
{
protected:
    void SetUp() override
    {
        RootFixture::SetUp();
        module.BoardSize = QSize(200, 150);
        module.UnitSize = 20;
        module.Tokens = {TestToken(QStringLiteral("red")), TestToken(QStringLiteral("gold")),
                         TestToken(QStringLiteral("move"), QStringLiteral("Arrow"))};
        board = TestModule::ColorOf(QStringLiteral("board.png"));
        red = TestModule::ColorOf(QStringLiteral("red.png"));
        gold = TestModule::ColorOf(QStringLiteral("gold.png"));
    }

    void TearDown() override
    {
        map.reset();
        if (context)
            context->Dispose();
        RootFixture::TearDown();
    }

    // Activates the module (with its definition rewritten by edit) and gives
    // a locked, empty map to draw.
    void activate(const std::function<QString(QString)>& edit = {})
    {
        QByteArray pack = module.Pack();
        if (edit) {
            pack = EditPack(pack,
                            {{QStringLiteral("module.def"), edit(module.Definition()).toUtf8()}});
        }
        home.WriteFile(QStringLiteral("modules/render.krm"), pack);
        auto resFile =
            std::make_shared<CResFileMgr>(CUtility::GetModuleDir(), QStringLiteral("render.krm"));
        QString unpacked;
        ASSERT_TRUE(resFile->UnpackFile(QStringLiteral("module.def"), -1, unpacked));
        auto definition = std::make_shared<CModuleDefinition>();
        ASSERT_TRUE(definition->LoadHeader(CUtility::GetCacheDir() + unpacked))
            << definition->LastError().toStdString();
        context = std::make_shared<CStandardGame>();
        context->Initialize(definition, resFile);
        context->Activate(nullptr);
        Root().SetContext(context);
        map = std::make_shared<CMap>(CUtility::GenerateId(), CUtility::GenerateId());
        map->AquireLock();
    }

    std::shared_ptr<CUnit> addUnit(const QString& tokenId, int x, int y,
                                   const QString& caption = QString(), bool moved = false)
    {
        const auto& tokens = context->Tokens();
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                            tokens.Item(CUtility::SearchById(tokens, tokenId)));
        unit->SetX(x);
        unit->SetY(y);
        unit->SetCaption(caption);
        unit->SetHasMoved(moved);
        map->Units()->AddItem(unit);
        return unit;
    }

    std::shared_ptr<CArrow> addArrow(int tailX, int tailY, int headX, int headY, int color)
    {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetTailX(tailX);
        arrow->SetTailY(tailY);
        arrow->SetHeadX(headX);
        arrow->SetHeadY(headY);
        arrow->SetColor(color);
        map->Arrows()->AddItem(arrow);
        return arrow;
    }

    QImage render(double scale = 1) const { return CBoardRenderer(context).RenderMap(*map, scale); }

    TestModule module;
    std::shared_ptr<CStandardGame> context;
    std::shared_ptr<CMap> map;
    QColor board;
    QColor red;
    QColor gold;
};

} // namespace

TEST_F(BoardRendererTest, UnitPicturesHaveTheirTopLeftCornerAtTheUnitsPosition)
{
    activate();
    const auto first = addUnit(QStringLiteral("red"), 30, 40);
    addUnit(QStringLiteral("gold"), 40, 50);
    const CBoardRenderer renderer(context);
    EXPECT_EQ(renderer.BoardSize(), QSize(200, 150));
    EXPECT_EQ(renderer.PictureRect(*first), QRect(30, 40, 20, 20));

    const QImage image = render();
    ASSERT_EQ(image.size(), QSize(200, 150));
    EXPECT_TRUE(near(image.pixelColor(5, 5), board));
    EXPECT_TRUE(near(image.pixelColor(30, 40), red));
    EXPECT_TRUE(near(image.pixelColor(29, 40), board));
    EXPECT_TRUE(near(image.pixelColor(30, 39), board));
    EXPECT_TRUE(near(image.pixelColor(49, 45), red));
    // The later unit covers the earlier one where they overlap.
    EXPECT_TRUE(near(image.pixelColor(45, 55), gold));
    EXPECT_TRUE(near(image.pixelColor(59, 69), gold));
    EXPECT_TRUE(near(image.pixelColor(60, 69), board));

    // At twice the size everything moves and grows with the board.
    const QImage doubled = render(2);
    ASSERT_EQ(doubled.size(), QSize(400, 300));
    EXPECT_TRUE(near(doubled.pixelColor(61, 81), red));
    EXPECT_TRUE(near(doubled.pixelColor(57, 81), board));
    EXPECT_TRUE(near(doubled.pixelColor(117, 137), gold));
}

TEST_F(BoardRendererTest, LabelsAreCentredUnderThePictureInTheContextsColours)
{
    activate();
    const auto standing = addUnit(QStringLiteral("red"), 20, 30, QStringLiteral("x12"));
    const auto moved = addUnit(QStringLiteral("red"), 120, 30, QStringLiteral("x12"), true);
    const auto silent = addUnit(QStringLiteral("gold"), 20, 100);
    const CBoardRenderer renderer(context);

    // The module's 8 points at 96 per inch.
    EXPECT_EQ(renderer.LabelFont().pixelSize(), 11);
    const QRect label = renderer.LabelRect(*standing);
    EXPECT_EQ(label.top(), 50);
    EXPECT_LE(std::abs(label.center().x() - 30), 1);
    EXPECT_EQ(label.height(), QFontMetrics(renderer.LabelFont()).height());
    EXPECT_GT(label.width(),
              QFontMetrics(renderer.LabelFont()).horizontalAdvance(QStringLiteral("x1")));
    EXPECT_TRUE(renderer.LabelRect(*silent).isEmpty());
    EXPECT_EQ(renderer.UnitBounds(*standing), renderer.PictureRect(*standing).united(label));

    const QImage image = render();
    // An opaque box in the back colour with the text in the fore colour.
    EXPECT_GT(count(image, label, black), 0);
    EXPECT_GT(count(image, label, bluish), 0);
    EXPECT_EQ(count(image, label, greenish), 0);
    const QRect movedLabel = renderer.LabelRect(*moved);
    EXPECT_GT(count(image, movedLabel, greenish), 0);
    EXPECT_EQ(count(image, movedLabel, bluish), 0);
    // Nothing is drawn beside the box or under a unit without a caption.
    EXPECT_TRUE(near(image.pixelColor(label.left() - 1, label.center().y()), board));
    EXPECT_TRUE(near(image.pixelColor(label.center().x(), label.bottom() + 1), board));
    EXPECT_EQ(count(image, QRect(20, 120, 20, 12), [&](QColor c) { return !near(c, board); }), 0);
}

TEST_F(BoardRendererTest, TransparentLabelsLetTheBoardShowThrough)
{
    activate([](QString definition) {
        return definition.replace(QStringLiteral("<label_is_transparent>false<"),
                                  QStringLiteral("<label_is_transparent>true<"));
    });
    const auto unit = addUnit(QStringLiteral("red"), 20, 30, QStringLiteral("x12"));
    const QRect label = CBoardRenderer(context).LabelRect(*unit);
    const QImage image = render();
    EXPECT_EQ(count(image, label, black), 0);
    EXPECT_GT(count(image, label, bluish), 0);
    EXPECT_GT(count(image, label, [&](QColor c) { return near(c, board); }), 0);
}

TEST_F(BoardRendererTest, ArrowsAreDrawnOverUnitsInTheirColour)
{
    activate();
    addUnit(QStringLiteral("gold"), 90, 60);
    const auto arrow = addArrow(20, 70, 180, 70, 0x0000FF);
    addArrow(150, 130, 150, 130, 0x00FF00);
    const QColor arrowRed(255, 0, 0);
    const QImage image = render();

    EXPECT_TRUE(near(image.pixelColor(60, 70), arrowRed));
    EXPECT_TRUE(near(image.pixelColor(100, 70), arrowRed)); // over the unit
    EXPECT_TRUE(near(image.pixelColor(100, 62), gold));
    EXPECT_TRUE(near(image.pixelColor(60, 75), board));
    // The head is wider than the line and ends at the head point.
    EXPECT_TRUE(near(image.pixelColor(170, 73), arrowRed));
    EXPECT_TRUE(near(image.pixelColor(150, 73), board));
    EXPECT_TRUE(near(image.pixelColor(183, 70), board));
    // An arrow whose head is on its tail still shows as a dot.
    EXPECT_TRUE(near(image.pixelColor(150, 130), QColor(0, 255, 0)));

    const QRectF bounds = CBoardRenderer(context).ArrowBounds(*arrow);
    EXPECT_TRUE(bounds.contains(QPointF(20, 70)) && bounds.contains(QPointF(180, 76)));
}

TEST_F(BoardRendererTest, ArrowTokenUnitsAndUnlockedMapsDrawNoPictures)
{
    activate();
    addUnit(QStringLiteral("move"), 10, 10);
    addUnit(QStringLiteral("red"), 100, 100);
    QImage image = render();
    EXPECT_TRUE(near(image.pixelColor(15, 15), board));
    EXPECT_TRUE(near(image.pixelColor(105, 105), red));

    // A map that is not locked has no units to reach: only the board shows.
    map->ReleaseLock();
    ASSERT_EQ(map->Units(), nullptr);
    image = render();
    EXPECT_TRUE(near(image.pixelColor(105, 105), board));
    map->AquireLock();
    EXPECT_TRUE(near(render().pixelColor(105, 105), red));
}

TEST_F(BoardRendererTest, HostilePositionsAndScalesNeverCrash)
{
    activate();
    constexpr int highest = std::numeric_limits<std::int32_t>::max();
    constexpr int lowest = std::numeric_limits<std::int32_t>::min();
    addUnit(QStringLiteral("red"), highest, highest, QStringLiteral("far"));
    addUnit(QStringLiteral("red"), lowest, lowest, QStringLiteral("far"));
    addArrow(lowest, lowest, highest, highest, 0x0000FF);
    addArrow(highest, 0, highest, 10, 0x0000FF);
    const QImage image = render();
    ASSERT_EQ(image.size(), QSize(200, 150));
    EXPECT_TRUE(near(image.pixelColor(199, 0), board));

    for (const double scale :
         {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity(), 200.0}) {
        EXPECT_THROW(render(scale), KorvaneError) << scale;
    }
    // Without a context there is no board to draw on.
    EXPECT_TRUE(CBoardRenderer(nullptr).BoardSize().isEmpty());
    EXPECT_THROW(CBoardRenderer(nullptr).RenderMap(*map, 1), KorvaneError);
}
