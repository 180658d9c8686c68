#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "eawv4.krm".
class CEastWestGame : public CBuiltInGame
{
public:
    CEastWestGame();
};
