#include "CMapLock.h"

#include "model/CMap.h"

CMapLock::CMapLock(std::shared_ptr<CMap> map) : m_map(std::move(map))
{
    m_map->AquireLock();
}

CMapLock::~CMapLock()
{
    try {
        m_map->ReleaseLock();
    } catch (const std::exception&) {
        // The map stays locked with its lists; its swap file, if any, is
        // removed with the map.
    }
}
