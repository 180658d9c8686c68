#pragma once

#include "review/CMapComparison.h"

#include <memory>

class CMap;
struct CMapSnapshot;

// Compares two maps. Units are paired per token: identical ones (same
// position, caption and data) first, then the rest so that the distance
// travelled in all is smallest: an exact assignment (Hungarian method,
// cubic time) while a token has up to ExactLimit unpaired units a side (more
// precisely, while shorter^2 * longer stays within ExactLimit^3); beyond that
// nearest-first: the closest free pair of all is paired, again and
// again, which is near the best for turns of many short moves. Leftovers are
// added or removed. Arrows pair the same way by token, tail and head, and an
// arrow is either kept, moved, added or removed.
class CMapComparer
{
public:
    static constexpr int ExactLimit = 300;

    // Neither map is changed; see CMapSnapshot::Of for locking. Raises a
    // KorvaneError when a swapped-out map's swap file cannot be read.
    static CMapComparison Compare(const std::shared_ptr<CMap>& older,
                                  const std::shared_ptr<CMap>& newer);
    static CMapComparison Compare(const CMapSnapshot& older, const CMapSnapshot& newer);
};
