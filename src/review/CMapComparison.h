#pragma once

#include "review/CMapChange.h"

#include <QString>
#include <QStringList>

#include <vector>

// What changed from an older map to a newer one. The changes come in a
// stable order: units in the newer map's list order (moved, changed and
// added ones), then removed units in the older map's order, then arrows the
// same way. A unit that only lost or gained its moved mark is no change.
struct CMapComparison
{
    struct Counts
    {
        int Moved = 0;
        int Added = 0;
        int Removed = 0;
        int Changed = 0;
        int ArrowsAdded = 0;
        int ArrowsRemoved = 0;
        int ArrowsMoved = 0;

        int Units() const { return Moved + Added + Removed + Changed; }
        int Arrows() const { return ArrowsAdded + ArrowsRemoved + ArrowsMoved; }
        int Total() const { return Units() + Arrows(); }
    };

    std::vector<CMapChange> Changes;
    Counts Count;
    QString NameBefore;
    QString NameAfter;
    bool NameChanged = false;
    // The map's free text differs.
    bool TextChanged = false;

    // No change at all: no unit or arrow change, same name, same text.
    bool Same() const { return Count.Total() == 0 && !NameChanged && !TextChanged; }
    // "6 moved, 1 added, 2 removed, 3 changed" (parts that are zero left out,
    // arrows and text named after the units), or "No changes"; translated.
    // Turns have names of their own, so a new name is named only when it is
    // the sole difference.
    QString Summary() const;
    // Every change in words, then the name (unless withName is false, as for
    // two turns) and text changes when there are.
    QStringList Lines(bool withName = true) const;
};
