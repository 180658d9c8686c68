#pragma once

#include <QString>

#include <memory>

class CUnit;

// Edits a text unit's caption (Text) and its longer text (Extended).
class FEditUnitTextDlg
{
public:
    virtual ~FEditUnitTextDlg() = default;

    // Shows the dialog modally; true when the user confirmed with OK.
    virtual bool Display(const std::shared_ptr<CUnit>& unit) = 0;
    virtual QString Text() const = 0;
    virtual QString Extended() const = 0;
};
