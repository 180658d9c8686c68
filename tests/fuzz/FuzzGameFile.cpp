// Opens a game file from bytes the way korvane-tool info and the program's
// Open do: the header names the context, which is activated, then the whole
// game is read and every map is locked once, as counting its units does.
// The body is compressed, so plain byte mutations rarely get past zlib: most
// mutations inflate the body, change it, and compress it again.
#include "FuzzEnvironment.h"

#include "actions/CMapLock.h"
#include "contexts/CContextMgr.h"
#include "core/CKorvane.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"

#include <QtEndian>

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CGameFile::Header header;
    constexpr std::int32_t largestBody = 1 << 20;
    if (seed % 4 == 0 || !CGameFile::ReadHeader(bytes, header, nullptr) || header.BodyLength <= 0 ||
        header.BodyLength > largestBody)
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray body(2 * header.BodyLength + 64, '\0');
    uLongf bodyLength = static_cast<uLongf>(header.BodyLength);
    uLong packedLength = static_cast<uLong>(size - static_cast<std::size_t>(header.BodyOffset));
    if (uncompress2(reinterpret_cast<Bytef*>(body.data()), &bodyLength, data + header.BodyOffset,
                    &packedLength) != Z_OK)
        return LLVMFuzzerMutate(data, size, maxSize);
    bodyLength = LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(body.data()), bodyLength,
                                  static_cast<std::size_t>(body.size()));

    QByteArray packed(static_cast<qsizetype>(compressBound(bodyLength)), '\0');
    uLongf packedSize = static_cast<uLongf>(packed.size());
    compress2(reinterpret_cast<Bytef*>(packed.data()), &packedSize,
              reinterpret_cast<const Bytef*>(body.constData()), bodyLength, 9);
    QByteArray file =
        bytes.left(header.BodyOffset) + packed.left(static_cast<qsizetype>(packedSize));
    qToLittleEndian(static_cast<std::int32_t>(bodyLength), file.data() + header.BodyOffset - 4);
    file = file.leftJustified((file.size() + 3) / 4 * 4, '\0');
    if (static_cast<std::size_t>(file.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, file.constData(), static_cast<std::size_t>(file.size()));
    return static_cast<std::size_t>(file.size());
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzEnvironment& environment = FuzzEnvironment::Get();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CGameFile::Header header;
    if (!CGameFile::ReadHeader(bytes, header, nullptr))
        return 0;
    const CContextMgr& contexts = environment.Root().ContextMgr();
    const std::int32_t position =
        contexts.PosOfContext(CContextMgr::TranslateExternalId(header.StoredContextId));
    if (position == 0 || !MMain::SwitchContext(contexts.Context(position)))
        return 0;
    QString error;
    const std::shared_ptr<CGame> game = CGameFile::FromBytes(bytes, &error);
    if (!game) {
        if (error.isEmpty())
            qFatal("a refused game file came without a reason");
        return 0;
    }
    for (const auto& group : game->MapGroups()) {
        for (const auto& map : group->Maps()) {
            const CMapLock lock(map);
            if (!map->Units() || !map->Arrows())
                qFatal("a locked map has no lists");
        }
    }
    return 0;
}
