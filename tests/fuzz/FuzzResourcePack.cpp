// Opens a resource pack from bytes and unpacks every entry, both into memory
// and into the cache, as picture loading and module checks do.
#include "FuzzEnvironment.h"

#include "contexts/CResFileMgr.h"

#include <cstddef>
#include <cstdint>

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
