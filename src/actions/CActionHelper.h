#pragma once

#include "core/CVector.h"

#include <QString>

#include <cstdint>
#include <memory>

class CArrow;
class CGame;
class CMap;
class CUnit;

// What every action does before it touches the model: find the game, bring
// the action's map onto the board, adjust the change counter.
class CActionHelper
{
public:
    // The root's current game; a KorvaneError when there is none.
    static CGame& Game(const char* source);
    // The active map of the active group, or null.
    static std::shared_ptr<CMap> CurrentMap();

    // Makes mapId the active map and returns it, announcing NotifyOfMapSwitch
    // when that changes the board. The map is looked for in the active group
    // first, then in the other groups (switching the game to that group and
    // announcing NotifyOfGroupSwitch too), so an undo still finds its map
    // after the user has changed archives. A map that is nowhere in the game
    // is a KorvaneError and changes nothing.
    static std::shared_ptr<CMap> EnterMap(const QString& mapId, const void* notifySource,
                                          const char* source);

    // The lists of a locked map; a KorvaneError when the map is not locked.
    static CVector<CUnit>& Units(const CMap& map, const char* source);
    static CVector<CArrow>& Arrows(const CMap& map, const char* source);
    // The position of the unit with this id, 0 when there is none. Faster
    // than the general lookup, which copies and compares each id through Qt.
    static std::int32_t UnitPosition(const CVector<CUnit>& units, const QString& unitId);
    // The unit with this id on a locked map; a KorvaneError when it is missing.
    static std::shared_ptr<CUnit> RequireUnit(const CMap& map, const QString& unitId,
                                              const char* source);

    // Adds delta to the game's signed 16-bit change counter. The counter
    // sticks at its limits instead of wrapping, so it never passes through 0
    // (a saved state) by overflow.
    static void AddDirty(std::int32_t delta);

    // The nearest integer, ties to even, clamped to the 32-bit range; NaN is 0.
    static std::int32_t RoundToEven(float value);
    // A 64-bit result clamped to the 32-bit range.
    static std::int32_t Clamp32(std::int64_t value);
};
