#include "CMapHistory.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

namespace {

// The last map of the nearest group, from group down to the first, that has
// maps; null when none has.
std::shared_ptr<CMap> lastMapFrom(const CGame& game, int group)
{
    for (int g = group; g >= 1; --g) {
        const CVector<CMap>& maps = game.MapGroups().Item(g)->Maps();
        if (maps.Count() > 0)
            return maps.Item(maps.Count());
    }
    return nullptr;
}

} // namespace

CMapHistory::Position CMapHistory::PositionOf(const CGame& game, const CMap& map)
{
    const CVector<CMapGroup>& groups = game.MapGroups();
    for (std::int32_t g = 1; g <= groups.Count(); ++g) {
        const std::int32_t m = groups.Item(g)->Maps().IndexOf(&map);
        if (m > 0)
            return {g, m};
    }
    return {};
}

std::shared_ptr<CMap> CMapHistory::MapAt(const CGame& game, Position position)
{
    const CVector<CMapGroup>& groups = game.MapGroups();
    if (position.Group < 1 || position.Group > groups.Count())
        return nullptr;
    const CVector<CMap>& maps = groups.Item(position.Group)->Maps();
    if (position.Map < 1 || position.Map > maps.Count())
        return nullptr;
    return maps.Item(position.Map);
}

std::shared_ptr<CMap> CMapHistory::MapBefore(const CGame& game, const CMap& map)
{
    const Position position = PositionOf(game, map);
    if (!position.Valid())
        return nullptr;
    if (position.Map > 1)
        return MapAt(game, {position.Group, position.Map - 1});
    return lastMapFrom(game, position.Group - 1);
}

std::shared_ptr<CMap> CMapHistory::LastMap(const CGame& game)
{
    return lastMapFrom(game, game.MapGroups().Count());
}
