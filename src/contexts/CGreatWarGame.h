#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "tgwv2.krm".
class CGreatWarGame : public CBuiltInGame
{
public:
    CGreatWarGame();
};
