#include "COutputStream.h"

#include "persist/CAnsiCodec.h"
#include "persist/CheckedMath.h"

#include <QIODevice>

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

constexpr std::int32_t blockSize = 4096;

} // namespace

void COutputStream::Constructor(std::int32_t initialSize)
{
    if (m_initialized)
        return;
    const std::int32_t capacity = initialSize >= 1 ? initialSize : blockSize;
    m_buffer.assign(static_cast<std::size_t>(capacity), 0);
    m_size = capacity;
    m_offset = 0;
    m_initialized = true;
}

void COutputStream::Resize(std::int32_t newSize, bool preserve)
{
    if (newSize <= 0)
        return;
    if (!m_initialized) {
        Constructor(newSize);
        return;
    }
    if (preserve) {
        m_buffer.resize(static_cast<std::size_t>(newSize), 0);
        m_buffer.shrink_to_fit();
    } else {
        m_buffer.assign(static_cast<std::size_t>(newSize), 0);
    }
    m_size = newSize;
    m_offset = 0;
    m_addressMark = std::min(m_addressMark, m_size - 1);
}

unsigned char* COutputStream::Address()
{
    if (!m_initialized || m_size < 1)
        return nullptr;
    return m_buffer.data() + m_addressMark;
}

const unsigned char* COutputStream::Address() const
{
    return const_cast<COutputStream*>(this)->Address();
}

void COutputStream::MoveAddressToOffset()
{
    if (m_offset >= 0 && m_offset < m_size)
        m_addressMark = m_offset;
}

bool COutputStream::DumpToFile(QIODevice& file) const
{
    if (m_size <= 0)
        return true;
    return file.write(reinterpret_cast<const char*>(m_buffer.data()), m_size) == m_size;
}

void COutputStream::ensureCapacity(std::int32_t count)
{
    if (!m_initialized)
        Constructor(blockSize);
    if (m_offset < 0)
        throw KorvaneError(9, QStringLiteral("COutputStream.Write"),
                           QStringLiteral("Subscript out of range"));
    const std::int32_t last =
        CheckedAdd(CheckedAdd(m_offset, count, "COutputStream.Write"), -1, "COutputStream.Write");
    if (last < m_size)
        return;
    // Grows from the absolute last index, not the shortfall.
    const std::int32_t growth =
        CheckedMul(last / blockSize + 1, blockSize, "COutputStream.EnsureCapacity");
    m_size = CheckedAdd(m_size, growth, "COutputStream.EnsureCapacity");
    m_buffer.resize(static_cast<std::size_t>(m_size), 0);
}

void COutputStream::writeRaw(const void* data, std::int32_t count)
{
    ensureCapacity(count);
    std::memcpy(m_buffer.data() + m_offset, data, static_cast<std::size_t>(count));
    m_offset += count;
}

void COutputStream::writeText(const QString& s, qsizetype length)
{
    if (length <= 0)
        return;
    const auto n = static_cast<std::int32_t>(length);
    ensureCapacity(n);
    if (!CAnsiCodec::EncodeInto(QStringView(s).first(length), m_buffer.data() + m_offset) &&
        m_lossyTexts)
        m_lossyTexts->append(s);
    m_offset += n;
}

void COutputStream::writeExactText(const QString& s)
{
    if (s.size() > INT32_MAX / 2)
        throw KorvaneError(6, QStringLiteral("COutputStream.Write"), QStringLiteral("Overflow"));
    const auto n = static_cast<std::int32_t>(s.size());
    if (n < 255) {
        WriteByte(static_cast<std::uint8_t>(n));
    } else {
        WriteByte(255);
        WriteLong(n);
    }
    if (n > 0)
        writeRaw(s.utf16(), 2 * n);
}

void COutputStream::WriteSmallString(const QString& s)
{
    if (m_exactText)
        return writeExactText(s);
    const qsizetype n = std::min<qsizetype>(s.size(), 255);
    WriteByte(static_cast<std::uint8_t>(n));
    writeText(s, n);
}

void COutputStream::WriteString(const QString& s)
{
    if (m_exactText)
        return writeExactText(s);
    const qsizetype n = std::min<qsizetype>(s.size(), 32767);
    WriteInteger(static_cast<std::int16_t>(n));
    writeText(s, n);
}

void COutputStream::WriteBigString(const QString& s)
{
    if (s.size() > INT32_MAX)
        throw KorvaneError(6, QStringLiteral("COutputStream.WriteBigString"),
                           QStringLiteral("Overflow"));
    WriteLong(static_cast<std::int32_t>(s.size()));
    writeText(s, s.size());
}

// The machine is little-endian, as the encodings are; static_assert keeps it honest.
static_assert(std::endian::native == std::endian::little, "encodings assume little-endian");

void COutputStream::WriteInteger(std::int16_t v)
{
    writeRaw(&v, 2);
}

void COutputStream::WriteBoolean(bool v)
{
    WriteInteger(v ? std::int16_t(-1) : std::int16_t(0));
}

void COutputStream::WriteLong(std::int32_t v)
{
    writeRaw(&v, 4);
}

void COutputStream::WriteByte(std::uint8_t v)
{
    writeRaw(&v, 1);
}

void COutputStream::WriteSingle(float v)
{
    writeRaw(&v, 4);
}

void COutputStream::WriteDouble(double v)
{
    writeRaw(&v, 8);
}

void COutputStream::WriteCurrency(std::int64_t scaledValue)
{
    writeRaw(&scaledValue, 8);
}
