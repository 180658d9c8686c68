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

int CZlib::InflateBounded(const unsigned char* data, std::size_t size, std::int32_t maximumLength,
                          std::vector<unsigned char>& out)
{
    out.clear();
    if (maximumLength <= 0)
        return Z_BUF_ERROR;
    const auto limit = static_cast<std::size_t>(maximumLength);
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return Z_MEM_ERROR;
    // A first guess from the usual ratio of game bodies; doubled as needed.
    out.resize(std::min(limit, std::max<std::size_t>(std::size_t(1) << 16, size * 8)));
    stream.next_in = const_cast<Bytef*>(data);
    std::size_t produced = 0;
    std::size_t consumed = 0;
    int result = Z_OK;
    while (result == Z_OK) {
        if (produced == out.size()) {
            if (out.size() == limit) {
                // Full at the bound: anything more would exceed it.
                unsigned char probe = 0;
                stream.next_out = &probe;
                stream.avail_out = 1;
                result = inflate(&stream, Z_NO_FLUSH);
                result =
                    result == Z_STREAM_END && stream.avail_out == 1 ? Z_STREAM_END : Z_BUF_ERROR;
                break;
            }
            out.resize(std::min(limit, out.size() * 2));
        }
        // zlib counts in 32-bit units; feed at most 1 GiB at a time.
        const auto inChunk = static_cast<uInt>(std::min<std::size_t>(size - consumed, 1u << 30));
        const auto outChunk =
            static_cast<uInt>(std::min<std::size_t>(out.size() - produced, 1u << 30));
        stream.next_in = const_cast<Bytef*>(data + consumed);
        stream.avail_in = inChunk;
        stream.next_out = out.data() + produced;
        stream.avail_out = outChunk;
        result = inflate(&stream, Z_NO_FLUSH);
        consumed += inChunk - stream.avail_in;
        produced += outChunk - stream.avail_out;
        if (result == Z_OK && stream.avail_in == 0 && consumed == size && stream.avail_out > 0)
            result = Z_BUF_ERROR; // the data ends before the stream does
        if (result == Z_BUF_ERROR && stream.avail_out == 0)
            result = Z_OK; // only the room ran out
    }
    inflateEnd(&stream);
    out.resize(produced);
    return result == Z_STREAM_END ? Z_OK : result;
}
