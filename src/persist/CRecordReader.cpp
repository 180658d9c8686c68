#include "CRecordReader.h"

#include "core/KorvaneError.h"
#include "persist/CAnsiCodec.h"
#include "persist/CInputStream.h"

#include <cstring>

CRecordReader::CRecordReader(const unsigned char* data, std::int32_t size, const char* source)
    : m_source(source), m_data(data), m_size(data && size > 0 ? size : 0)
{}

CRecordReader::CRecordReader(CInputStream& stream, const char* source)
    : m_stream(&stream), m_source(source)
{
    // The stream's buffer stays put while it is read; reading it here
    // directly saves a call per byte group.
    const std::int32_t remaining = stream.Remaining();
    if (remaining > 0) {
        m_data = stream.Address();
        m_offset = stream.Offset();
        m_size = m_offset + remaining;
    }
}

CRecordReader::~CRecordReader()
{
    if (m_stream && m_data)
        m_stream->SetOffset(m_offset);
}

void CRecordReader::Fail(int number, const QString& description) const
{
    if (m_stream && m_data)
        m_stream->SetOffset(m_offset);
    throw KorvaneError(number, QLatin1String(m_source), description);
}

QString CRecordReader::translated(const QString& noun)
{
    return tr(noun.toUtf8().constData());
}

void CRecordReader::failTruncated() const

{
    Fail(TruncatedError,
         tr("The data ends in the middle of a record: the file is truncated or damaged"));
}

QString CRecordReader::decode(const unsigned char* bytes, std::int32_t byteCount) const
{
    if (!m_exactText)
        return CAnsiCodec::Decode(bytes, byteCount);
    QString text(byteCount / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes, static_cast<std::size_t>(byteCount));
    return text;
}

QString CRecordReader::text(std::int32_t byteCount)
{
    need(byteCount);
    const unsigned char* bytes = m_data + m_offset;
    m_offset += byteCount;
    if (byteCount == 0)
        return QString();
    if (byteCount > static_cast<std::int32_t>(Interned{}.bytes.size()))
        return decode(bytes, byteCount);
    std::uint32_t hash = 2166136261u;
    for (std::int32_t i = 0; i < byteCount; ++i)
        hash = (hash ^ bytes[i]) * 16777619u;
    Interned& slot = m_interned[(hash ^ static_cast<std::uint32_t>(byteCount)) % internSlots];
    if (slot.length != byteCount || std::memcmp(slot.bytes.data(), bytes, byteCount) != 0) {
        slot.length = static_cast<std::uint8_t>(byteCount);
        std::memcpy(slot.bytes.data(), bytes, byteCount);
        slot.text = decode(bytes, byteCount);
    }
    return slot.text;
}

QString CRecordReader::exactText()
{
    need(1);
    std::int64_t length = m_data[m_offset];
    ++m_offset;
    if (length == 255)
        length = Long();
    if (length < 0)
        Fail(InvalidFormatError,
             tr("A text of negative length (%1) was found: the file is damaged").arg(length));
    need(2 * length);
    return text(static_cast<std::int32_t>(2 * length));
}

QString CRecordReader::SmallString()
{
    if (m_exactText)
        return exactText();
    need(1);
    const std::uint8_t length = m_data[m_offset];
    ++m_offset;
    return text(length);
}

QString CRecordReader::String()
{
    if (m_exactText)
        return exactText();
    const std::int16_t length = Integer();
    if (length < 0)
        Fail(InvalidFormatError,
             tr("A text of negative length (%1) was found: the file is damaged").arg(length));
    return text(length);
}

std::int16_t CRecordReader::Version(const QString& record, std::int16_t lowest,
                                    std::int16_t highest)
{
    const std::int16_t version = Integer();
    if (version > highest)
        Fail(InvalidFormatError, tr("The %1 record has version %2, which this program does not "
                                    "know: it was written by a newer version of Korvane")
                                     .arg(translated(record))
                                     .arg(version));
    if (version < lowest)
        Fail(InvalidFormatError, tr("The %1 record has the invalid version %2: the file is damaged")
                                     .arg(translated(record))
                                     .arg(version));
    return version;
}

std::int32_t CRecordReader::checkCount(std::int64_t count, const QString& items,
                                       std::int32_t minimumBytes) const
{
    if (count < 0)
        Fail(InvalidFormatError, tr("A negative number of %1 (%2) was found: the file is damaged")
                                     .arg(translated(items))
                                     .arg(count));
    if (count * minimumBytes > Remaining())
        Fail(InvalidFormatError,
             tr("The data claims %1 %2, more than the remaining %3 bytes can hold: the file is "
                "damaged")
                 .arg(count)
                 .arg(translated(items))
                 .arg(Remaining()));

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
