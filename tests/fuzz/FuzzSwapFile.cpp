// Reads a swap file back: a map holding units is swapped out, its swap
// file is replaced by the input, and the map is locked again. A damaged file
// must raise KorvaneError and leave the map swapped out; a readable one must
// swap out and in again.
#include "FuzzEnvironment.h"

#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CMap.h"

#include <QFile>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CMap map(CUtility::GenerateId(), CUtility::GenerateId());
    FuzzEnvironment::Get().FillAndSwapOut(map);
    QFile swap(map.SwapFile());
    if (!swap.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        swap.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) !=
            static_cast<qint64>(size))
        qFatal("cannot replace the swap file");
    swap.close();

    try {
        map.AquireLock();
    } catch (const KorvaneError&) {
        if (!map.SwappedOut() || map.Units())
            qFatal("a refused swap file changed the map");
        return 0;
    }
    const std::int32_t units = map.Units()->Count();
    map.ReleaseLock();
    map.AquireLock();
    if (map.Units()->Count() != units)
        qFatal("a swap file read back with a different unit count");
    map.ReleaseLock();
    return 0;
}
