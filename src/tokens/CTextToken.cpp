#include "CTextToken.h"

QString CTextToken::Class() const
{
    return QStringLiteral("CTextToken");
}

QString CTextToken::DefaultCaption() const
{
    const QString custom = Custom();
    return custom.isEmpty() ? Caption() : custom;
}

void CTextToken::HandleRightClick(const std::shared_ptr<CUnit>&) {}
