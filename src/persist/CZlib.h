#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class CInputStream;
class COutputStream;

// One-shot zlib compression of whole streams. zlib is linked, so Available
// is always true; the return code of the last call is kept in LastResult so
// readers can tell damaged data from good.
class CZlib
{
public:
    bool Available() const { return true; }

    // Compresses all source.Size() bytes at level 9 into a stream whose Size
    // is exactly the compressed length.
    std::unique_ptr<COutputStream> Compact(const COutputStream& source);

    // Inflates all source.Size() bytes into a stream of uncompressedSize
    // bytes (its tail stays zero when the data is short). uncompressedSize
    // receives the length zlib produced.
    std::unique_ptr<CInputStream> Decompact(const CInputStream& source,
                                            std::int32_t& uncompressedSize);

    // Inflates size bytes of a zlib stream that must come to at most
    // maximumLength bytes, into out. The buffer grows with what inflation
    // actually yields, so a length declared by damaged or hostile data is
    // never allocated up front. Z_OK when the stream ended within the bound;
    // Z_BUF_ERROR when it is cut short or would exceed maximumLength; else
    // zlib's error. out holds what came out either way.
    static int InflateBounded(const unsigned char* data, std::size_t size,
                              std::int32_t maximumLength, std::vector<unsigned char>& out);

    // zlib's return code of the last Compact or Decompact (Z_OK is 0).
    int LastResult() const { return m_lastResult; }

    // Room given to compress2: n * 1.01 + 12, rounded to the nearest (ties to even).
    static std::int32_t CompactCapacity(std::int32_t sourceSize);

private:
    int m_lastResult = 0;
};
