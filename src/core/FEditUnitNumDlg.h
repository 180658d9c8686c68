#pragma once

#include <cstdint>
#include <memory>

class CUnit;

// Chooses a new whole-number value for a unit between two bounds.
class FEditUnitNumDlg
{
public:
    virtual ~FEditUnitNumDlg() = default;

    // Shows the dialog modally; true when the user confirmed with OK.
    virtual bool Display(const std::shared_ptr<CUnit>& unit, std::int32_t lower,
                         std::int32_t upper) = 0;
    // The value chosen in the last confirmed Display.
    virtual std::int32_t Value() const = 0;
};
