#include "CAnsiCodec.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

// Code points of the bytes 0x80..0x9F; 0 marks the five bytes the code page
// leaves undefined, which are read back as the matching C1 control.
constexpr std::array<char16_t, 32> highTable = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte for c, or 0 when the code page has none (0 itself is ASCII and
// never comes here).
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
    return 0;
}

} // namespace

QByteArray CAnsiCodec::Encode(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    EncodeInto(text, reinterpret_cast<unsigned char*>(bytes.data()));
    return bytes;
}

bool CAnsiCodec::EncodeInto(QStringView text, unsigned char* destination)
{
    const char16_t* in = text.utf16();
    const qsizetype n = text.size();
    qsizetype i = 0;
    // Four characters at a time while they are plain ASCII, the usual case.
    for (; i + 4 <= n; i += 4) {
        std::uint64_t four;
        std::memcpy(&four, in + i, sizeof four);
        if (four & 0xFF80FF80FF80FF80ull)
            break;
        destination[i] = static_cast<unsigned char>(four);
        destination[i + 1] = static_cast<unsigned char>(four >> 16);
        destination[i + 2] = static_cast<unsigned char>(four >> 32);
        destination[i + 3] = static_cast<unsigned char>(four >> 48);
    }
    bool exact = true;
    for (; i < n; ++i) {
        char byte = encodeOne(in[i]);
        if (byte == 0 && in[i] != 0) {
            byte = '?';
            exact = false;
        }
        destination[i] = static_cast<unsigned char>(byte);
    }
    return exact;
}

QString CAnsiCodec::Decode(const unsigned char* bytes, qsizetype length)
{
    // Without bytes in 0x80..0x9F the code page agrees with Latin-1. Eight
    // bytes are tested at a time: a byte b is in that range when
    // (b & 0xE0) ^ 0x80 is zero.
    bool latin1 = true;
    qsizetype tested = 0;
    for (; latin1 && tested + 8 <= length; tested += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, bytes + tested, sizeof eight);
        const std::uint64_t v = (eight & 0xE0E0E0E0E0E0E0E0ull) ^ 0x8080808080808080ull;
        latin1 = ((v - 0x0101010101010101ull) & ~v & 0x8080808080808080ull) == 0;
    }
    for (; latin1 && tested < length; ++tested)
        latin1 = (bytes[tested] & 0xE0) != 0x80;
    if (latin1)
        return QString::fromLatin1(reinterpret_cast<const char*>(bytes), length);
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
