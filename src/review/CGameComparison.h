#pragma once

#include "review/CMapComparison.h"

#include <QString>

#include <vector>

// Two files of one game compared map by map, maps matched by group (archive)
// and position in it.
struct CGameComparison
{
    struct Entry
    {
        enum class EntryStatus
        {
            Same,
            Changed,
            // Only in the newer game.
            Added,
            // Only in the older game.
            Removed
        };

        // 1-based group and map numbers.
        int Group = 0;
        int Map = 0;
        // The newer game's name for the map, the older's when only it has one.
        QString Name;
        EntryStatus Status = EntryStatus::Same;
        // For maps in both games; empty otherwise.
        CMapComparison Comparison;

        // "same", "changed", "added" or "removed": never translated (JSON).
        static QString StatusName(EntryStatus status);
    };

    // In group order, then map order.
    std::vector<Entry> Maps;

    // How many maps both games hold and differ.
    int ChangedCount() const;
    // Every map both games hold is the same.
    bool Kept() const { return ChangedCount() == 0; }
};
