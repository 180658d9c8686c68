#include "CSquaresGame.h"

CSquaresGame::CSquaresGame()
    : CBuiltInGame(QStringLiteral("krm_squares_by_qxpl_v1"),
                   QStringLiteral("SQUARES - Civil War Battle Game"), QStringLiteral("sqm"),
                   QStringLiteral("SQUARES Map Files"))
{}
