#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "aaav2a.krm".
class CAaGame : public CBuiltInGame
{
public:
    CAaGame();
};
