#include "model/ModelTestSupport.h"

#include <gtest/gtest.h>

namespace {

using ModelRecords = ModelFixture;

TEST_F(ModelRecords, tokensAreFoundByIndexThenByIdThenByTheOneSubstitution)
{
    Bytes bytes;
    bytes.i16(1).small("M").small("").text("").i16(0).i16(4);
    // Unit records of version 2 without id.
    const auto unit = [&bytes](std::int16_t index, const QByteArray& id, std::int32_t x,
                               const QByteArray& caption) {
        bytes.i16(index).small(id).i16(2).i32(x).i32(0).small(caption).small("").i16(0);
    };
    unit(1, "INF", 1, "by index");
    unit(5, "TANK", 2, "index moved"); // index 5 holds NEINF
    unit(0, "MARK", 3, "no index");
    unit(99, "CHBBD", 4, "renamed");
    bytes.i16(0);
    CInputStream in = CInputStream::FromBytes(bytes.data());
    CMap map(CUtility::GenerateId(), QString());
    map.RestoreFrom(in);
    map.AquireLock();
    QStringList tokens;
    for (const auto& unit : *map.Units())
        tokens << unit->Token()->Id() + QLatin1Char(':') + unit->Caption();
    EXPECT_EQ(tokens,
              (QStringList{QStringLiteral("INF:by index"), QStringLiteral("TANK:index moved"),
                           QStringLiteral("MARK:no index"), QStringLiteral("NEINF:renamed")}));
}

} // namespace
