#include "persist/CAnsiCodec.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include "core/KorvaneError.h"
#include "support/QtPrinters.h"
#include "support/TestHome.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray bytes(const COutputStream& s, std::int32_t count)
{
    return QByteArray(reinterpret_cast<const char*>(s.Address()), count);
}

CInputStream input(const char* hex)
{
    return CInputStream::FromBytes(QByteArray::fromHex(hex));
}

} // namespace

TEST(Streams, EncodesEveryTypeByteByByteAndReadsItBack)
{
    COutputStream out;
    out.Constructor(16);
    out.WriteByte(0xAB);
    out.WriteInteger(-2);
    out.WriteBoolean(true);
    out.WriteBoolean(false);
    out.WriteLong(0x12345678);
    out.WriteSingle(1.5f);
    out.WriteDouble(-2.0);
    out.WriteCurrency(12345678); // 1234.5678
    out.WriteSmallString(u"A\u00E9\u20AC"_s);
    out.WriteString(QString());
    out.WriteString(u"x\u263A"_s); // outside the code page
    out.WriteBigString(u"ab"_s);
    EXPECT_EQ(bytes(out, out.Offset()),
              QByteArray::fromHex("ab feff ffff 0000 78563412 0000c03f 00000000000000c0 "
                                  "4e61bc0000000000 0341e980 0000 0200783f 020000006162"));

    CInputStream in = CInputStream::FromBytes(bytes(out, out.Offset()));
    in.SetOffset(1);
    EXPECT_EQ(in.ReadInteger(), -2);
    EXPECT_TRUE(in.ReadBoolean());
    in.SetOffset(11);
    EXPECT_EQ(in.ReadSingle(), 1.5f);
    EXPECT_EQ(in.ReadDouble(), -2.0);
    EXPECT_EQ(in.ReadCurrency(), 12345678);
    EXPECT_EQ(in.ReadSmallString(), u"A\u00E9\u20AC"_s);
}

TEST(Streams, CodePageAndStringCuts)
{
    QByteArray all(256, 0);
    for (int i = 0; i < 256; ++i)
        all[i] = static_cast<char>(i);
    const QString decoded = CAnsiCodec::Decode(all);
    EXPECT_EQ(decoded.mid(0x80, 2) + decoded.mid(0x9F, 1), u"\u20AC\u0081\u0178"_s);
    EXPECT_EQ(CAnsiCodec::Encode(decoded), all);
    EXPECT_EQ(CAnsiCodec::Encode(u"\u0080\u0100\u4E2D"_s), QByteArray("???"));
    // Plain text is converted in blocks; a special character anywhere in a
    // block, or in the tail, still goes through the code page's table.
    const QString plain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123"_s;
    for (qsizetype at = 0; at < plain.size(); ++at) {
        for (const auto& [c, byte] : {std::pair{u'\u20AC', '\x80'}, {u'\u00E9', '\xE9'}}) {
            QString text = plain;
            text[at] = QChar(c);
            QByteArray expected = plain.toLatin1();
            expected[at] = byte;
            EXPECT_EQ(CAnsiCodec::Encode(text), expected) << at;
            EXPECT_EQ(CAnsiCodec::Decode(expected), text) << at;
        }
        QString text = plain;
        text[at] = QChar(0x0100);
        EXPECT_EQ(CAnsiCodec::Encode(text), plain.toLatin1().replace(at, 1, "?")) << at;
    }

    const QString text = QString(40000, u'a') + u'b';
    COutputStream out;
    out.WriteSmallString(text.right(300));
    out.WriteString(text.right(40000));
    out.WriteBigString(text);
    EXPECT_EQ(out.Offset(), 256 + 32769 + 40005);
    CInputStream in = CInputStream::FromBytes(bytes(out, out.Offset()));
    EXPECT_EQ(in.ReadSmallString(), text.right(300).left(255));
    EXPECT_EQ(in.ReadString(), text.right(40000).left(32767));
    EXPECT_EQ(in.ReadBigString(), text);
}

