#include "CEastWestGame.h"

CEastWestGame::CEastWestGame()
    : CBuiltInGame(QStringLiteral("krm_east_and_west_by_impgames_v4"),
                   QStringLiteral("East & West"), QStringLiteral("ewm"),
                   QStringLiteral("East & West Map Files"))
{}
