#pragma once

#include "tokens/CTokenBase.h"

// A stack of identical pieces: each unit carries its count as Data ("12")
// and the multiplier prefix plus the count as Caption ("x12").
class CQuantityToken : public CTokenBase
{
public:
    using CTokenBase::CTokenBase;

    QString Class() const override;
    QString DefaultData() const override;
    QString DefaultCaption() const override;
    bool SupportsMoveOnto() const override { return true; }

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
    void HandleMoveOnto(const std::shared_ptr<CUnit>& unit,
                        const std::shared_ptr<CUnit>& target) override;
};
