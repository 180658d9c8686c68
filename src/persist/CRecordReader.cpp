#include "CRecordReader.h"

#include "core/KorvaneError.h"
#include "persist/CInputStream.h"

CRecordReader::CRecordReader(CInputStream& stream, const char* source)
    : m_stream(stream), m_source(source)
{}

void CRecordReader::Fail(int number, const QString& description) const
{
    throw KorvaneError(number, QLatin1String(m_source), description);
}

void CRecordReader::need(std::int64_t bytes) const
{
    if (bytes > m_stream.Remaining())
        Fail(TruncatedError, QStringLiteral("The data ends in the middle of a record: "
                                            "the file is truncated or damaged"));
}

std::int16_t CRecordReader::Integer()
{
    need(2);
    return m_stream.ReadInteger();
}

std::int32_t CRecordReader::Long()
{
    need(4);
    return m_stream.ReadLong();
}

bool CRecordReader::Boolean()
{
    need(2);
    return m_stream.ReadBoolean();
}

QString CRecordReader::SmallString()
{
    need(1);
    const std::int32_t start = m_stream.Offset();
    const std::uint8_t length = m_stream.ReadByte();
    need(length);
    m_stream.SetOffset(start);
    return m_stream.ReadSmallString();
}

QString CRecordReader::String()
{
    need(2);
    const std::int32_t start = m_stream.Offset();
    const std::int16_t length = m_stream.ReadInteger();
    if (length < 0)
        Fail(InvalidFormatError,
             QStringLiteral("A text of negative length (%1) was found: the file is damaged")
                 .arg(length));
    need(length);
    m_stream.SetOffset(start);
    return m_stream.ReadString();
}

std::int16_t CRecordReader::Version(const QString& record, std::int16_t lowest,
                                    std::int16_t highest)
{
    const std::int16_t version = Integer();
    if (version > highest)
        Fail(InvalidFormatError,
             QStringLiteral("The %1 record has version %2, which this program does not know: "
                            "it was written by a newer version of Korvane")
                 .arg(record)
                 .arg(version));
    if (version < lowest)
        Fail(InvalidFormatError,
             QStringLiteral("The %1 record has the invalid version %2: the file is damaged")
                 .arg(record)
                 .arg(version));
    return version;
}

std::int32_t CRecordReader::checkCount(std::int64_t count, const QString& items,
                                       std::int32_t minimumBytes) const
{
    if (count < 0)
        Fail(InvalidFormatError,
             QStringLiteral("A negative number of %1 (%2) was found: the file is damaged")
                 .arg(items)
                 .arg(count));
    const std::int64_t remaining = m_stream.Remaining();
    if (count * minimumBytes > remaining)
        Fail(InvalidFormatError,
             QStringLiteral("The data claims %1 %2, more than the remaining %3 bytes can hold: "
                            "the file is damaged")
                 .arg(count)
                 .arg(items)
                 .arg(remaining));
    return static_cast<std::int32_t>(count);
}

std::int32_t CRecordReader::IntegerCount(const QString& items, std::int32_t minimumBytes)
{
    return checkCount(Integer(), items, minimumBytes);
}

std::int32_t CRecordReader::LongCount(const QString& items, std::int32_t minimumBytes)
{
    return checkCount(Long(), items, minimumBytes);
}
