#include "CInputStream.h"

#include "core/CUtility.h"
#include "persist/CAnsiCodec.h"

#include <QFile>

#include <cstring>
#include <limits>

void CInputStream::Constructor(std::int32_t size, const QString& fileName)
{
    if (m_initialized)
        return;
    if (!fileName.isEmpty() && CUtility::FileExists(fileName)) {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            return;
        if (size == -1) {
            if (file.size() > std::numeric_limits<std::int32_t>::max())
                return;
            size = static_cast<std::int32_t>(file.size());
        }
        if (size < 0)
            return;
        CByteBuffer buffer(static_cast<std::size_t>(size), 0);
        if (size > 0 && file.read(reinterpret_cast<char*>(buffer.data()), size) < 0)
            return;
        m_buffer = std::move(buffer);
        m_size = size;
    } else if (size > 0) {
        m_buffer.assign(static_cast<std::size_t>(size), 0);
        m_size = size;
    }
    m_initialized = true;
}

CInputStream CInputStream::FromBytes(const QByteArray& bytes)
{
    CInputStream stream;
    stream.m_buffer.assign(bytes.begin(), bytes.end());
    stream.m_size = static_cast<std::int32_t>(bytes.size());
    stream.m_initialized = true;
    return stream;
}

CInputStream CInputStream::FromBuffer(CByteBuffer&& buffer)
{
    CInputStream stream;
    stream.m_size = static_cast<std::int32_t>(buffer.size());
    stream.m_buffer = std::move(buffer);
    stream.m_initialized = true;
    return stream;
}

void CInputStream::Resize(std::int32_t newSize, bool preserve)
{
    if (newSize <= 0)
        return;
    if (!m_initialized) {
        Constructor(newSize, QString());
        return;
    }
    if (preserve)
        m_buffer.resize(static_cast<std::size_t>(newSize), 0);
    else
        m_buffer.assign(static_cast<std::size_t>(newSize), 0);
    m_size = newSize;
    m_offset = 0;
}

unsigned char* CInputStream::Address()
{
    if (!m_initialized || m_size <= 0 || m_addressMark >= m_size)
        return nullptr;
    return m_buffer.data();
}

const unsigned char* CInputStream::Address() const
{
    return const_cast<CInputStream*>(this)->Address();
}

std::int32_t CInputStream::Remaining() const
{
    if (!m_initialized || m_offset < 0 || m_offset >= m_size)
        return 0;
    return m_size - m_offset;
}

bool CInputStream::hasBytes(std::int64_t count) const
{
    return m_initialized && m_size >= 1 && m_offset >= 0 &&
           static_cast<std::int64_t>(m_offset) + count <= m_size;
}

bool CInputStream::readRaw(void* destination, std::int32_t count)
{
    if (!hasBytes(count))
        return false;
    std::memcpy(destination, m_buffer.data() + m_offset, static_cast<std::size_t>(count));
    m_offset += count;
    return true;
}

QString CInputStream::readText(std::int64_t length)
{
    if (length <= 0 || !hasBytes(length))
        return QString();
    QString text = CAnsiCodec::Decode(m_buffer.data() + m_offset, static_cast<qsizetype>(length));
    m_offset += static_cast<std::int32_t>(length);
    return text;
}

QString CInputStream::ReadSmallString()
{
    return readText(ReadByte());
}

QString CInputStream::ReadString()
{
    return readText(ReadInteger());
}

QString CInputStream::ReadBigString()
{
    return readText(ReadLong());
}

std::int16_t CInputStream::ReadInteger()
{
    std::int16_t v = 0;
    return readRaw(&v, 2) ? v : std::int16_t(0);
}

bool CInputStream::ReadBoolean()
{
    return ReadInteger() != 0;
}

std::int32_t CInputStream::ReadLong()
{
    std::int32_t v = 0;
    return readRaw(&v, 4) ? v : 0;
}

std::uint8_t CInputStream::ReadByte()
{
    std::uint8_t v = 0;
    return readRaw(&v, 1) ? v : std::uint8_t(0);
}

float CInputStream::ReadSingle()
{
    float v = 0;
    return readRaw(&v, 4) ? v : 0.0f;
}

double CInputStream::ReadDouble()
{
    double v = 0;
    return readRaw(&v, 8) ? v : 0.0;
}

std::int64_t CInputStream::ReadCurrency()
{
    std::int64_t v = 0;
    return readRaw(&v, 8) ? v : 0;
}
