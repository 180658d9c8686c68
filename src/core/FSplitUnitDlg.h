#pragma once

#include <cstdint>
#include <memory>

class CUnit;

// Chooses how many pieces to split off a stack (1 to its count - 1).
class FSplitUnitDlg
{
public:
    virtual ~FSplitUnitDlg() = default;

    // Shows the dialog modally; true when the user confirmed with OK.
    virtual bool Display(const std::shared_ptr<CUnit>& unit) = 0;
    // The amount chosen in the last confirmed Display.
    virtual std::int32_t Value() const = 0;
};
