#pragma once

#include <QString>

// Names a new map of the active group. The entered name is checked before
// the dialog closes: not blank, no refused character, not already a map of
// the active group.
class FNewMapDlg
{
public:
    virtual ~FNewMapDlg() = default;

    // True when the user confirmed; the name field starts with proposedName.
    virtual bool Display(const QString& proposedName) = 0;
    // Trimmed values of the last confirmed Display.
    virtual QString Name() const = 0;
    virtual QString Remarks() const = 0;
};
