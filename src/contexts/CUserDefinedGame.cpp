#include "CUserDefinedGame.h"

QString CUserDefinedGame::FileExtension() const
{
    return QStringLiteral("cmf");
}

QString CUserDefinedGame::FileCaption() const
{
    return QStringLiteral("Custom Korvane Map Files");
}

bool CUserDefinedGame::IsUserDefined() const
{
    return true;
}
