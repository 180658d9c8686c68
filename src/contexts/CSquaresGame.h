#pragma once

#include "contexts/CBuiltInGame.h"

// The context of the module file "squv1.krm".
class CSquaresGame : public CBuiltInGame
{
public:
    CSquaresGame();
};
