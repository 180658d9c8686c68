#pragma once

#include <memory>

class CMap;

// Holds one lock on a map for a scope, so that its lists stay reachable
// while it is copied. Release reports a failure to write the swap file; a
// lock still held at the end of the scope is released quietly.
class CMapLock
{
public:
    explicit CMapLock(std::shared_ptr<CMap> map);
    ~CMapLock();
    CMapLock(const CMapLock&) = delete;
    CMapLock& operator=(const CMapLock&) = delete;

    void Release();

private:
    std::shared_ptr<CMap> m_map;
};
