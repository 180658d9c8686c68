#include "CGameComparer.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "review/CMapComparer.h"

#include <algorithm>

namespace {

using Status = CGameComparison::Entry::EntryStatus;

CGameComparison::Entry onlyIn(int group, int map, const CMap& which, Status status)
{
    CGameComparison::Entry entry;
    entry.Group = group;
    entry.Map = map;
    entry.Name = which.Name();
    entry.Status = status;
    return entry;
}

} // namespace

CGameComparison CGameComparer::Compare(const CGame& older, const CGame& newer)
{
    CGameComparison result;
    const CVector<CMapGroup>& olderGroups = older.MapGroups();
    const CVector<CMapGroup>& newerGroups = newer.MapGroups();
    const int groupCount = std::max(olderGroups.Count(), newerGroups.Count());
    for (int g = 1; g <= groupCount; ++g) {
        const CMapGroup* olderGroup =
            g <= olderGroups.Count() ? olderGroups.Item(g).get() : nullptr;
        const CMapGroup* newerGroup =
            g <= newerGroups.Count() ? newerGroups.Item(g).get() : nullptr;
        const int olderMaps = olderGroup ? olderGroup->Maps().Count() : 0;
        const int newerMaps = newerGroup ? newerGroup->Maps().Count() : 0;
        for (int m = 1; m <= std::max(olderMaps, newerMaps); ++m) {
            if (m > olderMaps) {
                result.Maps.push_back(onlyIn(g, m, *newerGroup->Maps().Item(m), Status::Added));
                continue;
            }
            if (m > newerMaps) {
                result.Maps.push_back(onlyIn(g, m, *olderGroup->Maps().Item(m), Status::Removed));
                continue;
            }
            const std::shared_ptr<CMap>& before = olderGroup->Maps().Item(m);
            const std::shared_ptr<CMap>& after = newerGroup->Maps().Item(m);
            CGameComparison::Entry entry = onlyIn(g, m, *after, Status::Same);
            entry.Comparison = CMapComparer::Compare(before, after);
            if (!entry.Comparison.Same())
                entry.Status = Status::Changed;
            result.Maps.push_back(std::move(entry));
        }
    }
    return result;
}
