#include "CArrowToken.h"

QString CArrowToken::Class() const
{
    return QStringLiteral("CArrowToken");
}

void CArrowToken::HandleRightClick(const std::shared_ptr<CUnit>&) {}

void CArrowToken::HandleMove(std::int32_t, std::int32_t, const std::shared_ptr<CUnit>&) {}

void CArrowToken::HandleDrop(std::int32_t, std::int32_t) {}
