#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "aaev1.krm".
class CAaeGame : public CBuiltInGame
{
public:
    CAaeGame();
};
