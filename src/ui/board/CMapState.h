#pragma once

#include <cstdint>
#include <memory>

class CGame;
class CMap;
class CMapGroup;
class CUnit;
class QString;

// What the windows need to know about the shown map before letting the user
// change it.
class CMapState
{
public:
    // The open game, or null.
    static std::shared_ptr<CGame> OpenGame();
    // The active group of the open game, or null.
    static std::shared_ptr<CMapGroup> ActiveGroup();
    // The active map of the active group, or null.
    static std::shared_ptr<CMap> ActiveMap();
    // The unit with this id on the active map, or null.
    static std::shared_ptr<CUnit> ActiveUnit(const QString& unitId);
    // True when the active group or its active map is closed to changes.
    static bool ActiveFrozen();

    // Shows another map of the active group, and tells every window.
    static void SwitchToMap(const std::shared_ptr<CMap>& map);
    // Shows the map at position (1-based) of the active group; nothing when
    // there is no such map.
    static void SwitchToMapAt(std::int32_t position);
    // Shows another group (its last map), and tells every window.
    static void SwitchToGroup(const std::shared_ptr<CMapGroup>& group);
};
