#pragma once

#include "tokens/CTokenBase.h"

class CActionGroup;

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

    // The steps that take n pieces off unit into a new stack of its token with
    // its picture corner at x, y: unit keeps the rest and the new stack shares
    // its moved mark. The group is captioned "Split Off n"; null (and no id)
    // when unit is no stack of this kind, or n would not leave a piece behind.
    struct SplitSteps
    {
        std::shared_ptr<CActionGroup> Group;
        QString NewUnitId;
    };
    static SplitSteps SplitOff(const CUnit& unit, std::int32_t n, std::int32_t x, std::int32_t y);
    // Tears amount pieces off a stack pressed on the board, the new stack's
    // picture corner at x, y, as one undo step ("Tear Off n") that the drag which
    // follows chains into; returns the new stack's id, or empty when nothing
    // was torn off (no stack, or amount not below its count).
    static QString TearOff(const std::shared_ptr<CUnit>& unit, std::int32_t amount, std::int32_t x,
                           std::int32_t y);

private:
    // Splits n pieces off a unit into a new unit beside it.
    void split(const std::shared_ptr<CUnit>& unit, std::int32_t n);
};
