#include "CGreatWarGame.h"

CGreatWarGame::CGreatWarGame()
    : CBuiltInGame(QStringLiteral("krm_the_great_war_by_impgames_v2"),
                   QStringLiteral("The Great War"), QStringLiteral("gwm"),
                   QStringLiteral("The Great War Map Files"))
{}
