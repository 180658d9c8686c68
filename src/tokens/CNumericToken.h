#pragma once

#include "tokens/CTokenBase.h"

// A marker with a value: Data is the number, Caption the prefix plus it.
class CNumericToken : public CTokenBase
{
public:
    static constexpr std::int32_t MinValue = 0;
    static constexpr std::int32_t MaxValue = 200;

    using CTokenBase::CTokenBase;

    QString Class() const override;
    QString DefaultData() const override;
    QString DefaultCaption() const override;

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
};
