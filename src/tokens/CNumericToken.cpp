#include "CNumericToken.h"

QString CNumericToken::Class() const
{
    return QStringLiteral("CNumericToken");
}

QString CNumericToken::DefaultData() const
{
    return QStringLiteral("0");
}

QString CNumericToken::DefaultCaption() const
{
    return MultiplierPrefix() + DefaultData();
}

void CNumericToken::HandleRightClick(const std::shared_ptr<CUnit>&) {}
