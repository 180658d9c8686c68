#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class CMap;

// The parts of a map that a comparison looks at, copied out as plain values
// so that comparing needs no lock and cannot touch the model. Arrow handle
// units are left out of Units: they belong to their arrow.
struct CMapSnapshot
{
    struct Unit
    {
        QString Id;
        QString TokenId;
        QString TokenCaption;
        std::int32_t X = 0;
        std::int32_t Y = 0;
        QString Caption;
        QString Data;
    };
    struct Arrow
    {
        QString Id;
        // The arrow token of its handles, empty when it has none.
        QString TokenId;
        QString TokenCaption;
        std::int32_t TailX = 0;
        std::int32_t TailY = 0;
        std::int32_t HeadX = 0;
        std::int32_t HeadY = 0;
        std::int32_t Color = 0;
    };

    QString Name;
    QString Text;
    std::vector<Unit> Units;
    std::vector<Arrow> Arrows;

    // Copies map. A map that is not locked is locked for the copy and
    // released again, as the program's own map switches do: a swapped-out
    // map is read from its swap file and written back to it, and is swapped
    // out again afterwards, so no extra map stays in memory. The game's
    // changed mark, undo history and notifications are not touched. Raises a
    // KorvaneError when the swap file cannot be read; should writing it back
    // fail, the map simply stays in memory, unchanged.
    static CMapSnapshot Of(const std::shared_ptr<CMap>& map);
};
