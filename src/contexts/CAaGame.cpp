#include "CAaGame.h"

CAaGame::CAaGame()
    : CBuiltInGame(QStringLiteral("krm_axis_and_allies_for_aaqt_v1"),
                   QStringLiteral("Axis & Allies"), QStringLiteral("aam"),
                   QStringLiteral("Axis & Allies Map Files"))
{}
