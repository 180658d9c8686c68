#include "CEmptyToken.h"

QString CEmptyToken::Class() const
{
    return QStringLiteral("CEmptyToken");
}
