#pragma once

#include <memory>

class CGame;

// (Temporary until the clock lands.) Releases a game the program no longer shows.
class CGameTerminator
{
public:
    static void Start(std::shared_ptr<CGame> game) { game.reset(); }
};
