#pragma once

#include "tokens/CTokenBase.h"

// A stack of identical pieces: each unit carries its count as Data ("12")
// and the multiplier prefix plus the count as Caption ("x12"). Counts run
// from 1 to MaxCount; stacks merge when dropped onto each other and split
// from the right-click menu.
class CQuantityToken : public CTokenBase
{
public:
    static constexpr std::int32_t MaxCount = 200;

    using CTokenBase::CTokenBase;

    QString Class() const override;
    QString DefaultData() const override;
    QString DefaultCaption() const override;
    bool SupportsMoveOnto() const override { return true; }

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
    // Merges unit into target as one undo step. A merge that would pass
    // MaxCount fills target to MaxCount and leaves the rest on unit.
    void HandleMoveOnto(const std::shared_ptr<CUnit>& unit,
                        const std::shared_ptr<CUnit>& target) override;

private:
    // Splits n pieces off a unit of count q into a new unit beside it.
    void split(const std::shared_ptr<CUnit>& unit, std::int32_t q, std::int32_t n);
};
