#pragma once

#include <QString>

// Keeps track of the swap files this process writes, so that none outlives
// it: those still on disk at the end are removed, and those of a process
// that was killed or crashed are removed by the next process that swaps.
//
// A process that swaps holds a lock file "swap-<id>.lock" in the cache folder
// for as long as it runs, and lists each of its swap files in "swap-<id>.list"
// before writing it. A list whose lock is free belongs to a process that no
// longer runs: its files are left over and go.
class CSwapFileRegistry
{
public:
    // Called before a swap file is first written. The first call of a process
    // (or the first after the cache folder moved) also clears what dead
    // processes left in the cache folder.
    static void Register(const QString& path);
    // The swap file is gone from disk. The list and lock go with the last one.
    static void Forget(const QString& path);
    // Deletes every swap file this process wrote that is still on disk, with
    // its list and lock. Only this process's files are touched.
    static void RemoveAll();
};
