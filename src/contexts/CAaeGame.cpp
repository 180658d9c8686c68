#include "CAaeGame.h"

CAaeGame::CAaeGame()
    : CBuiltInGame(QStringLiteral("krm_a_and_a_europe_for_aaeqt_v1"),
                   QStringLiteral("Axis & Allies Europe"), QStringLiteral("aem"),
                   QStringLiteral("Axis & Allies Europe Map Files"))
{}
