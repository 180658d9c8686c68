#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

class CInputStream;

// Reads the fields of records from a stream that may be damaged or hostile.
// Unlike the bare stream, which answers zeros past the end, every read here
// fails with a KorvaneError when the bytes are not there, and every count is
// checked against the bytes remaining before anything is allocated for it.
// Errors carry the reader's source ("CMap.RestoreFrom"). Reads advance the
// stream's Offset as the stream's own reads would.
class CRecordReader
{
    Q_DECLARE_TR_FUNCTIONS(CRecordReader)

public:
    static constexpr int TruncatedError = 62;
    static constexpr int InvalidFormatError = 321;

    CRecordReader(CInputStream& stream, const char* source);
    // Reads bytes the caller keeps alive while the reader lives.
    CRecordReader(const unsigned char* data, std::int32_t size, const char* source);
    // Moves the stream (if any) to where this reader got.
    ~CRecordReader();
    CRecordReader(const CRecordReader&) = delete;
    CRecordReader& operator=(const CRecordReader&) = delete;

    std::int16_t Integer() { return fixed<std::int16_t>(); }
    std::int32_t Long() { return fixed<std::int32_t>(); }
    bool Boolean() { return Integer() != 0; }
    QString SmallString();
    QString String();

    // A record version between lowest and highest. A higher one was written by
    // a newer program and is refused rather than misread.
    std::int16_t Version(const QString& record, std::int16_t lowest, std::int16_t highest);

    // A count stored as Integer (or Long) of items that take at least
    // minimumBytes each. Negative counts and counts the remaining bytes cannot
    // hold fail.
    std::int32_t IntegerCount(const QString& items, std::int32_t minimumBytes);
    std::int32_t LongCount(const QString& items, std::int32_t minimumBytes);

    std::int32_t Remaining() const { return m_size - m_offset; }

    // Reads strings in the exact layout of COutputStream::SetExactText.
    void SetExactText(bool exact) { m_exactText = exact; }

    // Names the record being read in the errors raised while it lives.
    class Section
    {
    public:
        Section(CRecordReader& reader, const char* source)
            : m_reader(reader), m_previous(std::exchange(reader.m_source, source))
        {}
        ~Section() { m_reader.m_source = m_previous; }
        Section(const Section&) = delete;
        Section& operator=(const Section&) = delete;

    private:
        CRecordReader& m_reader;
        const char* m_previous;
    };
    [[noreturn]] void Fail(int number, const QString& description) const;

private:
    template <typename T> T fixed()
    {
        need(sizeof(T));
        T value;
        std::memcpy(&value, m_data + m_offset, sizeof(T));
        m_offset += static_cast<std::int32_t>(sizeof(T));
        return value;
    }
    void need(std::int64_t bytes) const
    {
        if (bytes > Remaining())
            failTruncated();
    }
    [[noreturn]] void failTruncated() const;
    // A record or item name marked with QT_TRANSLATE_NOOP("CRecordReader", ...)
    // in the player's language.
    static QString translated(const QString& noun);

    // byteCount bytes of text, in the reader's encoding.
    QString text(std::int32_t byteCount);
    QString decode(const unsigned char* bytes, std::int32_t byteCount) const;
    QString exactText();
    std::int32_t checkCount(std::int64_t count, const QString& items,
                            std::int32_t minimumBytes) const;

    // Short texts (captions, counts) repeat a lot; equal ones share one string.
    struct Interned
    {
        std::uint8_t length = 0xFF;
        std::array<unsigned char, 15> bytes{};
        QString text;
    };
    static constexpr std::size_t internSlots = 64;

    CInputStream* m_stream = nullptr;
    const char* m_source;
    const unsigned char* m_data = nullptr;
    std::int32_t m_size = 0;
    std::int32_t m_offset = 0;
    bool m_exactText = false;
    std::array<Interned, internSlots> m_interned;
};
