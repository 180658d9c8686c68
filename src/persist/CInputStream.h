#pragma once

#include "persist/CDefaultInitAllocator.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

// Reads little-endian typed values from a fixed byte buffer. Running out of
// data never raises: numbers read as 0, flags as false, strings as "", and
// the position stays where it was (a string keeps its consumed prefix).
class CInputStream
{
public:
    CInputStream() = default;

    // Only the first call counts. With an existing file: size -1 means the
    // file's length; the buffer is filled from the start of the file (a short
    // file leaves zeros). Without one: size zero bytes when size > 0.
    void Constructor(std::int32_t size, const QString& fileName);
    // A stream over a copy of bytes (convenience for in-memory data).
    static CInputStream FromBytes(const QByteArray& bytes);
    // A stream that takes over buffer.
    static CInputStream FromBuffer(CByteBuffer&& buffer);

    bool Initialized() const { return m_initialized; }
    std::int32_t Size() const { return m_size; }
    void Resize(std::int32_t newSize, bool preserve);

    unsigned char* Address();
    const unsigned char* Address() const;

    std::int32_t Offset() const { return m_offset; }
    void SetOffset(std::int32_t offset) { m_offset = offset; }
    // Bytes left from Offset to the end (0 when none or positioned outside).
    std::int32_t Remaining() const;

    QString ReadSmallString();
    QString ReadString();
    QString ReadBigString();
    std::int16_t ReadInteger();
    // Any non-zero value is true.
    bool ReadBoolean();
    std::int32_t ReadLong();
    std::uint8_t ReadByte();
    float ReadSingle();
    double ReadDouble();
    std::int64_t ReadCurrency();

private:
    bool hasBytes(std::int64_t count) const;
    bool readRaw(void* destination, std::int32_t count);
    QString readText(std::int64_t length);

    bool m_initialized = false;
    std::int32_t m_size = -1;
    CByteBuffer m_buffer;
    std::int32_t m_offset = 0;
    std::int32_t m_addressMark = 0;
};
