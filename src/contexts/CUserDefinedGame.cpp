#include "CUserDefinedGame.h"

#include <QCoreApplication>

QString CUserDefinedGame::FileExtension() const
{
    return QStringLiteral("cmf");
}

QString CUserDefinedGame::FileCaption() const
{
    return QCoreApplication::translate("CUserDefinedGame", "Custom Korvane Map Files");
}

bool CUserDefinedGame::IsUserDefined() const
{
    return true;
}
