#include "CQuantityToken.h"

QString CQuantityToken::Class() const
{
    return QStringLiteral("CQuantityToken");
}

QString CQuantityToken::DefaultData() const
{
    return QStringLiteral("1");
}

QString CQuantityToken::DefaultCaption() const
{
    return MultiplierPrefix() + DefaultData();
}

void CQuantityToken::HandleRightClick(const std::shared_ptr<CUnit>&) {}

void CQuantityToken::HandleMoveOnto(const std::shared_ptr<CUnit>&, const std::shared_ptr<CUnit>&) {}
