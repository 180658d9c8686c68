#pragma once

#include "model/IGameEventListener.h"

#include <QImage>

#include <cstdint>

// The board window as the rest of the program sees it: it shows the active
// map and follows every model change it hears.
class FBoardMdc : public IGameEventListener
{
public:
    ~FBoardMdc() override = default;

    // Nesting level of the update lock. While it is 1 or more, changes that
    // would redraw the board only mark a refresh as pending; restoring 0 after
    // such a change rebuilds the board once.
    virtual std::int32_t UpdateLock() const = 0;
    virtual void SetUpdateLock(std::int32_t level) = 0;

    // The board's current picture at full size: map, units with their labels
    // and arrows. Printing and the full-screen view show this.
    virtual QImage PaintToPbox() = 0;
};
