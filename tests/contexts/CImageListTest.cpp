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
    // Colour values keep red in the low byte: 0x0000FF is red.
    const auto list = Root().ImageListMgr().GetImageList(0x0000FF, 6, 8);
    EXPECT_EQ(list->Add(QStringLiteral("inf"), twoColourPicture(8, 6)), 1);
    EXPECT_EQ(list->Add(QStringLiteral("art"), twoColourPicture(16, 12)), 2);
    EXPECT_THROW(list->Add(QStringLiteral("inf"), twoColourPicture(8, 6)), KorvaneError);

    const QImage inf = list->Image(QStringLiteral("inf"));
    EXPECT_EQ(qAlpha(inf.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(inf.pixel(3, 5)), 0);
    EXPECT_EQ(inf.pixel(7, 0), qRgb(0, 0, 255));
    EXPECT_EQ(inf.pixel(1, 1), qRgb(0, 255, 0));
    // A larger picture is scaled to the list's size; its red half is still clear.
    const QImage art = list->Image(QStringLiteral("art"));
    EXPECT_EQ(art.size(), QSize(8, 6));
    EXPECT_EQ(qAlpha(art.pixel(0, 5)), 0);
    EXPECT_EQ(qAlpha(art.pixel(7, 5)), 255);
    EXPECT_TRUE(list->Image(QStringLiteral("INF")).isNull()) << "keys keep their case";

    // A picture that could not be read still answers to its key.
    list->Add(QStringLiteral("lost"), QImage());
    EXPECT_EQ(qAlpha(list->Image(QStringLiteral("lost")).pixel(4, 3)), 0);
    // No mask colour: nothing turns transparent.
    EXPECT_EQ(qAlpha(CImageList::ApplyMask(twoColourPicture(4, 4), -1).pixel(0, 0)), 255);
}
