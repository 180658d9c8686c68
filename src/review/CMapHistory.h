#pragma once

#include <memory>

class CGame;
class CMap;

// Where a map stands in its game, and the map a turn is compared with.
class CMapHistory
{
public:
    // 1-based group (archive) and map numbers; 0 and 0 when not found.
    struct Position
    {
        int Group = 0;
        int Map = 0;
        bool Valid() const { return Group > 0 && Map > 0; }
    };

    static Position PositionOf(const CGame& game, const CMap& map);
    // Null when the game has no such group or map.
    static std::shared_ptr<CMap> MapAt(const CGame& game, Position position);
    // The previous map of map's group, or for a group's first map the last
    // map of the nearest earlier group that has maps; null for the game's
    // very first map and for a map not in game.
    static std::shared_ptr<CMap> MapBefore(const CGame& game, const CMap& map);
    // The game's last map (of the last group that has maps), or null.
    static std::shared_ptr<CMap> LastMap(const CGame& game);
};
