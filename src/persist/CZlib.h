#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

class CInputStream;
class COutputStream;
class QIODevice;

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

    // Inflates the zlib stream that in holds from its current position into
    // out, which has room for capacity bytes; the input is read a piece at a
    // time, so only out needs memory of the body's size. produced receives
    // the bytes written, consumed the bytes the stream took from in (what
    // follows its end, such as padding, is not counted). Z_OK when the
    // stream ended within capacity; Z_BUF_ERROR when the data ends first or
    // more would come out; else zlib's error.
    static int Inflate(QIODevice& in, unsigned char* out, std::size_t capacity,
                       std::size_t& produced, std::int64_t& consumed);

    // zlib's return code of the last Compact or Decompact (Z_OK is 0).
    int LastResult() const { return m_lastResult; }

    // Room given to compress2: n * 1.01 + 12, rounded to the nearest (ties to even).
    static std::int32_t CompactCapacity(std::int32_t sourceSize);

private:
    int m_lastResult = 0;
};
