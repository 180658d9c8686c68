#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "krcv1a.krm", Korvane Chess.
class CChessGame : public CBuiltInGame
{
public:
    CChessGame();
};
