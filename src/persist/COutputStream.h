#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

class QIODevice;

// Appends little-endian typed values to a growable byte buffer. The content
// is the first Offset bytes; Size is only the capacity, which grows by
// ((last index needed div 4096) + 1) * 4096 bytes at a time.
class COutputStream
{
public:
    COutputStream() = default;

    // Only the first call counts: capacity initialSize, or 4096 when below 1.
    void Constructor(std::int32_t initialSize);
    bool Initialized() const { return m_initialized; }

    std::int32_t Size() const { return m_size; }
    // Reallocates to newSize bytes (kept or zeroed) and resets Offset to 0.
    void Resize(std::int32_t newSize, bool preserve);

    std::int32_t Offset() const { return m_offset; }
    void SetOffset(std::int32_t offset) { m_offset = offset; }

    // Buffer[AddressMark], or null before construction; valid until the next growth.
    unsigned char* Address();
    const unsigned char* Address() const;
    void MoveAddressToOffset();
    // The first buffer byte whatever the mark, or null before construction.
    const unsigned char* Data() const { return m_size >= 1 ? m_buffer.data() : nullptr; }

    // Writes all Size bytes, whatever Offset is. False when the device refused them.
    bool DumpToFile(QIODevice& file) const;

    // Exact text, for data this process alone reads back (swap files): small
    // and plain strings are written uncut as its length in UTF-16 units (a Byte, or 255
    // followed by a Long) and those units. CRecordReader reads it back.
    void SetExactText(bool exact) { m_exactText = exact; }
    // While set, every text written that the code page cannot hold whole is
    // appended to texts (once per text written).
    void CollectLossyTexts(QStringList* texts) { m_lossyTexts = texts; }

    void WriteSmallString(const QString& s);
    void WriteString(const QString& s);
    void WriteBigString(const QString& s);
    void WriteInteger(std::int16_t v);
    void WriteBoolean(bool v);
    void WriteLong(std::int32_t v);
    void WriteByte(std::uint8_t v);
    void WriteSingle(float v);
    void WriteDouble(double v);
    // The value times 10000, as a 64-bit integer.
    void WriteCurrency(std::int64_t scaledValue);

private:
    void ensureCapacity(std::int32_t count);
    void writeRaw(const void* data, std::int32_t count);
    void writeText(const QString& s, qsizetype length);
    void writeExactText(const QString& s);

    bool m_initialized = false;
    std::vector<unsigned char> m_buffer;
    std::int32_t m_size = -1;
    std::int32_t m_offset = 0;
    std::int32_t m_addressMark = 0;
    bool m_exactText = false;
    QStringList* m_lossyTexts = nullptr;
};
