#include "contexts/CImageList.h"
#include "contexts/CImageListMgr.h"
#include "core/CKorvane.h"
#include "core/KorvaneError.h"
#include "support/RootFixture.h"

namespace {

using ImageListTest = RootFixture;

// Left half red, right half blue, one green pixel at (1, 1).
QImage twoColourPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.setPixel(x, y, x < width / 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
    }
    picture.setPixel(1, 1, qRgb(0, 255, 0));
    return picture;
}

} // namespace

TEST_F(ImageListTest, MaskColourBecomesTransparentAndKeysFindPictures)
{
    CImageListMgr& manager = Root().ImageListMgr();
    // Colour values keep red in the low byte: 0x0000FF is red.
    const auto list = manager.GetImageList(0x0000FF, 6, 8);
    ASSERT_EQ(list->Width(), 8);
    ASSERT_EQ(list->Height(), 6);
    EXPECT_EQ(list->Add(QStringLiteral("inf"), twoColourPicture(8, 6)), 1);
    EXPECT_EQ(list->Add(QStringLiteral("art"), twoColourPicture(16, 12)), 2);
    EXPECT_THROW(list->Add(QStringLiteral("inf"), twoColourPicture(8, 6)), KorvaneError);

    const QImage inf = list->Image(QStringLiteral("inf"));
    EXPECT_EQ(qAlpha(inf.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(inf.pixel(3, 5)), 0);
    EXPECT_EQ(inf.pixel(7, 0), qRgb(0, 0, 255));
    EXPECT_EQ(inf.pixel(1, 1), qRgb(0, 255, 0));

    // A larger picture is scaled to the list's size; its red half is still clear.
    const QImage art = list->Image(2);
    EXPECT_EQ(art.size(), QSize(8, 6));
    EXPECT_EQ(qAlpha(art.pixel(0, 5)), 0);
    EXPECT_EQ(qAlpha(art.pixel(7, 5)), 255);

    EXPECT_EQ(list->IndexOf(QStringLiteral("art")), 2);
    EXPECT_EQ(list->Key(1), QStringLiteral("inf"));
    EXPECT_EQ(list->IndexOf(QStringLiteral("INF")), 0);
    EXPECT_TRUE(list->Image(QStringLiteral("cav")).isNull());
    EXPECT_THROW(list->Image(3), KorvaneError);

    // A picture that could not be read still answers to its key.
    list->Add(QStringLiteral("lost"), QImage());
    EXPECT_EQ(qAlpha(list->Image(QStringLiteral("lost")).pixel(4, 3)), 0);

    // No mask colour: nothing turns transparent.
    const QImage plain = CImageList::ApplyMask(twoColourPicture(4, 4), -1);
    EXPECT_EQ(qAlpha(plain.pixel(0, 0)), 255);
}

TEST_F(ImageListTest, ManagerHandsOutSeparateListsAndTakesThemBack)
{
    CImageListMgr& manager = Root().ImageListMgr();
    const auto pallet = manager.GetImageList(0xFF00FF, 30, 32);
    const auto units = manager.GetImageList(0xFF00FF, 30, 32);
    EXPECT_NE(pallet, units);
    EXPECT_EQ(manager.ListCount(), 2);
    pallet->Add(QStringLiteral("inf"), twoColourPicture(32, 30));
    EXPECT_FALSE(units->Exists(QStringLiteral("inf")));

    manager.ReleaseImageList(pallet);
    EXPECT_EQ(pallet->Count(), 0);
    EXPECT_EQ(manager.ListCount(), 1);
    manager.ReleaseImageList(pallet);
    manager.ReleaseImageList(nullptr);
    EXPECT_EQ(manager.ListCount(), 1);

    EXPECT_THROW(manager.GetImageList(0, 0, 32), KorvaneError);
    EXPECT_THROW(manager.GetImageList(0, 32, CImageListMgr::MaxImageSize + 1), KorvaneError);
    EXPECT_EQ(manager.ListCount(), 1);
}
