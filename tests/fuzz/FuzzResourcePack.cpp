// Opens a resource pack from bytes and unpacks every entry, both into memory
// and into the cache, as picture loading and module checks do. The directory
// is compressed, so most mutations inflate it, change it and compress it
// again, keeping the entries' data as it was.
#include "FuzzEnvironment.h"

#include "contexts/CResFileMgr.h"

#include <QtEndian>

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    constexpr std::size_t header = CResFileMgr::HeaderLength;
    if (seed % 4 == 0 || size < header)
        return LLVMFuzzerMutate(data, size, maxSize);
    const std::uint32_t plainLength = qFromLittleEndian<std::uint32_t>(data);
    const std::uint32_t storedLength = qFromLittleEndian<std::uint32_t>(data + 4);
    if (plainLength == 0 || plainLength > (1u << 20) || storedLength > size - header)
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray directory(static_cast<qsizetype>(2 * plainLength + 64), '\0');
    uLongf directoryLength = plainLength;
    uLong consumed = storedLength;
    if (uncompress2(reinterpret_cast<Bytef*>(directory.data()), &directoryLength, data + header,
                    &consumed) != Z_OK)
        return LLVMFuzzerMutate(data, size, maxSize);
    directoryLength = LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(directory.data()),
                                       directoryLength, static_cast<std::size_t>(directory.size()));

    QByteArray stored(static_cast<qsizetype>(compressBound(directoryLength)), '\0');
    uLongf packedLength = static_cast<uLongf>(stored.size());
    compress2(reinterpret_cast<Bytef*>(stored.data()), &packedLength,
              reinterpret_cast<const Bytef*>(directory.constData()), directoryLength, 9);
    QByteArray pack(static_cast<qsizetype>(header), '\0');
    qToLittleEndian(static_cast<std::uint32_t>(directoryLength), pack.data());
    qToLittleEndian(static_cast<std::uint32_t>(packedLength), pack.data() + 4);
    pack += stored.left(static_cast<qsizetype>(packedLength));
    // Entry positions count from the start of the file: keep the data where it was.
    if (packedLength < storedLength)
        pack.append(static_cast<qsizetype>(storedLength - packedLength), '\0');
    pack.append(reinterpret_cast<const char*>(data) + header + storedLength,
                static_cast<qsizetype>(size - header - storedLength));
    if (static_cast<std::size_t>(pack.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, pack.constData(), static_cast<std::size_t>(pack.size()));
    return static_cast<std::size_t>(pack.size());
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString fileName = QStringLiteral("fuzz.krm");
    const QString directory = FuzzEnvironment::Get().WriteScratch(
        fileName, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    CResFileMgr pack(directory, fileName);
    if (!pack.IsOpen()) {
        if (pack.LastError().isEmpty())
            qFatal("a refused pack came without a reason");
        return 0;
    }
    for (std::int32_t i = 1; i <= pack.EntryCount(); ++i) {
        const CResFileEntry entry = pack.Entry(i);
        QByteArray bytes;
        if (pack.ReadEntry(entry.Name, bytes) && bytes.size() != entry.UnpackedLength)
            qFatal("entry %d unpacked to %lld bytes, not %d", i,
                   static_cast<long long>(bytes.size()), entry.UnpackedLength);
        QString cached;
        pack.UnpackFile(entry.Name, -1, cached);
    }
    pack.RemoveCachedFiles();
    return 0;
}
