#pragma once

#include "review/CGameComparison.h"

class CGame;

// Compares two games map by map. Whether they are the same game (same id) is
// for the caller to check; the maps are compared as CMapComparer does, each
// swapped-out map read and let go again, one at a time, so memory stays low.
class CGameComparer
{
public:
    // Raises a KorvaneError when a swap file cannot be read.
    static CGameComparison Compare(const CGame& older, const CGame& newer);
};
