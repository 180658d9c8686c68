#pragma once

#include "tokens/CTokenBase.h"

// A note on the board: a free caption and a longer text. Custom holds the
// module's default text for new units.
class CTextToken : public CTokenBase
{
public:
    using CTokenBase::CTokenBase;

    QString Class() const override;
    // Custom when set, else the token's Caption.
    QString DefaultCaption() const override;

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
};