TEST(Streams, OutputGrowsFromTheLastIndexNeeded)
{
    COutputStream lazy; // never constructed
    lazy.WriteByte(7);
    lazy.Constructor(10); // only the first construction counts
    EXPECT_EQ(lazy.Size(), 4096);
    EXPECT_EQ(lazy.Offset(), 1);

    COutputStream out;
    out.Constructor(4096);
    out.WriteByte(0x11);
    out.SetOffset(4096);
    out.WriteByte(0x22);
    EXPECT_EQ(out.Size(), 12288);
    EXPECT_EQ(bytes(out, 4097), "\x11" + QByteArray(4095, 0) + "\x22");

    COutputStream odd;
    odd.Constructor(100);
    odd.SetOffset(98);
    odd.WriteLong(1); // last index 101: one block on top of 100
    EXPECT_EQ(odd.Size(), 4196);

    out.SetOffset(0x7FFFFFFD);
    EXPECT_THROW(out.WriteLong(1), KorvaneError);
    out.SetOffset(-1);
    EXPECT_THROW(out.WriteByte(1), KorvaneError);
}

TEST(Streams, DumpWritesTheWholeCapacity)
{
    TestHome home;
    QFile file(home.File(u"dump.bin"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("HEAD");
    COutputStream ten;
    for (int i = 1; i <= 10; ++i)
        ten.WriteByte(static_cast<std::uint8_t>(i));
    ASSERT_TRUE(ten.DumpToFile(file));
    file.close();
    EXPECT_EQ(home.ReadFile(u"dump.bin"_s),
              "HEAD" + QByteArray::fromHex("0102030405060708090a") + QByteArray(4086, 0));
}

TEST(Streams, ReadsPastTheEndGiveZerosAndKeepPosition)
{
    CInputStream in = input("010203");
    EXPECT_EQ(in.ReadLong(), 0);
    EXPECT_EQ(in.ReadInteger(), 0x0201);
    EXPECT_EQ(in.ReadInteger() + in.ReadDouble() + in.ReadCurrency() + in.ReadSingle(), 0);
    EXPECT_EQ(in.ReadByte(), 3);
    EXPECT_EQ(in.ReadByte(), 0);
    EXPECT_EQ(in.Offset(), 3);

    CInputStream flags = input("0100 0080 0000");
    EXPECT_TRUE(flags.ReadBoolean() && flags.ReadBoolean());
    EXPECT_FALSE(flags.ReadBoolean());

    // A string whose body is missing consumes its prefix only.
    CInputStream cut = input("054142");
    EXPECT_EQ(cut.ReadSmallString(), QString());
    EXPECT_EQ(cut.ReadByte(), 0x41);
    CInputStream strings = input("ffff ffffff7f 0100");
    EXPECT_EQ(strings.ReadString(), QString());
    EXPECT_EQ(strings.ReadBigString(), QString());
    EXPECT_EQ(strings.ReadInteger(), 1);
}

TEST(Streams, InputFromFiles)
{
    TestHome home;
    const QString name = home.WriteFile(u"six.bin"_s, QByteArray::fromHex("0a000b000c00"));
    CInputStream whole, longer, missing, empty;
    whole.Constructor(-1, name);
    whole.Constructor(2, name); // ignored: already constructed
    EXPECT_EQ(whole.Size(), 6);
    whole.SetOffset(4);
    EXPECT_EQ(whole.ReadInteger(), 12);
    longer.Constructor(10, name);
    longer.SetOffset(4);
    EXPECT_EQ(longer.ReadLong(), 12); // the part beyond the file is zero

    missing.Constructor(-1, home.File(u"none.bin"_s));
    EXPECT_TRUE(missing.Initialized());
    EXPECT_EQ(missing.Size(), -1);
    EXPECT_EQ(missing.ReadByte(), 0);
    empty.Constructor(-1, home.WriteFile(u"empty.bin"_s, QByteArray()));
    EXPECT_EQ(empty.Size(), 0);
    EXPECT_EQ(empty.ReadByte(), 0);
    EXPECT_EQ(empty.Address(), nullptr);
}
