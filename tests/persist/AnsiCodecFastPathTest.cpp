#include "persist/CAnsiCodec.h"

#include <gtest/gtest.h>

// Texts are converted in blocks while they are plain; a special character at
// any place in a block, or in the tail after the last block, must still be
// converted by the code page's table.
TEST(AnsiCodecBlocks, specialCharactersAnywhereAreConvertedByTheTable)
{
    const QString plain = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123");
    for (qsizetype at = 0; at < plain.size(); ++at) {
        QString text = plain;
        text[at] = QChar(0x20AC); // euro sign, byte 0x80
        QByteArray expected = plain.toLatin1();
        expected[at] = '\x80';
        EXPECT_EQ(CAnsiCodec::Encode(text), expected) << at;
        EXPECT_EQ(CAnsiCodec::Decode(expected), text) << at;

        text[at] = QChar(0x00E9); // e acute: the same byte as in Latin-1
        expected[at] = '\xE9';
        EXPECT_EQ(CAnsiCodec::Encode(text), expected) << at;
        EXPECT_EQ(CAnsiCodec::Decode(expected), text) << at;

        text[at] = QChar(0x0100); // not in the code page
        expected[at] = '?';
        EXPECT_EQ(CAnsiCodec::Encode(text), expected) << at;
    }
}
