#include "CZlib.h"

#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include <QIODevice>

#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <vector>

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

int CZlib::Inflate(QIODevice& in, unsigned char* out, std::size_t capacity, std::size_t& produced,
                   std::int64_t& consumed)
{
    produced = 0;
    consumed = 0;
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return Z_MEM_ERROR;
    std::vector<char> piece(std::size_t(1) << 18);
    std::int64_t fed = 0;
    // Output is written straight into out; once it is full, one more byte
    // is asked for to tell a stream that ends there from one that goes on.
    unsigned char probe = 0;
    int result = Z_OK;
    while (result == Z_OK) {
        if (stream.avail_in == 0) {
            const qint64 got = in.read(piece.data(), static_cast<qint64>(piece.size()));
            if (got <= 0) {
                result = Z_BUF_ERROR; // the data ends before the stream does
                break;
            }
            stream.next_in = reinterpret_cast<Bytef*>(piece.data());
            stream.avail_in = static_cast<uInt>(got);
            fed += got;
        }
        const bool full = produced == capacity;
        const auto room =
            full ? 1u : static_cast<uInt>(std::min<std::size_t>(capacity - produced, 1u << 30));
        stream.next_out = full ? &probe : out + produced;
        stream.avail_out = room;
        result = inflate(&stream, Z_NO_FLUSH);
        const std::size_t wrote = room - stream.avail_out;
        if (full && wrote > 0) {
            result = Z_BUF_ERROR;
            break;
        }
        produced += wrote;
        // No progress for want of input or room: both are given next round.
        if (result == Z_BUF_ERROR && (stream.avail_in == 0 || stream.avail_out == 0))
            result = Z_OK;
    }
    consumed = fed - stream.avail_in;
    inflateEnd(&stream);
    return result == Z_STREAM_END ? Z_OK : result;
}
