#include "CAapGame.h"

CAapGame::CAapGame()
    : CBuiltInGame(QStringLiteral("krm_a_and_a_pacific_for_aapqt_doi_v2"),
                   QStringLiteral("Axis & Allies Pacific"), QStringLiteral("apm"),
                   QStringLiteral("Axis & Allies Pacific Map Files"))
{}
