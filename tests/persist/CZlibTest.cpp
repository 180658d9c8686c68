#include "persist/CZlib.h"

#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include <gtest/gtest.h>

#include <zlib.h>

// Module packs inflate their entries here and check the lengths they get; a
// damaged checksum leaves the length right, so only the result tells.
TEST(CZlib, DamagedDataIsReportedEvenWhenItInflatesToTheWantedLength)
{
    const QByteArray plain = QByteArray("counter ").repeated(512);
    QByteArray packed = qCompress(plain, 9).mid(4); // qCompress prefixes a length
    packed[packed.size() - 1] = static_cast<char>(packed[packed.size() - 1] ^ 1);
    CInputStream input = CInputStream::FromBytes(packed);
    std::int32_t size = static_cast<std::int32_t>(plain.size());
    CZlib zlib;
    zlib.Decompact(input, size);
    EXPECT_EQ(zlib.LastResult(), Z_DATA_ERROR);
    EXPECT_EQ(size, plain.size());
}
