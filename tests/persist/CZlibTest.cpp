#include "persist/CZlib.h"

#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <zlib.h>

namespace {

template <typename Stream> QByteArray content(const Stream& s)
{
    return QByteArray(reinterpret_cast<const char*>(s.Address()), s.Size());
}

// 4096 bytes of Longs, full to capacity.
COutputStream sample()
{
    COutputStream out;
    for (int i = 0; i < 1024; ++i)
        out.WriteLong(i * i % 1000);
    return out;
}

} // namespace

TEST(CZlib, CompactMatchesLevelNineAndRoundTrips)
{
    CZlib zlib;
    COutputStream source = sample();
    const QByteArray plain = content(source);
    source.SetOffset(100);
    source.MoveAddressToOffset(); // the whole buffer is compressed, wherever the mark is
    const auto packed = zlib.Compact(source);
    EXPECT_EQ(zlib.LastResult(), Z_OK);
    QByteArray expected(4149, 0);
    uLongf length = 4149;
    compress2(reinterpret_cast<Bytef*>(expected.data()), &length,
              reinterpret_cast<const Bytef*>(plain.data()), 4096, 9);
    EXPECT_EQ(content(*packed), expected.left(static_cast<qsizetype>(length)));
    EXPECT_EQ(packed->Offset(), 0);

    // Padding after the zlib stream, as game files carry, is ignored; a size
    // above the truth leaves a zero tail.
    CInputStream input = CInputStream::FromBytes(content(*packed) + QByteArray(3, 0));
    std::int32_t size = 4096 + 50;
    const auto unpacked = zlib.Decompact(input, size);
    EXPECT_EQ(zlib.LastResult(), Z_OK);
    EXPECT_EQ(size, 4096);
    EXPECT_EQ(content(*unpacked), plain + QByteArray(50, 0));
}

TEST(CZlib, DamagedOrShortDataIsReported)
{
    CZlib zlib;
    const QByteArray good = content(*zlib.Compact(sample()));
    QByteArray damaged = good;
    for (qsizetype i = 2; i < damaged.size() - 4; i += 5)
        damaged[i] = static_cast<char>(damaged[i] ^ 0x5A);
    // Damaged, cut short, or longer than the size the pack declares.
    const std::pair<QByteArray, std::int32_t> cases[] = {
        {damaged, 4096}, {good.left(good.size() / 2), 4096}, {good, 1000}};
    for (const auto& [bytes, wanted] : cases) {
        CInputStream input = CInputStream::FromBytes(bytes);
        std::int32_t size = wanted;
        zlib.Decompact(input, size);
        EXPECT_NE(zlib.LastResult(), Z_OK) << bytes.size() << " " << wanted;
    }
}
