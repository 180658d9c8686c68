#include "CZlib.h"

#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include <zlib.h>

#include <algorithm>
#include <cmath>

std::int32_t CZlib::CompactCapacity(std::int32_t sourceSize)
{
    const double n = sourceSize;
    return static_cast<std::int32_t>(std::nearbyint(n * 0.01 + n + 12.0));
}

std::unique_ptr<COutputStream> CZlib::Compact(const COutputStream& source)
{
    const std::int32_t n = std::max(source.Size(), 0);
    const std::int32_t capacity = CompactCapacity(n);
    auto packed = std::make_unique<COutputStream>();
    packed->Constructor(capacity);
    uLongf destinationLength = static_cast<uLongf>(capacity);
    static const Bytef empty = 0;
    // The whole buffer from its first byte: Address() follows the mark.
    const Bytef* from = n > 0 ? source.Data() : &empty;
    m_lastResult = compress2(packed->Address(), &destinationLength, from, static_cast<uLong>(n), 9);
    packed->Resize(static_cast<std::int32_t>(destinationLength), true);
    return packed;
}

std::unique_ptr<CInputStream> CZlib::Decompact(const CInputStream& source,
                                               std::int32_t& uncompressedSize)
{
    auto plain = std::make_unique<CInputStream>();
    plain->Constructor(uncompressedSize, QString());
    const unsigned char* from = source.Address();
    unsigned char* to = plain->Address();
    if (!from || !to) {
        m_lastResult = Z_DATA_ERROR;
        uncompressedSize = 0;
        return plain;
    }
    uLongf destinationLength = static_cast<uLongf>(uncompressedSize);
    m_lastResult = uncompress(to, &destinationLength, from, static_cast<uLong>(source.Size()));
    uncompressedSize = static_cast<std::int32_t>(destinationLength);
    return plain;
}
