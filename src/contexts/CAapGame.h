#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "aapv2.krm".
class CAapGame : public CBuiltInGame
{
public:
    CAapGame();
};
