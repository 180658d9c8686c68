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

#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CGameFile::Header header;
    std::int32_t bodyLength = 0;
    const QByteArray packed =
        seed % 4 == 0 || !CGameFile::ReadHeader(bytes, header, nullptr)
            ? QByteArray()
            : MutateInflated(data + header.BodyOffset, size - std::size_t(header.BodyOffset),
                             bodyLength);
    if (packed.isNull())
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray file = bytes.left(header.BodyOffset) + packed;
    qToLittleEndian(bodyLength, file.data() + header.BodyOffset - 4);
    return TakeMutation(data, size, maxSize, file.leftJustified((file.size() + 3) / 4 * 4, '\0'));
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
