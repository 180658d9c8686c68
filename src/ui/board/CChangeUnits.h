#pragma once

#include <QPointF>

#include <memory>

class CBoardRenderer;
class CUnit;
struct CMapChange;

// Units made from a change's values, belonging to no map: what a counter
// looked like before the change and after it. Drawing them changes nothing
// in the game.
class CChangeUnits
{
public:
    // Null when the change has no such side, is an arrow's, or its token is
    // not in the game's module.
    static std::shared_ptr<const CUnit> Before(const CMapChange& change);
    static std::shared_ptr<const CUnit> After(const CMapChange& change);
    // A handle of an arrow's change standing at at; null for a unit's change
    // or an arrow without a token of the module.
    static std::shared_ptr<const CUnit> Handle(const CMapChange& change, QPoint at);
    // The centre of a unit's picture on the board.
    static QPointF Centre(const CBoardRenderer& renderer, const CUnit& unit);
};
