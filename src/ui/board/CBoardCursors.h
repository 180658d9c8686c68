#pragma once

#include <QCursor>

// The board's three mouse pointers, drawn in code so that they are sharp on
// every screen: over empty map, over a unit, and while the map is scrolled
// with Ctrl and the left button.
enum class tBoardCursor
{
    CursorNormal = 0,
    CursorHotspot = 1,
    CursorMapScroll = 2
};

class CBoardCursors
{
public:
    static QCursor Cursor(tBoardCursor which);
};
