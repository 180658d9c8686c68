// Opens a resource pack from bytes and unpacks every entry, both into memory
// and into the cache, as picture loading and module checks do. The directory
// is compressed, so most mutations inflate it, change it and compress it
// again, keeping the entries' data as it was.
#include "FuzzEnvironment.h"

#include "contexts/CResFileMgr.h"

#include <QtEndian>

#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    constexpr std::size_t header = CResFileMgr::HeaderLength;
    const std::uint32_t storedLength =
        size < header ? 0 : qFromLittleEndian<std::uint32_t>(data + 4);
    std::int32_t plainLength = 0;
    const QByteArray directory = seed % 4 == 0 || size < header || storedLength > size - header
                                     ? QByteArray()
                                     : MutateInflated(data + header, storedLength, plainLength);
    if (directory.isNull())
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray pack(static_cast<qsizetype>(header), '\0');
    qToLittleEndian(plainLength, pack.data());
    qToLittleEndian(static_cast<std::int32_t>(directory.size()), pack.data() + 4);
    pack += directory;
    // Entry positions count from the start of the file: keep the data where it was.
    if (directory.size() < storedLength)
        pack.append(static_cast<qsizetype>(storedLength - directory.size()), '\0');
    pack.append(reinterpret_cast<const char*>(data) + header + storedLength,
                static_cast<qsizetype>(size - header - storedLength));
    return TakeMutation(data, size, maxSize, pack);
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
