// Opens a game file from bytes the way korvane-tool info and the program's
// Open do: the header names the context, which is activated, then the whole
// game is read and every map is locked once, as counting its units does.
#include "FuzzEnvironment.h"

#include "actions/CMapLock.h"
#include "contexts/CContextMgr.h"
#include "core/CKorvane.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"

#include <cstddef>
#include <cstdint>

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
    if (position == 0 || !environment.Activate(contexts.Context(position)))
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
