#include "model/ModelTestSupport.h"

#include "core/KorvaneError.h"

#include <gtest/gtest.h>

namespace {

class ModelRecords : public ModelFixture
{
protected:
    // A version 2 unit record without id.
    static Bytes& unitRecord(Bytes& bytes, std::int32_t x, const QByteArray& caption)
    {
        return bytes.i16(2).i32(x).i32(0).small(caption).small("").i16(0);
    }

    // A map record header up to (not including) the unit count.
    static Bytes mapHeader(const QByteArray& name)
    {
        Bytes bytes;
        bytes.i16(1).small(name).small("").text("").i16(0);
        return bytes;
    }
};

// Read back, these records are checked by the game file round trip.
TEST_F(ModelRecords, unitRecordsKeepTheIdOnlyForArrowTokens)
{
    const auto bytesOf = [](const CUnit& unit) {
        COutputStream out;
        unit.SaveTo(out);
        return QByteArray(reinterpret_cast<const char*>(out.Address()), out.Offset());
    };
    CUnit plain(QStringLiteral("U1"), token(QStringLiteral("TANK")));
    plain.SetX(10);
    plain.SetY(-2);
    plain.SetCaption(QStringLiteral("ab"));
    plain.SetData(QStringLiteral("3"));
    plain.SetHasMoved(true);
    EXPECT_EQ(bytesOf(plain), Bytes().i16(2).i32(10).i32(-2).small("ab").small("3").i16(-1).data());
    const CUnit arrow(QStringLiteral("A1"), token(QStringLiteral("ARROW")));
    EXPECT_EQ(bytesOf(arrow),
              Bytes().i16(2).small("A1").i32(0).i32(0).small("").small("").i16(0).data());
}

TEST_F(ModelRecords, tokensAreFoundByIndexThenByIdThenByTheOneSubstitution)
{
    Bytes bytes = mapHeader("M");
    bytes.i16(4);
    unitRecord(bytes.i16(1).small("INF"), 1, "by index");
    unitRecord(bytes.i16(5).small("TANK"), 2, "index moved"); // index 5 holds NEINF
    unitRecord(bytes.i16(0).small("MARK"), 3, "no index");
    unitRecord(bytes.i16(99).small("CHBBD"), 4, "renamed");
    bytes.i16(0);
    CInputStream in = bytes.stream();
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
