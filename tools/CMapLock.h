#pragma once

#include <memory>

class CMap;

// Holds a lock on a map for as long as it lives, so the map's units and
// arrows stay reachable (a map that is not active is swapped out).
class CMapLock
{
public:
    // Raises a KorvaneError when the map's swapped-out units cannot be read.
    explicit CMapLock(std::shared_ptr<CMap> map);
    // A failure to swap the map out again is left for shut-down to clean up.
    ~CMapLock();
    CMapLock(const CMapLock&) = delete;
    CMapLock& operator=(const CMapLock&) = delete;

private:
    std::shared_ptr<CMap> m_map;
};
