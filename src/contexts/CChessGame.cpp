#include "CChessGame.h"

CChessGame::CChessGame()
    : CBuiltInGame(QStringLiteral("krm_chess_by_tavrelstudio_v1"), QStringLiteral("Korvane Chess"),
                   QStringLiteral("mcm"), QStringLiteral("Korvane Chess Files"))
{}
