#include "CAnsiCodec.h"

#include <array>

namespace {

// Code points of the bytes 0x80..0x9F; 0 marks the five bytes the code page
// leaves undefined, which are read back as the matching C1 control.
constexpr std::array<char16_t, 32> highTable = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char encodeOne(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < highTable.size(); ++i) {
        if (highTable[i] != 0 && highTable[i] == c)
            return static_cast<char>(0x80 + i);
    }
    // The undefined bytes round-trip through their C1 controls.
    if (c >= 0x80 && c <= 0x9F && highTable[c - 0x80] == 0)
        return static_cast<char>(c);
    return '?';
}

} // namespace

QByteArray CAnsiCodec::Encode(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    EncodeInto(text, reinterpret_cast<unsigned char*>(bytes.data()));
    return bytes;
}

void CAnsiCodec::EncodeInto(QStringView text, unsigned char* destination)
{
    const QChar* in = text.data();
    for (qsizetype i = 0; i < text.size(); ++i)
        destination[i] = static_cast<unsigned char>(encodeOne(in[i].unicode()));
}

QString CAnsiCodec::Decode(const unsigned char* bytes, qsizetype length)
{
    QString text(length, Qt::Uninitialized);
    QChar* out = text.data();
    for (qsizetype i = 0; i < length; ++i) {
        const unsigned char b = bytes[i];
        if (b >= 0x80 && b <= 0x9F && highTable[b - 0x80] != 0)
            out[i] = QChar(highTable[b - 0x80]);
        else
            out[i] = QChar(static_cast<char16_t>(b));
    }
    return text;
}

QString CAnsiCodec::Decode(const QByteArray& bytes)
{
    return Decode(reinterpret_cast<const unsigned char*>(bytes.constData()), bytes.size());
}
