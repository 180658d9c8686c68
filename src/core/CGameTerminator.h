#pragma once

#include "core/IAsyncEvent.h"

#include <chrono>
#include <functional>
#include <memory>

class CGame;

// Takes over a game the program no longer shows and destroys it in slices of
// about SliceLength, SliceIntervalMs apart, so that a game of many maps does
// not stall the window. Maps go from the last to the first, groups likewise,
// an emptied group with them; the game itself is released after the last slice.
class CGameTerminator : public IAsyncEvent, public std::enable_shared_from_this<CGameTerminator>
{
public:
    using TimeSource = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr std::int32_t SliceIntervalMs = 100;
    static constexpr std::chrono::milliseconds SliceLength{100};

    // now measures the slices; the steady clock unless given.
    explicit CGameTerminator(TimeSource now = {});

    // Makes a terminator that the clock's queue keeps alive until the game is gone.
    static void Start(std::shared_ptr<CGame> game, TimeSource now = {});

    // The terminator must be owned by a shared_ptr: it queues itself. A game
    // without groups schedules nothing and is simply held.
    void UnloadGame(std::shared_ptr<CGame> game);
    void Invoke(std::int32_t argument, const QString& text) override;

private:
    // True when groups remain after the slice.
    bool runSlice();

    TimeSource m_now;
    std::shared_ptr<CGame> m_game;
};
