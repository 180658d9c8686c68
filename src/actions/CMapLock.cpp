#include "CMapLock.h"

#include "model/CMap.h"

CMapLock::CMapLock(std::shared_ptr<CMap> map) : m_map(std::move(map))
{
    m_map->AquireLock();
}

CMapLock::~CMapLock()
{
    if (!m_map)
        return;
    try {
        m_map->ReleaseLock();
    } catch (...) {
        // Unwinding already: the map keeps its lists in memory and stays usable.
    }
}

void CMapLock::Release()
{
    if (!m_map)
        return;
    const std::shared_ptr<CMap> map = std::move(m_map);
    map->ReleaseLock();
}
