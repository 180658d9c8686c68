#pragma once

#include <QString>

#include <cstdint>

class CInputStream;

// Reads the fields of a record from a stream that may be damaged or hostile.
// Unlike the bare stream, which answers zeros past the end, every read here
// fails with a KorvaneError when the bytes are not there, and every count is
// checked against the bytes remaining before anything is allocated for it.
// Errors carry the record's reader as their source ("CMap.RestoreFrom").
class CRecordReader
{
public:
    static constexpr int TruncatedError = 62;
    static constexpr int InvalidFormatError = 321;

    CRecordReader(CInputStream& stream, const char* source);

    std::int16_t Integer();
    std::int32_t Long();
    bool Boolean();
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

    [[noreturn]] void Fail(int number, const QString& description) const;

private:
    void need(std::int64_t bytes) const;
    std::int32_t checkCount(std::int64_t count, const QString& items,
                            std::int32_t minimumBytes) const;

    CInputStream& m_stream;
    const char* m_source;
};
