#include "persist/CAnsiCodec.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray bytes(const COutputStream& s, std::int32_t count)
{
    return QByteArray(reinterpret_cast<const char*>(s.Address()), count);
}

} // namespace

TEST(Streams, EncodesEveryTypeByteByByte)
{
    COutputStream out;
    out.Constructor(16); // grows as the writes go past 16 bytes
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

    // Names keep 255 characters, map texts 32767.
    const QString text = QString(40000, u'a') + u'b';
    COutputStream out;
    out.WriteSmallString(text.right(300));
    out.WriteString(text);
    EXPECT_EQ(out.Offset(), 256 + 32769);
    CInputStream in = CInputStream::FromBytes(bytes(out, out.Offset()));
    EXPECT_EQ(in.ReadSmallString(), text.right(300).left(255));
    EXPECT_EQ(in.ReadString(), text.left(32767));
}
